// SPDX-License-Identifier: GPL-3.0-or-later
// Where two texts differ, word by word.
#pragma once

#include "platform/TextMarks.h"

struct TextDifference
{
    QList<TextRange> ofOne;
    QList<TextRange> ofOther;

    bool operator==(const TextDifference &) const = default;
};

// The words that only one of the texts has at that place, and blanks where only they differ. Upper
// and lower case differ.
[[nodiscard]] TextDifference differenceOf(QStringView one, QStringView other);
