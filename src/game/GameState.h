// SPDX-License-Identifier: GPL-3.0-or-later
// Where a game stands, and the rules of its countdown and levels. A new one stands at level 1.
#pragma once

#include "runtime/Integer.h"

struct GameState
{
    static constexpr int LastLevel = 10;
    static constexpr int HitsPerLevel = 20;

    Integer NumLifes = 5;
    Integer HitCount = 0;   // correct answers in this game
    Integer Level = 1;      // 1 to LastLevel
    Integer LevelHits = 0;  // correct answers since the level began
    Integer TimeLimit = 30; // seconds for each word at this level
    Integer CountDown = 30; // seconds left for this word
    Integer NextLetter = 1; // position in the word of the letter to uncover next
    Integer TicksSinceReveal = 0;

    // One level up or down as far as there is one, with its time limit and the countdown from it.
    void changeStartLevel(int step);

    struct Tick
    {
        bool revealsLetter = false; // NextLetter
        bool isTimeOut = false;
    };
    // One second with a word of so many letters.
    Tick tick(Integer letters);

    // What the word on show earns.
    [[nodiscard]] Integer points(Integer letters) const { return letters - NextLetter; }
    // True where this hit completes a level that is not the last.
    [[nodiscard]] bool countHit();
    void raiseLevel();
    // A word whose letters are all covered.
    void coverLetters();
};

// Seconds for each word at the level.
[[nodiscard]] Integer timeLimitOf(Integer level);
