// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameState.h"

#include "game/LetterTiles.h"

#include <algorithm>

void GameState::changeStartLevel(int step)
{
    Level = std::clamp(Level.toInt() + step, 1, LastLevel);
    beginCountdown();
}

bool GameState::tick(Integer letters)
{
    if (CountDown < 1) {
        TicksSinceReveal = 0;
        CountDown = TimeLimit;
    } else {
        --CountDown;
        ++TicksSinceReveal;
    }
    if (TicksSinceReveal == revealEvery(letters)) {
        ++NextLetter;
        TicksSinceReveal = 0;
    }
    if (CountDown > 0)
        return false;
    loseLife();
    NextLetter = letters + 1;
    return true;
}

bool GameState::countHit()
{
    ++HitCount;
    ++LevelHits;
    if (Level == LastLevel || LevelHits < HitsPerLevel)
        return false;
    ++Level;
    LevelHits = 0;
    return true;
}

void GameState::beginCountdown()
{
    TimeLimit = Seconds.at(static_cast<std::size_t>(Level.toInt() - 1));
    CountDown = TimeLimit;
}

void GameState::coverLetters()
{
    NextLetter = 1;
    TicksSinceReveal = 0;
}
