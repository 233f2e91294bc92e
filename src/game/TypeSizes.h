// SPDX-License-Identifier: GPL-3.0-or-later
// The type sizes of the game's texts, by the lengths of the texts in characters.
#pragma once

#include <QtGlobal>

class QLabel;
class QString;

struct TypeSize
{
    int points;
    bool bold;

    bool operator==(const TypeSize &) const = default;
};

[[nodiscard]] constexpr TypeSize wordTypeSize(qsizetype characters)
{
    if (characters <= 16)
        return {34, true};
    if (characters <= 25)
        return {18, false};
    return {characters <= 30 ? 16 : 14, false};
}

[[nodiscard]] constexpr TypeSize definitionTypeSize(qsizetype characters)
{
    if (characters <= 100)
        return {18, false};
    return {characters <= 150 ? 14 : 12, false};
}

// In dlgIncorrectAnswer.
[[nodiscard]] constexpr TypeSize missedDefinitionTypeSize(qsizetype characters)
{
    return {characters <= 100 ? 18 : 14, false};
}

[[nodiscard]] constexpr TypeSize sentenceTypeSize(qsizetype characters)
{
    return {characters <= 150 ? 14 : 12, false};
}

void showText(QLabel &label, const QString &text, TypeSize size);
