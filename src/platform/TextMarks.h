// SPDX-License-Identifier: GPL-3.0-or-later
// What is marked in the boxes for entries: characters that a list file cannot keep, and differences
// between two texts. Neither is marked by colour alone.
#pragma once

#include <QList>
#include <QTextCharFormat>

class QPalette;

// Positions and lengths count UTF-16 units.
struct TextRange
{
    int start = 0;
    int length = 0;

    bool operator==(const TextRange &) const = default;
};

// The runs of characters that a list file cannot keep, combining marks with the character that they
// belong to; no more than the first `most` of them.
[[nodiscard]] QList<TextRange> lostCharacters(QStringView text, qsizetype most);
// "This list cannot keep: ł, 漢". Empty where the text has no such characters.
[[nodiscard]] QString lostCharactersText(QStringView text);

[[nodiscard]] QTextCharFormat lostCharactersFormat(const QPalette &palette);
[[nodiscard]] QTextCharFormat differenceFormat(const QPalette &palette);
