// SPDX-License-Identifier: GPL-3.0-or-later
// Which words cannot be scrambled.
#pragma once

#include "runtime/Integer.h"

#include <QString>

// For a word of one or two letters cVocabList::ScrambledWord never returns.
[[nodiscard]] inline bool isTooShortToScramble(const QString &word)
{
    return word.size() == 1 || word.size() == 2;
}

[[nodiscard]] inline bool isTooLongToScramble(const QString &word)
{
    return word.size() > Integer::Max;
}

// For these cVocabList::ScrambledWord throws an error.
[[nodiscard]] inline bool isErrorToScramble(const QString &word)
{
    return word.isEmpty() || isTooLongToScramble(word);
}
