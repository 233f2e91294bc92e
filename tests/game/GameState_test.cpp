// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameState.h"

#include "game/LevelSeconds.h"
#include "runtime/ErrorNumber.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

GameState gameAtLevel(int level)
{
    GameState game;
    for (int i = 1; i < level; ++i)
        game.changeStartLevel(1);
    return game;
}

// All members in the order of their declaration.
QString stateOf(const GameState &game)
{
    QStringList numbers;
    for (const Integer number :
         {game.NumLifes, game.HitCount, game.Level, game.LevelHits, game.TimeLimit, game.CountDown,
          game.NextLetter, game.TicksSinceReveal})
        numbers << number.toText();
    return numbers.join(u' ');
}

void passSeconds(GameState &game, int seconds, int letters)
{
    for (; seconds > 0; --seconds)
        QVERIFY(!game.tick(letters));
}

} // namespace

class GameState_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewGameHasFiveLivesAtLevelOne()
    {
        QCOMPARE(stateOf(GameState()), u"5 0 1 0 30 30 1 0"_s);
    }

    void theStartLevelRisesToTenAndStaysThere()
    {
        GameState game;
        for (int level = 2; level <= 12; ++level) {
            game.changeStartLevel(1);
            const int reached = std::min(level, 10);
            QCOMPARE(stateOf(game),
                     u"5 0 %1 0 %2 %2 1 0"_s.arg(reached).arg(levelSeconds(reached)));
        }
    }

    void theStartLevelFallsToOneAndStaysThere()
    {
        GameState game = gameAtLevel(10);
        for (int level = 9; level >= -1; --level) {
            game.changeStartLevel(-1);
            const int reached = std::max(level, 1);
            QCOMPARE(stateOf(game),
                     u"5 0 %1 0 %2 %2 1 0"_s.arg(reached).arg(levelSeconds(reached)));
        }
    }

    void noStepLeavesTheStartLevel()
    {
        GameState game = gameAtLevel(4);
        const QString before = stateOf(game);
        game.changeStartLevel(0);
        QCOMPARE(stateOf(game), before);
        game.CountDown = 3;
        game.changeStartLevel(0);
        QCOMPARE(stateOf(game), before);
    }

    // Seconds at which a letter is uncovered; the last second uncovers all that are left.
    void lettersAreUncoveredUntilTheTimeIsOut_data()
    {
        QTest::addColumn<int>("level");
        QTest::addColumn<int>("letters");
        QTest::addColumn<QList<int>>("uncovered");
        const auto rows = [](int letters, const QList<QList<int>> &uncovered) {
            for (int level = 1; level <= 10; ++level)
                QTest::addRow("%d letters at level %d", letters, level)
                    << level << letters << uncovered[level - 1];
        };
        const QList<int> none;
        rows(4, {{10, 20}, {10, 20}, {10}, {10}, none, none, none, none, none, none});
        rows(5, {{8, 16, 24}, {8, 16, 24}, {8, 16}, {8}, {8}, {8}, none, none, none, none});
        rows(1, {none, none, none, none, none, none, none, none, none, none});
        rows(3, {{12, 24}, {12, 24}, {12}, {12}, none, none, none, none, none, none});
        rows(30, {{3, 6, 9, 12, 15, 18, 21, 24, 27},
                  {3, 6, 9, 12, 15, 18, 21, 24},
                  {3, 6, 9, 12, 15, 18},
                  {3, 6, 9, 12},
                  {3, 6, 9},
                  {3, 6},
                  {3, 6},
                  {3, 6},
                  {3},
                  {3}});
    }

    void lettersAreUncoveredUntilTheTimeIsOut()
    {
        QFETCH(int, level);
        QFETCH(int, letters);
        QFETCH(QList<int>, uncovered);
        GameState game = gameAtLevel(level);
        const int limit = levelSeconds(level);
        QList<int> seen;
        for (int second = 1; second < limit; ++second) {
            const Integer before = game.NextLetter;
            QVERIFY(!game.tick(letters));
            if (game.NextLetter != before)
                seen << second;
            const int last = seen.isEmpty() ? 0 : seen.last();
            QCOMPARE(stateOf(game), u"5 0 %1 0 %2 %3 %4 %5"_s.arg(level)
                                        .arg(limit)
                                        .arg(limit - second)
                                        .arg(1 + seen.size())
                                        .arg(second - last));
        }
        QCOMPARE(seen, uncovered);
        QVERIFY(game.tick(letters));
        QCOMPARE(game.CountDown, Integer(0));
        QCOMPARE(game.NumLifes, Integer(4));
        QCOMPARE(game.NextLetter, Integer(letters + 1));
    }

    void aCountdownThatStandsAtZeroBeginsWithTheWholeLimit()
    {
        GameState game = gameAtLevel(3);
        game.CountDown = 0;
        game.TicksSinceReveal = 7;
        QVERIFY(!game.tick(5));
        QCOMPARE(stateOf(game), u"5 0 3 0 20 20 1 0"_s);
        QVERIFY(!game.tick(5));
        QCOMPARE(stateOf(game), u"5 0 3 0 20 19 1 1"_s);
    }

    void eachUncoveredLetterCostsAPoint()
    {
        GameState game;
        QCOMPARE(game.points(4), Integer(3));
        passSeconds(game, 20, 4);
        QCOMPARE(game.points(4), Integer(1));
        game.NextLetter = 4;
        QCOMPARE(game.points(4), Integer(0));
        QCOMPARE(game.points(40), Integer(36));
    }

    void theTwentiethHitRaisesTheLevel_data()
    {
        QTest::addColumn<int>("level");
        for (int level = 1; level <= 9; ++level)
            QTest::addRow("level %d", level) << level;
    }

    void theTwentiethHitRaisesTheLevel()
    {
        QFETCH(int, level);
        GameState game = gameAtLevel(level);
        const int limit = levelSeconds(level);
        for (int hit = 1; hit < 20; ++hit) {
            QVERIFY(!game.countHit());
            QCOMPARE(stateOf(game), u"5 %1 %2 %1 %3 %3 1 0"_s.arg(hit).arg(level).arg(limit));
        }
        QVERIFY(game.countHit());
        // The current word keeps its limit; the next word has that of the new level.
        QCOMPARE(stateOf(game), u"5 20 %1 0 %2 %2 1 0"_s.arg(level + 1).arg(limit));
        game.beginCountdown();
        QCOMPARE(stateOf(game),
                 u"5 20 %1 0 %2 %2 1 0"_s.arg(level + 1).arg(levelSeconds(level + 1)));
        QVERIFY(!game.countHit());
        QCOMPARE(game.LevelHits, Integer(1));
    }

    void noHitRaisesTheLastLevel()
    {
        GameState game = gameAtLevel(10);
        for (int hit = 1; hit <= 100; ++hit)
            QVERIFY(!game.countHit());
        QCOMPARE(stateOf(game), u"5 100 10 100 5 5 1 0"_s);
    }

    void theFifthLostLifeEndsTheGame()
    {
        GameState game;
        for (int lives = 4; lives > 0; --lives) {
            game.loseLife();
            QCOMPARE(stateOf(game), u"%1 0 1 0 30 30 1 0"_s.arg(lives));
            QVERIFY(!game.isOver());
        }
        game.loseLife();
        QVERIFY(game.isOver());
        game.loseLife();
        QVERIFY(game.isOver());
    }

    void theNextWordHasTheWholeLimit()
    {
        GameState game = gameAtLevel(2);
        passSeconds(game, 13, 5);
        QCOMPARE(stateOf(game), u"5 0 2 0 25 12 2 5"_s);
        game.beginCountdown();
        QCOMPARE(stateOf(game), u"5 0 2 0 25 25 2 5"_s);
        game.coverLetters();
        QCOMPARE(stateOf(game), u"5 0 2 0 25 25 1 0"_s);
    }

    void countersStayInsideSixteenBits()
    {
        GameState game;
        game.HitCount = 32767;
        QCOMPARE(errorNumberOf([&] { return game.countHit(); }), RunTimeError::Overflow);
    }
};

QTEST_APPLESS_MAIN(GameState_test)

#include "GameState_test.moc"
