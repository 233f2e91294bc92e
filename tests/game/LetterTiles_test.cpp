// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LetterTiles.h"

#include <QTest>

namespace {

// numerator / denominator rounded in integers, halves to the even number.
int nearest(int numerator, int denominator)
{
    const int below = numerator / denominator;
    const int twiceTheRest = 2 * (numerator % denominator);
    const bool up = twiceTheRest > denominator || (twiceTheRest == denominator && below % 2 == 1);
    return up ? below + 1 : below;
}

} // namespace

class LetterTiles_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordsAreCentredInTheRowOfThirty()
    {
        for (int letters = 0; letters <= 60; ++letters)
            QCOMPARE(tileOffset(letters), Integer(letters < 30 ? nearest(30 - letters, 2) : 0));
    }

    void halfTilesAreRoundedToTheEvenTile_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<int>("offset");
        QTest::newRow("1 free") << 29 << 0;
        QTest::newRow("3 free") << 27 << 2;
        QTest::newRow("5 free") << 25 << 2;
        QTest::newRow("7 free") << 23 << 4;
        QTest::newRow("9 free") << 21 << 4;
        QTest::newRow("27 free") << 3 << 14;
        QTest::newRow("29 free") << 1 << 14;
        QTest::newRow("2 free") << 28 << 1;
        QTest::newRow("none free") << 30 << 0;
        QTest::newRow("one too many") << 31 << 0;
        QTest::newRow("far too many") << 32767 << 0;
    }

    void halfTilesAreRoundedToTheEvenTile()
    {
        QFETCH(int, letters);
        QFETCH(int, offset);
        QCOMPARE(tileOffset(letters), Integer(offset));
    }

    void everyWordUpToThirtyLettersLiesInTheRow()
    {
        for (int letters = 1; letters <= 30; ++letters) {
            QVERIFY(tileOffset(letters) >= 0);
            QVERIFY(tileOffset(letters) + letters <= 30);
        }
    }

    void longerWordsAreUncoveredFaster()
    {
        for (int letters = 1; letters <= 60; ++letters)
            QCOMPARE(revealEvery(letters), Integer(nearest(30 + 2 * letters, letters)));
    }

    void halfSecondsAreRoundedToTheEvenSecond_data()
    {
        QTest::addColumn<int>("letters");
        QTest::addColumn<int>("seconds");
        QTest::newRow("32") << 1 << 32;
        QTest::newRow("12") << 3 << 12;
        QTest::newRow("9.5") << 4 << 10;
        QTest::newRow("8") << 5 << 8;
        QTest::newRow("5.75") << 8 << 6;
        QTest::newRow("4.5") << 12 << 4;
        QTest::newRow("3.5") << 20 << 4;
        QTest::newRow("2.75") << 40 << 3;
        QTest::newRow("2.5") << 60 << 2;
        QTest::newRow("hardly more than 2") << 32767 << 2;
    }

    void halfSecondsAreRoundedToTheEvenSecond()
    {
        QFETCH(int, letters);
        QFETCH(int, seconds);
        QCOMPARE(revealEvery(letters), Integer(seconds));
    }

    void noLetterOfAnEmptyWordIsUncovered() { QCOMPARE(revealEvery(0), Integer(Integer::Max)); }
};

QTEST_APPLESS_MAIN(LetterTiles_test)

#include "LetterTiles_test.moc"
