// SPDX-License-Identifier: GPL-3.0-or-later
// Which words cannot be scrambled.
#pragma once

#include <QString>

// For a word of one or two letters cVocabList::ScrambledWord never returns. For an empty word it
// throws an error.
[[nodiscard]] inline bool isTooShortToScramble(const QString &word)
{
    return word.size() == 1 || word.size() == 2;
}
