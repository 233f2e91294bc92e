// SPDX-License-Identifier: GPL-3.0-or-later
// The program's trimming: blanks (U+0020) only, at both ends.
#pragma once

#include <QString>

[[nodiscard]] inline QString withoutOuterBlanks(const QString &text)
{
    qsizetype first = 0;
    qsizetype end = text.size();
    while (first < end && text[first] == QLatin1Char(' '))
        ++first;
    while (end > first && text[end - 1] == QLatin1Char(' '))
        --end;
    return text.mid(first, end - first);
}
