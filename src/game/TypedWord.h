// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a person typed a word of the list: character for character, blanks round it left out.
#pragma once

#include <QString>

// A line break, a tab or a hard blank in the word, which a file may hold and no key gives, may be
// typed as a blank.
[[nodiscard]] bool isWord(const QString &typed, const QString &word);
