// SPDX-License-Identifier: GPL-3.0-or-later
// On which tile each letter of a word lies, and how often a letter is uncovered.
#pragma once

#include "runtime/Integer.h"

inline constexpr int LetterTiles = 30;

// Letter k of a word with this number of letters lies on tile k + offset, so that the word is
// centred in the row. Halves are rounded to the even number. 0 for words of 30 letters or more.
[[nodiscard]] Integer tileOffset(Integer letters);

// Seconds from one uncovered letter to the next: 30 / letters + 2, halves rounded to the even
// number. Integer::Max for a word without letters.
[[nodiscard]] Integer revealEvery(Integer letters);
