// SPDX-License-Identifier: GPL-3.0-or-later
// Whether a typed text is a word of the list, compared character for character without the blanks
// around both.
#pragma once

#include <QString>

// Line breaks, tabs and no-break spaces in the word cannot be typed; a blank is accepted for each.
[[nodiscard]] bool isWord(const QString &typed, const QString &word);

// For dlgIncorrectAnswer, which no other word closes. All characters that a keyboard may lack can
// be typed as blanks, or only other kinds of blanks and invisible characters, such as soft hyphens.
// The invisible ones can also be left out.
[[nodiscard]] bool isWordTypedAgain(const QString &typed, const QString &word);
// Whether there are keyboards without a key for the character.
[[nodiscard]] bool mayLackAKey(QChar character);
