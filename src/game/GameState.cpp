// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameState.h"

#include "game/LetterTiles.h"

#include <algorithm>
#include <array>

Integer timeLimitOf(Integer level)
{
    static constexpr std::array<int, GameState::LastLevel> Seconds{30, 25, 20, 15, 10,
                                                                   9,  8,  7,  6,  5};
    if (level < 1 || level > GameState::LastLevel)
        throw RunTimeError(RunTimeError::SubscriptOutOfRange);
    return Seconds[static_cast<std::size_t>(level.toInt() - 1)];
}

void GameState::changeStartLevel(int step)
{
    Level = std::clamp(Level.toInt() + step, 1, LastLevel);
    TimeLimit = timeLimitOf(Level);
    CountDown = TimeLimit;
}

GameState::Tick GameState::tick(Integer letters)
{
    if (CountDown < 1) {
        TicksSinceReveal = 0;
        CountDown = TimeLimit;
    } else {
        --CountDown;
        ++TicksSinceReveal;
    }
    return {TicksSinceReveal == revealEvery(letters), CountDown == 0};
}

bool GameState::countHit()
{
    ++HitCount;
    ++LevelHits;
    return Level < LastLevel && LevelHits == HitsPerLevel;
}

void GameState::raiseLevel()
{
    ++Level;
    LevelHits = 0;
    TimeLimit = timeLimitOf(Level);
}

void GameState::coverLetters()
{
    NextLetter = 1;
    TicksSinceReveal = 0;
}
