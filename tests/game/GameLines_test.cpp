// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameLines.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Top10Table tableOf(std::initializer_list<int> scores)
{
    Top10Table table = emptyTop10(QDate(2026, 1, 1));
    std::size_t row = 0;
    for (const int score : scores)
        table.at(row++).Points = score;
    return table;
}

} // namespace

class GameLines_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWorthIsInPoints()
    {
        QCOMPARE(GameLines::worth(0), u"0 points"_s);
        QCOMPARE(GameLines::worth(1), u"1 point"_s);
        QCOMPARE(GameLines::worth(6), u"6 points"_s);
    }

    void hitsAreCountedUpToTheLastLevel()
    {
        GameState game;
        QCOMPARE(GameLines::levelHits(game), u"0 of 20 hits"_s);
        game.LevelHits = 3;
        game.HitCount = 23;
        game.Level = 9;
        QCOMPARE(GameLines::levelHits(game), u"3 of 20 hits"_s);
        game.Level = 10;
        QCOMPARE(GameLines::levelHits(game), u"Last level"_s);
    }

    void theBestScoreAndTheNextPlace_data()
    {
        QTest::addColumn<int>("score");
        QTest::addColumn<QString>("line");
        QTest::newRow("no points") << 0 << u"Best 41 · 8 points to place 4"_s;
        QTest::newRow("below the last") << 6 << u"Best 41 · 2 points to place 4"_s;
        QTest::newRow("as many as the last") << 7 << u"Best 41 · 1 point to place 4"_s;
        QTest::newRow("in the table") << 8 << u"Best 41 · 13 points to place 2"_s;
        QTest::newRow("as many as two others") << 20 << u"Best 41 · 1 point to place 2"_s;
        QTest::newRow("second") << 21 << u"Best 41 · 21 points to place 1"_s;
        QTest::newRow("as many as the best") << 41 << u"Best 41 · 1 point to place 1"_s;
        QTest::newRow("best") << 42 << u"A new best"_s;
    }

    void theBestScoreAndTheNextPlace()
    {
        QFETCH(int, score);
        QTEST(GameLines::best(tableOf({41, 20, 20, 7, 7, 7, 7, 7, 7, 7}), score), "line");
    }

    void anEmptyTableHasNoBest()
    {
        QCOMPARE(GameLines::best(tableOf({}), 0), u"No best yet · 1 point to place 1"_s);
        QCOMPARE(GameLines::best(tableOf({}), 1), u"A new best"_s);
        QCOMPARE(GameLines::best(tableOf({})), u"No best yet"_s);
        QCOMPARE(GameLines::best(tableOf({9, 4})), u"Best 9"_s);
    }

    void aTableWithUnusedRows()
    {
        QCOMPARE(GameLines::best(tableOf({9, 4}), 0), u"Best 9 · 1 point to place 3"_s);
        QCOMPARE(GameLines::best(tableOf({9, 4}), 4), u"Best 9 · 1 point to place 2"_s);
    }

    void theLargestScoreCannotBeBeaten()
    {
        QCOMPARE(GameLines::best(tableOf({32767}), 32767), u"Best 32767"_s);
    }

    void wordsToComeUpToTheShuffle()
    {
        QCOMPARE(GameLines::wordsLeft(1, 13), u"12 words to come"_s);
        QCOMPARE(GameLines::wordsLeft(12, 13), u"1 word to come"_s);
        QCOMPARE(GameLines::wordsLeft(13, 13), u"Last word before a shuffle"_s);
    }
};

QTEST_APPLESS_MAIN(GameLines_test)

#include "GameLines_test.moc"
