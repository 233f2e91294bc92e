// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LooseTiles.h"

#include "platform/Appearance.h"
#include "support/PaintCount.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

void prepare(LooseTiles &label, const QString &text, int points, QSize size)
{
    QFont type = label.font();
    type.setPointSize(points);
    label.setFont(type);
    label.setText(text);
    label.resize(size);
}

QString lettersOf(const LooseTiles &label)
{
    QString letters;
    for (const LooseTiles::Tile &tile : label.tiles().tiles)
        letters += tile.letter;
    return letters;
}

// The letters of the tiles that are taken.
QString takenOf(const LooseTiles &label)
{
    QString letters;
    for (const LooseTiles::Tile &tile : label.tiles().tiles)
        letters += tile.isTaken ? tile.letter : QString();
    return letters;
}

// The tile turned by its angle.
QRectF boundsOf(const LooseTiles::Tile &tile, double side)
{
    const QRectF place(-side / 2, -side / 2, side, side);
    return QTransform()
        .translate(tile.middle.x(), tile.middle.y())
        .rotate(tile.angle)
        .mapRect(place);
}

QString wordOf(int letters)
{
    QString word;
    for (int i = 0; i < letters; ++i)
        word += QChar(u'a' + i % 26);
    return word;
}

} // namespace

class LooseTiles_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { applyAppearance(*qApp); }

    void eachLetterHasATileInTheOrderOfTheText()
    {
        LooseTiles label;
        prepare(label, u"a e<&b>"_s, 34, {800, 80});
        QCOMPARE(lettersOf(label), u"a e<&b>"_s);
        const LooseTiles::Tiles shown = label.tiles();
        for (std::size_t i = 1; i < shown.tiles.size(); ++i)
            QVERIFY(shown.tiles[i].middle.x() > shown.tiles[i - 1].middle.x());
    }

    void anEmptyTextHasNoTiles()
    {
        LooseTiles label;
        prepare(label, {}, 34, {800, 80});
        QCOMPARE(label.tiles().tiles.size(), 0U);
        const QImage empty = label.grab().toImage();
        label.setText(u"a"_s);
        QVERIFY(label.grab().toImage() != empty);
    }

    void aWordThatFitsKeepsItsType_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<int>("points");
        QTest::newRow("3 letters") << 3 << 34;
        QTest::newRow("13 letters") << 13 << 34;
        QTest::newRow("25 letters") << 25 << 18;
        QTest::newRow("30 letters") << 30 << 16;
    }

    void aWordThatFitsKeepsItsType()
    {
        QFETCH(int, letters);
        QFETCH(int, points);
        LooseTiles label;
        prepare(label, wordOf(letters), points, {900, 80});
        QCOMPARE(label.tiles().type.pixelSize(), QFontInfo(label.font()).pixelSize());
    }

    void everyTileIsWholeInTheLabelAndClearOfTheOthers_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<int>("points");
        QTest::addColumn<QSize>("size");
        std::vector<int> lengths{45, 110, 200};
        for (int letters = 1; letters <= 40; ++letters)
            lengths.push_back(letters);
        for (const QSize size : {QSize(700, 72), QSize(865, 100), QSize(1150, 170)})
            for (const int letters : lengths)
                QTest::addRow("%d letters in %dx%d", letters, size.width(), size.height())
                    << letters
                    << (letters <= 16   ? 34
                        : letters <= 25 ? 18
                        : letters <= 30 ? 16
                                        : 14)
                    << size;
    }

    void everyTileIsWholeInTheLabelAndClearOfTheOthers()
    {
        QFETCH(int, letters);
        QFETCH(int, points);
        QFETCH(QSize, size);
        LooseTiles label;
        prepare(label, wordOf(letters), points, size);
        const LooseTiles::Tiles shown = label.tiles();
        QCOMPARE(int(shown.tiles.size()), letters);
        for (std::size_t i = 0; i < shown.tiles.size(); ++i) {
            const QRectF bounds = boundsOf(shown.tiles[i], shown.side);
            QVERIFY2(QRectF(label.rect()).adjusted(-1, -1, 1, 1).contains(bounds),
                     QByteArray::number(int(i)));
            for (std::size_t other = 0; other < i; ++other) {
                const QPointF apart = shown.tiles[i].middle - shown.tiles[other].middle;
                QVERIFY(std::max(std::abs(apart.x()), std::abs(apart.y())) >= shown.side);
            }
        }
        QVERIFY(shown.type.pixelSize() >= 7);
    }

    // The pixels of a single tile, which is turned by a few degrees.
    void aTileIsPaintedAsASquare()
    {
        for (const int points : {14, 16, 18, 34}) {
            LooseTiles label;
            prepare(label, u"i"_s, points, {800, 120});
            const QImage picture = label.grab().toImage();
            QRect painted;
            for (int y = 0; y < picture.height(); ++y)
                for (int x = 0; x < picture.width(); ++x)
                    if (picture.pixel(x, y) != picture.pixel(0, 0))
                        painted |= QRect(x, y, 1, 1);
            QVERIFY(painted.width() >= label.tiles().side - 2);
            QVERIFY(std::abs(painted.width() - painted.height()) <= 1);
        }
    }

    void tilesAreUneven()
    {
        LooseTiles label;
        prepare(label, wordOf(8), 34, {800, 120});
        const std::vector<LooseTiles::Tile> tiles = label.tiles().tiles;
        int turned = 0;
        int shifted = 0;
        for (std::size_t i = 1; i < tiles.size(); ++i) {
            turned += std::abs(tiles[i].angle - tiles[i - 1].angle) > 0.5;
            shifted += std::abs(tiles[i].middle.y() - tiles[i - 1].middle.y()) > 1;
        }
        QVERIFY(turned >= 4);
        QVERIFY(shifted >= 4);
    }

    void theSameTextLiesInTheSameWay()
    {
        LooseTiles label;
        prepare(label, wordOf(8), 34, {800, 120});
        const QImage first = label.grab().toImage();
        label.setText(u"other"_s);
        QVERIFY(label.grab().toImage() != first);
        label.setText(wordOf(8));
        QVERIFY(label.grab().toImage() == first);
    }

    void theTilesAreInTheMiddle()
    {
        LooseTiles label;
        for (const int letters : {3, 4, 40}) {
            prepare(label, wordOf(letters), 14, {800, 120});
            double left = 800;
            double right = 0;
            for (const LooseTiles::Tile &tile : label.tiles().tiles) {
                left = std::min(left, tile.middle.x());
                right = std::max(right, tile.middle.x());
            }
            QVERIFY(std::abs((left + right) / 2 - 400) < 1);
        }
    }

    void aTextWithoutEnoughRoomMakesTheLabelHigher()
    {
        LooseTiles label;
        prepare(label, wordOf(4000), 14, {800, 80});
        QCOMPARE(label.minimumSizeHint(), QSize(1, 1));
        const int height = label.heightForWidth(800);
        QVERIFY(height > 80);
        QVERIFY(label.heightForWidth(400) > height);
        label.resize(800, height);
        const LooseTiles::Tiles shown = label.tiles();
        QCOMPARE(shown.type.pixelSize(), 7);
        QCOMPARE(shown.tiles.size(), 4000U);
        for (const LooseTiles::Tile &tile : shown.tiles)
            QVERIFY(
                QRectF(label.rect()).adjusted(-1, -1, 1, 1).contains(boundsOf(tile, shown.side)));
    }

    void eachTypedLetterTakesOneTile_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("taken");
        QTest::newRow("nothing") << QString() << QString();
        QTest::newRow("one letter") << u"e"_s << u"e"_s;
        QTest::newRow("a letter twice") << u"ee"_s << u"ee"_s;
        QTest::newRow("more often than it is there") << u"eeee"_s << u"ee"_s;
        QTest::newRow("in another order") << u"pel"_s << u"lep"_s;
        QTest::newRow("a letter that is not there") << u"x"_s << QString();
        QTest::newRow("a capital letter") << u"E"_s << QString();
        QTest::newRow("all and more") << u"people!"_s << u"leppoe"_s;
    }

    void eachTypedLetterTakesOneTile()
    {
        QFETCH(QString, typed);
        LooseTiles label;
        prepare(label, u"leppoe"_s, 34, {800, 80});
        const QImage free = label.grab().toImage();
        label.setTyped(typed);
        QTEST(takenOf(label), "taken");
        QCOMPARE(label.grab().toImage() == free, takenOf(label).isEmpty());
        label.setTyped({});
        QVERIFY(label.grab().toImage() == free);
    }

    void typingIsPaintedAtOnce()
    {
        LooseTiles label;
        prepare(label, u"word"_s, 34, {400, 80});
        label.show();
        QVERIFY(QTest::qWaitForWindowExposed(&label));
        QCoreApplication::processEvents();
        const PaintCount painted(label);
        label.setTyped(u"w"_s);
        QTRY_COMPARE(painted.count(), 1);
    }
};

QTEST_MAIN(LooseTiles_test)

#include "LooseTiles_test.moc"
