// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet lines of the game's window: what the word is worth, how far the next level, the next
// place in the Top 10 and the end of the words are.
#pragma once

#include "game/GameState.h"
#include "game/Top10Table.h"

namespace GameLines {

// "6 points": what a right answer would earn now.
[[nodiscard]] QString worth(Integer points);
// "3 of 20 hits", or "Last level".
[[nodiscard]] QString levelHits(const GameState &game);
// "Best 41": the best score of the table.
[[nodiscard]] QString best(const Top10Table &table);
// "Best 41 · 7 points to place 3": also what the score of the game lacks to the next better place.
// Nothing is lacking to a score above the best.
[[nodiscard]] QString best(const Top10Table &table, Integer score);
// "12 words to come", before a new order begins. index: gOrderIndex.
[[nodiscard]] QString wordsLeft(Integer index, Integer size);

} // namespace GameLines
