// SPDX-License-Identifier: GPL-3.0-or-later
// Which words have no scramble.
#pragma once

#include <QString>

// cVocabList looks for the scramble of a word of one or two letters without end. For an empty word
// it throws an error by itself.
[[nodiscard]] inline bool isTooShortToScramble(const QString &word)
{
    return word.size() == 1 || word.size() == 2;
}
