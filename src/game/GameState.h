// SPDX-License-Identifier: GPL-3.0-or-later
// The state of a game and its rules: countdown, uncovered letters, points, lives and levels.
#pragma once

#include "runtime/Integer.h"

#include <array>

struct GameState
{
    static constexpr int LastLevel = 10;
    static constexpr int HitsPerLevel = 20;
    // For each word at levels 1 to 10.
    static constexpr std::array<int, LastLevel> Seconds{30, 25, 20, 15, 10, 9, 8, 7, 6, 5};

    Integer NumLifes = 5;
    Integer HitCount = 0;                // correct answers in this game
    Integer Level = 1;                   // 1 to LastLevel
    Integer LevelHits = 0;               // correct answers since the level began
    Integer TimeLimit = Seconds.front(); // seconds for the current word
    Integer CountDown = TimeLimit;       // seconds left for it
    Integer NextLetter = 1;              // position of the letter to uncover next
    Integer TicksSinceReveal = 0;

    // step: 1, -1 or 0 levels. Stays within levels 1 to LastLevel and fills the countdown.
    void changeStartLevel(int step);

    // Takes a second off the countdown and uncovers the letter that is due. When the countdown
    // reaches 0, a life is lost, all letters are uncovered and the result is true. A countdown that
    // is already at 0 is filled instead. letters: of the current word.
    [[nodiscard]] bool tick(Integer letters);

    // The points of a right answer: one less than the covered letters.
    [[nodiscard]] Integer points(Integer letters) const { return letters - NextLetter; }
    // True if this hit raises the level. The new time limit is that of the next word.
    [[nodiscard]] bool countHit();

    void loseLife() { --NumLifes; }
    [[nodiscard]] bool isOver() const { return NumLifes < 1; }

    // Fills the countdown with the level's seconds.
    void beginCountdown();
    void coverLetters();
};
