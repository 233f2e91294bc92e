// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet line under the title of the Top 10 dialog.
#pragma once

#include "game/Top10Table.h"

// At the end of a game: the place and the points of a score that has the row, or what place 10
// takes where the row is 0. Empty for a score of 0.
[[nodiscard]] QString noteAtTheEnd(const Top10Table &table, Integer row, Integer score);
// In the view during a game: what the ways to leave it do to the score. Empty for a score of 0.
[[nodiscard]] QString noteInTheView(Integer score);
