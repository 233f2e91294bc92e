// SPDX-License-Identifier: GPL-3.0-or-later
// Where a game stands, and its rules: the countdown and the letters that it uncovers, points,
// lives and levels. A new one stands at level 1.
#pragma once

#include "runtime/Integer.h"

#include <array>

struct GameState
{
    static constexpr int LastLevel = 10;
    static constexpr int HitsPerLevel = 20;
    // For each word, at levels 1 to 10.
    static constexpr std::array<int, LastLevel> Seconds{30, 25, 20, 15, 10, 9, 8, 7, 6, 5};

    Integer NumLifes = 5;
    Integer HitCount = 0;                // correct answers in this game
    Integer Level = 1;                   // 1 to LastLevel
    Integer LevelHits = 0;               // correct answers since the level began
    Integer TimeLimit = Seconds.front(); // seconds for the word on show
    Integer CountDown = TimeLimit;       // seconds left for it
    Integer NextLetter = 1;              // position in the word of the letter to uncover next
    Integer TicksSinceReveal = 0;

    // One level up or down as far as there is one, with its countdown.
    void changeStartLevel(int step);

    // One second with a word of so many letters. True for the last one, which costs a life and
    // uncovers all letters. A countdown that stands at 0 begins instead.
    [[nodiscard]] bool tick(Integer letters);

    // What a right answer is worth: each uncovered letter costs a point.
    [[nodiscard]] Integer points(Integer letters) const { return letters - NextLetter; }
    // True where this hit raises the level.
    [[nodiscard]] bool countHit();

    void loseLife() { --NumLifes; }
    [[nodiscard]] bool isOver() const { return NumLifes < 1; }

    // The next word has its level's seconds.
    void beginCountdown();
    void coverLetters();
};
