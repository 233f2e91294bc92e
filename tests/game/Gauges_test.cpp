// SPDX-License-Identifier: GPL-3.0-or-later
// The looks of the countdown and of the lives.
#include "game/CountdownRing.h"
#include "game/LifeHearts.h"
#include "support/MotionStyle.h"
#include "support/PaintCount.h"

#include <QAccessible>
#include <QImage>
#include <QTest>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

QImage look(CountdownRing &ring, int left, int limit)
{
    ring.setSeconds(left, limit);
    return ring.grab().toImage();
}

QImage look(LifeHearts &hearts, int lives)
{
    hearts.setLives(lives);
    return hearts.grab().toImage();
}

// The number of pixels in which two pictures differ.
int difference(const QImage &one, const QImage &other)
{
    int pixels = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            pixels += one.pixel(x, y) == other.pixel(x, y) ? 0 : 1;
    return pixels;
}

QRgb middleOf(const QImage &image, const QRect &part)
{
    return image.pixel(part.center());
}

// Whether the disc is filled, by a point inside the ring that no number covers.
bool hasDisc(const QImage &image)
{
    const QPoint insideTheRing(image.width() / 2, image.height() - 14);
    return image.pixelColor(insideTheRing).red() > image.pixelColor(insideTheRing).green() + 80;
}

QString nameOf(QWidget &widget)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(QAccessible::Name);
}

QPalette darkPalette()
{
    QPalette palette(QColor(0x2D, 0x2D, 0x2D));
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

} // namespace

