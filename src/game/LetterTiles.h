// SPDX-License-Identifier: GPL-3.0-or-later
// Which letter of a word lies on which of the letter tiles, and how often one is uncovered.
#pragma once

#include "runtime/Integer.h"

inline constexpr int LetterTiles = 30;

// Letter k of a word of so many letters lies on tile k + offset, so that words are centred in the
// row (halves to the even tile). 0 for words of 30 letters or more.
[[nodiscard]] Integer tileOffset(Integer letters);

// Ticks of the countdown from one uncovered letter to the next: 30 / letters + 2, halves to even.
// A word without letters never comes to one.
[[nodiscard]] Integer revealEvery(Integer letters);
