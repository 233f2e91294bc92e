// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameState.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array Seconds{30, 25, 20, 15, 10, 9, 8, 7, 6, 5}; // of levels 1 to 10

GameState gameAtLevel(int level)
{
    GameState game;
    game.changeStartLevel(0);
    for (int i = 1; i < level; ++i)
        game.changeStartLevel(1);
    return game;
}

// All that a game holds, in the order in which it is declared.
QString stateOf(const GameState &game)
{
    QStringList numbers;
    for (const Integer number :
         {game.NumLifes, game.HitCount, game.Level, game.LevelHits, game.TimeLimit, game.CountDown,
          game.NextLetter, game.TicksSinceReveal})
        numbers << number.toText();
    return numbers.join(u' ');
}

// One second as the game window passes it.
GameState::Tick passSecond(GameState &game, int letters)
{
    const GameState::Tick tick = game.tick(letters);
    if (tick.revealsLetter) {
        ++game.NextLetter;
        game.TicksSinceReveal = 0;
    }
    return tick;
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

    void eachLevelHasItsTimeLimit()
    {
        for (int level = 1; level <= 10; ++level)
            QCOMPARE(timeLimitOf(level), Integer(Seconds.at(std::size_t(level - 1))));
    }

    void thereIsNoOtherLevel_data()
    {
        QTest::addColumn<int>("level");
        for (const int level : {-32768, -1, 0, 11, 32767})
            QTest::addRow("%d", level) << level;
    }

    void thereIsNoOtherLevel()
    {
        QFETCH(int, level);
        QCOMPARE(errorNumberOf([&] { return timeLimitOf(level); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void theStartLevelRisesToTenAndStaysThere()
    {
        GameState game;
        for (int level = 2; level <= 12; ++level) {
            game.changeStartLevel(1);
            const int reached = std::min(level, 10);
            const int limit = Seconds.at(std::size_t(reached - 1));
            QCOMPARE(stateOf(game), u"5 0 %1 0 %2 %2 1 0"_s.arg(reached).arg(limit));
        }
    }

    void theStartLevelFallsToOneAndStaysThere()
    {
        GameState game = gameAtLevel(10);
        for (int level = 9; level >= -1; --level) {
            game.changeStartLevel(-1);
            const int reached = std::max(level, 1);
            const int limit = Seconds.at(std::size_t(reached - 1));
            QCOMPARE(stateOf(game), u"5 0 %1 0 %2 %2 1 0"_s.arg(reached).arg(limit));
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

    // Seconds at which letters of a word are uncovered; the time is out at the last second.
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
        rows(4, {{10, 20, 30}, {10, 20}, {10, 20}, {10}, {10}, none, none, none, none, none});
        rows(5, {{8, 16, 24}, {8, 16, 24}, {8, 16}, {8}, {8}, {8}, {8}, none, none, none});
        rows(1, {none, none, none, none, none, none, none, none, none, none});
        rows(3, {{12, 24}, {12, 24}, {12}, {12}, none, none, none, none, none, none});
        rows(30, {{3, 6, 9, 12, 15, 18, 21, 24, 27, 30},
                  {3, 6, 9, 12, 15, 18, 21, 24},
                  {3, 6, 9, 12, 15, 18},
                  {3, 6, 9, 12, 15},
                  {3, 6, 9},
                  {3, 6, 9},
                  {3, 6},
                  {3, 6},
                  {3, 6},
                  {3}});
    }

    void lettersAreUncoveredUntilTheTimeIsOut()
    {
        QFETCH(int, level);
        QFETCH(int, letters);
        QFETCH(QList<int>, uncovered);
        GameState game = gameAtLevel(level);
        const int limit = game.TimeLimit.toInt();
        QList<int> seen;
        for (int second = 1; second <= limit; ++second) {
            const GameState::Tick tick = passSecond(game, letters);
            QCOMPARE(game.CountDown, Integer(limit - second));
            QCOMPARE(tick.isTimeOut, second == limit);
            if (tick.revealsLetter)
                seen << second;
            const int last = seen.isEmpty() ? 0 : seen.last();
            QCOMPARE(game.TicksSinceReveal, Integer(second - last));
            QCOMPARE(game.NextLetter, Integer(1 + int(seen.size())));
        }
        QCOMPARE(seen, uncovered);
        QCOMPARE(game.TimeLimit, Integer(limit));
        QCOMPARE(game.NumLifes, Integer(5));
    }

    void aCountdownThatStandsAtZeroBeginsWithTheWholeLimit()
    {
        GameState game = gameAtLevel(3);
        game.CountDown = 0;
        game.TicksSinceReveal = 7;
        const GameState::Tick tick = game.tick(5);
        QVERIFY(!tick.revealsLetter);
        QVERIFY(!tick.isTimeOut);
        QCOMPARE(game.CountDown, Integer(20));
        QCOMPARE(game.TicksSinceReveal, Integer(0));
        game.tick(5);
        QCOMPARE(game.CountDown, Integer(19));
        QCOMPARE(game.TicksSinceReveal, Integer(1));
    }

    void eachUncoveredLetterCostsAPoint()
    {
        GameState game;
        QCOMPARE(game.points(4), Integer(3));
        game.NextLetter = 3; // two letters of four
        QCOMPARE(game.points(4), Integer(1));
        game.NextLetter = 4;
        QCOMPARE(game.points(4), Integer(0));
        QCOMPARE(game.points(40), Integer(36));
    }

    void theTwentiethHitCompletesALevel_data()
    {
        QTest::addColumn<int>("level");
        for (int level = 1; level <= 9; ++level)
            QTest::addRow("level %d", level) << level;
    }

    void theTwentiethHitCompletesALevel()
    {
        QFETCH(int, level);
        GameState game = gameAtLevel(level);
        for (int hit = 1; hit <= 20; ++hit) {
            QCOMPARE(game.countHit(), hit == 20);
            QCOMPARE(game.HitCount, Integer(hit));
            QCOMPARE(game.LevelHits, Integer(hit));
        }
        QCOMPARE(game.Level, Integer(level));
    }

    void noHitCompletesTheLastLevel()
    {
        GameState game = gameAtLevel(10);
        for (int hit = 1; hit <= 100; ++hit)
            QVERIFY(!game.countHit());
        QCOMPARE(game.HitCount, Integer(100));
        QCOMPARE(game.LevelHits, Integer(100));
    }

    void aLevelUpTakesFiveSecondsAndFromLevelSixOne()
    {
        GameState game;
        for (int level = 2; level <= 10; ++level) {
            const Integer before = game.TimeLimit;
            game.LevelHits = 20;
            game.HitCount = 20 * (level - 1);
            game.raiseLevel();
            QCOMPARE(game.Level, Integer(level));
            QCOMPARE(game.LevelHits, Integer(0));
            QCOMPARE(before - game.TimeLimit, Integer(level >= 6 ? 1 : 5));
            QCOMPARE(game.HitCount, Integer(20 * (level - 1)));
        }
        QCOMPARE(game.TimeLimit, Integer(5));
        QCOMPARE(game.CountDown, Integer(30)); // of the word that was on show
    }

    void aGameBegunAtLevelSixGoesOnWithEightSeconds()
    {
        GameState game = gameAtLevel(6);
        QCOMPARE(game.TimeLimit, Integer(9));
        game.raiseLevel();
        QCOMPARE(game.TimeLimit, Integer(8));
    }

    void coveringTheLettersBeginsTheWordAnew()
    {
        GameState game = gameAtLevel(2);
        game.NextLetter = 4;
        game.TicksSinceReveal = 6;
        game.CountDown = 11;
        game.coverLetters();
        QCOMPARE(stateOf(game), u"5 0 2 0 25 11 1 0"_s);
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