class Gauges_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void screenReadersTellTenAndFiveSecondsAlone()
    {
        CountdownRing ring;
        QStringList told;
        connect(&ring, &CountdownRing::told, this, [&] { told += nameOf(ring); });
        for (int left = 30; left >= 0; --left)
            ring.setSeconds(left, 30);
        ring.setSeconds(5, 5); // the next word
        QCOMPARE(told, QStringList({u"10 seconds left"_s, u"5 seconds left"_s}));
        QCOMPARE(QAccessible::queryAccessibleInterface(&ring)->role(), QAccessible::StatusBar);
        ring.setSeconds(3, 5);
        QCOMPARE(nameOf(ring), u"3 seconds left"_s);
        ring.setSeconds(1, 5);
        QCOMPARE(nameOf(ring), u"1 second left"_s);
    }

    void screenReadersTellTheLives()
    {
        LifeHearts hearts;
        hearts.setLives(4);
        QCOMPARE(nameOf(hearts), u"4 lives left"_s);
        hearts.setLives(1);
        QCOMPARE(nameOf(hearts), u"1 life left"_s);
        QCOMPARE(QAccessible::queryAccessibleInterface(&hearts)->role(), QAccessible::StatusBar);
    }

    void theCountdownIsANumber()
    {
        CountdownRing ring;
        for (const int left : {30, 9, 1, 0}) {
            ring.setSeconds(left, 30);
            QCOMPARE(ring.text(), QString::number(left));
        }
    }

    void aNewLevelFillsTheRingInItsColour()
    {
        CountdownRing ring;
        QVERIFY(hasDisc(look(ring, 3, 10)));
        ring.setLevel(6);
        ring.playFilling();
        const QImage full = ring.grab().toImage();
        QVERIFY(!hasDisc(full));
        const QPoint topLeft(qRound(full.width() * 0.5 - full.width() * 0.455 * 0.7071),
                             qRound(full.height() * 0.5 - full.height() * 0.455 * 0.7071));
        QCOMPARE(full.pixelColor(topLeft).rgb(), CountdownRing::colourOf(6, ring.palette()).rgb());
        QVERIFY(hasDisc(look(ring, 3, 10)));
    }

    void everySecondLooksDifferent()
    {
        CountdownRing ring;
        std::vector<QImage> looks;
        for (int left = 0; left <= 30; ++left) {
            looks.push_back(look(ring, left, 30));
            for (int other = 0; other < left; ++other)
                QVERIFY(looks[std::size_t(other)] != looks.back());
        }
    }

    void theRingShrinksWithTheSeconds()
    {
        // The number is the same each time, so only the ring differs.
        CountdownRing ring;
        const QImage whole = look(ring, 6, 6);
        int last = 0;
        for (const int limit : {7, 8, 9, 10, 15, 20, 25, 30}) {
            const int gone = difference(whole, look(ring, 6, limit));
            QVERIFY(gone > last);
            last = gone;
        }
        // Down to the last second.
        QVERIFY(look(ring, 1, 1) != look(ring, 1, 30));
    }

    void theRingIsWholeAtEachLimit()
    {
        CountdownRing ring;
        const QImage oneNumber = look(ring, 10, 10);
        ring.setSeconds(10, 20);
        QVERIFY(ring.grab().toImage() != oneNumber);
        QVERIFY(look(ring, 10, 10) == oneNumber);
    }

    void theLastFiveSecondsAreADisc()
    {
        for (const QPalette &palette : {QPalette(QColor(0xEF, 0xEF, 0xEF)), darkPalette()}) {
            CountdownRing ring;
            ring.setPalette(palette);
            for (const int limit : {30, 10, 5})
                for (int left = 0; left <= limit; ++left)
                    QCOMPARE(hasDisc(look(ring, left, limit)), left <= 5);
        }
    }

    void theLastSecondsAreLarger()
    {
        CountdownRing ring;
        // The pixels of the number are those that differ from a ring with an empty text.
        const auto numberOf = [&](int left) {
            const QImage image = look(ring, left, 1000);
            ring.setText({});
            return difference(image, ring.grab().toImage());
        };
        QVERIFY(numberOf(4) > numberOf(6) * 5 / 4);
        QVERIFY(numberOf(6) > 50);
    }

    void anyNumberOfSecondsIsPainted()
    {
        CountdownRing ring;
        QVERIFY(look(ring, 0, 0) == look(ring, 0, 1));
        QVERIFY(!look(ring, -1, 30).isNull());
        QCOMPARE(ring.text(), u"-1"_s);
        QVERIFY(!look(ring, 32767, 1).isNull());
    }

    void everyChangeIsPaintedAtOnce()
    {
        CountdownRing ring;
        ring.setSeconds(6, 30);
        LifeHearts hearts;
        hearts.setStyle(&m_still);
        hearts.setLives(5);
        for (QWidget *gauge : {static_cast<QWidget *>(&ring), static_cast<QWidget *>(&hearts)}) {
            gauge->show();
            QVERIFY(QTest::qWaitForWindowExposed(gauge));
        }
        QCoreApplication::processEvents();
        const PaintCount ringPainted(ring);
        const PaintCount heartsPainted(hearts);
        ring.setSeconds(6, 6);
        hearts.setLives(4);
        QTRY_COMPARE(ringPainted.count(), 1);
        QTRY_COMPARE(heartsPainted.count(), 1);
    }

    void theLivesThatAreLeftAreFilledHearts()
    {
        for (const QPalette &palette : {QPalette(QColor(0xEF, 0xEF, 0xEF)), darkPalette()}) {
            LifeHearts hearts;
            hearts.setPalette(palette);
            const int pitch = hearts.width() / 5;
            QCOMPARE(hearts.width(), 5 * pitch);
            const QRgb paper = look(hearts, 0).pixel(pitch - 1, 0);
            for (int lives = 0; lives <= 5; ++lives) {
                const QImage image = look(hearts, lives);
                for (int life = 1; life <= 5; ++life) {
                    const QRect heart((life - 1) * pitch, 0, 24, image.height());
                    const bool isFull = middleOf(image, heart) != paper;
                    QCOMPARE(isFull, life <= lives);
                    QVERIFY(difference(image.copy(heart), look(hearts, 5 - lives).copy(heart)) >
                                0 ||
                            (life <= lives) == (life <= 5 - lives));
                }
            }
        }
    }

    void lostLivesAreOutlines()
    {
        LifeHearts hearts;
        const QImage lost = look(hearts, 0);
        QImage nothing = lost;
        nothing.fill(lost.pixel(hearts.width() - 1, 0));
        QVERIFY(difference(lost, nothing) > 5 * 30);
    }

    void onlyFiveHeartsAreShown()
    {
        LifeHearts hearts;
        QVERIFY(look(hearts, 6) == look(hearts, 5));
        QVERIFY(look(hearts, -1) == look(hearts, 0));
    }

private:
    MotionStyle m_still{0};
};

QTEST_MAIN(Gauges_test)

#include "Gauges_test.moc"
