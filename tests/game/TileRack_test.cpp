// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TileRack.h"

#include "game/LetterTile.h"
#include "platform/Appearance.h"
#include "support/Controls.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"
#include "support/PaintCount.h"

#include <QTest>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// "abc" and so on: all characters are different.
QString wordOf(int letters)
{
    QString word;
    for (int i = 0; i < letters; ++i)
        word += QChar(char16_t(u'a' + i));
    return word;
}

QPushButton &tile(const TileRack &rack, int number)
{
    return Controls::find<QPushButton>(rack,
                                       QByteArray("cmdLetters_") + QByteArray::number(number));
}

// Numbers and letters of the tiles that are turned up, such as "14a 15b".
QString turnedUp(const TileRack &rack)
{
    QStringList tiles;
    for (int number = 1; number <= 30; ++number)
        if (!tile(rack, number).isHidden())
            tiles << QString::number(number) + tile(rack, number).text();
    return tiles.join(u' ');
}

void uncoverAll(TileRack &rack, const QString &word)
{
    rack.uncover(word.size(), word);
}

} // namespace

class TileRack_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The style sheet gives other buttons a least height.
    void initTestCase() { applyAppearance(*qApp); }

    void thereAreThirtyCoveredTiles()
    {
        const TileRack rack;
        QCOMPARE(rack.findChildren<LetterTile *>().size(), 30);
        QCOMPARE(turnedUp(rack), QString());
    }

    void itHasTheColourOfAPanel()
    {
        QApplication::setPalette(QApplication::style()->standardPalette());
        TileRack rack;
        rack.resize(400, 64);
        const QImage picture = rack.grab().toImage();
        QCOMPARE(picture.pixelColor(20, 32), panelColour(rack.palette()));
    }

    void lettersLieInTheMiddleOfTheRow_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("tiles");
        QTest::newRow("one letter") << u"a"_s << u"15a"_s;
        QTest::newRow("three letters") << u"cat"_s << u"15c 16a 17t"_s;
        QTest::newRow("four letters") << u"ball"_s << u"14b 15a 16l 17l"_s;
        QTest::newRow("accent and blank") << u"é ß"_s << u"15é 16  17ß"_s;
        QTest::newRow("five free")
            << wordOf(25)
            << u"3a 4b 5c 6d 7e 8f 9g 10h 11i 12j 13k 14l 15m 16n 17o 18p 19q 20r 21s 22t 23u 24v 25w 26x 27y"_s;
    }

    void lettersLieInTheMiddleOfTheRow()
    {
        QFETCH(QString, word);
        TileRack rack;
        rack.resize(900, rack.height());
        rack.prepare(word.size());
        QCOMPARE(turnedUp(rack), QString());
        uncoverAll(rack, word);
        QTEST(turnedUp(rack), "tiles");
    }

    void theFirstLettersAreTurnedUpAndTheOthersCovered()
    {
        TileRack rack;
        rack.prepare(3);
        rack.uncover(1, u"cat"_s);
        QCOMPARE(turnedUp(rack), u"15c"_s);
        rack.uncover(2, u"cat"_s);
        QCOMPARE(turnedUp(rack), u"15c 16a"_s);
        rack.uncover(4, u"cat"_s);
        QCOMPARE(turnedUp(rack), u"15c 16a 17t"_s);
        rack.uncover(1, u"cat"_s);
        QCOMPARE(turnedUp(rack), u"15c"_s);
        rack.uncover(0, u"cat"_s);
        QCOMPARE(turnedUp(rack), QString());
        rack.uncover(3, u"cat"_s);
        rack.prepare(4);
        QCOMPARE(turnedUp(rack), QString());
    }

    void lettersBeyondTheLastTileAreLeftOut()
    {
        for (int letters = 31; letters <= 40; ++letters) {
            const QString word = wordOf(letters);
            TileRack rack;
            rack.prepare(letters);
            uncoverAll(rack, word);
            for (int number = 1; number <= 30; ++number)
                QCOMPARE(tile(rack, number).text(), word.mid(number - 1, 1));
        }
    }

    void tilesLieInsideTheRackSideBySide_data()
    {
        QTest::addColumn<int>("width");
        QTest::addColumn<int>("largest");
        for (int width = 600; width <= 1200; width += 50)
            for (const int largest : {42, 52, 73})
                QTest::addRow("%d pixels, tiles up to %d", width, largest) << width << largest;
    }

    void tilesLieInsideTheRackSideBySide()
    {
        QFETCH(int, width);
        QFETCH(int, largest);
        TileRack rack;
        rack.setLargestTile(largest);
        rack.resize(width, rack.height());
        for (int letters = 1; letters <= 40; ++letters) {
            rack.prepare(letters);
            uncoverAll(rack, wordOf(letters));
            verifyTiles(rack, std::min(letters, 30));
        }
    }

    void tilesAreShownAsSquares()
    {
        TileRack rack;
        rack.resize(900, rack.height());
        rack.show();
        for (const int letters : {1, 5, 16, 25, 30, 40}) {
            const QString word = wordOf(letters);
            rack.prepare(letters);
            uncoverAll(rack, word);
            const QPushButton &first = *turnedUpTiles(rack).front();
            const QImage picture = rack.grab(first.geometry()).toImage();
            // The tile differs from the rack up to a rim of a pixel on each side.
            const QRgb paper = rack.grab(QRect(0, 12, 1, 1)).toImage().pixel(0, 0);
            const int middle = picture.width() / 2;
            QCOMPARE(picture.width(), picture.height());
            QVERIFY(picture.pixel(middle, 1) != paper);
            QVERIFY(picture.pixel(middle, picture.height() - 2) != paper);
            QVERIFY(picture.pixel(1, middle) != paper);
            QVERIFY(picture.pixel(picture.width() - 2, middle) != paper);
        }
    }

    void openTilesFollowTheWidthOfTheRack()
    {
        TileRack rack;
        rack.show();
        rack.resize(1200, rack.height());
        rack.prepare(30);
        uncoverAll(rack, wordOf(30));
        for (const int width : {700, 1000, 500, 1200}) {
            rack.resize(width, rack.height());
            verifyTiles(rack, 30);
        }
    }

    void shortWordsHaveLargerTiles()
    {
        TileRack rack;
        rack.resize(700, rack.height());
        int last = 52; // the largest
        for (int letters = 1; letters <= 30; ++letters) {
            rack.prepare(letters);
            rack.uncover(1, wordOf(letters));
            const int side = turnedUpTiles(rack).front()->width();
            QVERIFY(letters > 5 || side == 52);
            QVERIFY(side <= last);
            last = side;
        }
        QVERIFY(last >= 18);
    }

    void newPlacesArePaintedAtOnce()
    {
        TileRack rack;
        rack.prepare(3);
        rack.show();
        QVERIFY(QTest::qWaitForWindowExposed(&rack));
        QCoreApplication::processEvents();
        const PaintCount painted(rack);
        rack.prepare(4);
        QTRY_VERIFY(painted.count() > 0);
    }

    void theRackShowsAPlaceForEachLetter()
    {
        TileRack rack;
        rack.resize(900, rack.height());
        std::vector<QImage> looks;
        for (int letters = 0; letters <= 30; ++letters) {
            rack.prepare(letters);
            looks.push_back(rack.grab().toImage());
            QVERIFY(letters == 0 || looks.back() != looks[std::size_t(letters - 1)]);
        }
        rack.prepare(40);
        QVERIFY(rack.grab().toImage() == looks[30]);
        rack.prepare(0);
        QVERIFY(rack.grab().toImage() == looks[0]);
    }

    void tilesLookLikeTheirLetters()
    {
        TileRack rack;
        rack.prepare(3);
        uncoverAll(rack, u"cac"_s);
        QVERIFY(tile(rack, 15).grab().toImage() == tile(rack, 17).grab().toImage());
        QVERIFY(tile(rack, 15).grab().toImage() != tile(rack, 16).grab().toImage());
        QPushButton &accented = tile(rack, 16);
        accented.setText(u"á"_s);
        QVERIFY(tile(rack, 15).grab().toImage() != accented.grab().toImage());
    }

    void tilesTakeNeitherKeyboardNorMouse()
    {
        TileRack rack;
        rack.prepare(3);
        rack.show();
        uncoverAll(rack, u"cat"_s);
        const QPushButton &open = tile(rack, 15);
        QCOMPARE(open.focusPolicy(), Qt::NoFocus);
        QCOMPARE(rack.childAt(open.geometry().center()), nullptr);
    }

    void turningATileIsAnimated()
    {
        const auto rack = shownRack(50);
        rack->uncover(1, u"cat"_s);
        QCOMPARE(motions(tile(*rack, 15)), 1);
        QCOMPARE(motions(*rack), 1);
        // The letter is set at once, and the motion ends by itself.
        QCOMPARE(turnedUp(*rack), u"15c"_s);
        QTRY_COMPARE(motions(*rack), 0);
        QCOMPARE(turnedUp(*rack), u"15c"_s);
    }

    void onlyTheNewLetterIsAnimated()
    {
        const auto rack = shownRack(10'000);
        rack->uncover(1, u"cat"_s);
        Motion::end(tile(*rack, 15));
        rack->uncover(2, u"cat"_s);
        QCOMPARE(motions(tile(*rack, 15)), 0);
        QCOMPARE(motions(tile(*rack, 16)), 1);
    }

    void withoutAnimationsATileIsTurnedAtOnce()
    {
        const auto rack = shownRack(0);
        uncoverAll(*rack, u"cat"_s);
        QCOMPARE(motions(*rack), 0);
        QCOMPARE(turnedUp(*rack), u"15c 16a 17t"_s);
    }

    void coveringATileEndsItsAnimation()
    {
        const auto rack = shownRack(10'000);
        rack->uncover(1, u"cat"_s);
        rack->uncover(0, {});
        QCOMPARE(motions(*rack), 0);
        QCOMPARE(turnedUp(*rack), QString());
    }

private:
    static std::vector<QPushButton *> turnedUpTiles(const TileRack &rack)
    {
        std::vector<QPushButton *> tiles;
        for (int number = 1; number <= 30; ++number)
            if (!tile(rack, number).isHidden())
                tiles.push_back(&tile(rack, number));
        return tiles;
    }

    // `count` tiles of one size are turned up, in a row in the middle of the rack.
    static void verifyTiles(const TileRack &rack, int count)
    {
        const std::vector<QPushButton *> tiles = turnedUpTiles(rack);
        QCOMPARE(int(tiles.size()), count);
        int left = 0;
        for (const QPushButton *each : tiles) {
            const QRect place = each->geometry();
            QVERIFY(rack.rect().contains(place));
            QVERIFY(place.left() >= left);
            QCOMPARE(place.size(), tiles.front()->size());
            QCOMPARE(place.width(), place.height());
            left = place.right() + 1;
        }
        const int middle =
            (tiles.front()->geometry().left() + tiles.back()->geometry().right()) / 2;
        QVERIFY(std::abs(middle - rack.width() / 2) <= tiles.front()->width());
    }

    static std::unique_ptr<TileRack> shownRack(int motion)
    {
        auto rack = std::make_unique<TileRack>();
        auto *style = new MotionStyle(motion);
        style->setParent(rack.get());
        for (LetterTile *each : rack->findChildren<LetterTile *>())
            each->setStyle(style);
        rack->prepare(3);
        rack->show();
        return rack;
    }
};

QTEST_MAIN(TileRack_test)

#include "TileRack_test.moc"
