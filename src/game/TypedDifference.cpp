// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypedDifference.h"

#include <algorithm>

TypedDifference differenceOf(const QString &answer, const QString &word)
{
    const auto [differs, expected] =
        std::mismatch(answer.begin(), answer.end(), word.begin(), word.end());
    const auto [lastDiffers, lastExpected] =
        std::mismatch(answer.rbegin(), std::make_reverse_iterator(differs), word.rbegin(),
                      std::make_reverse_iterator(expected));
    const qsizetype begin = differs - answer.begin();
    const qsizetype end = lastDiffers.base() - answer.begin();
    return {answer.left(begin), answer.mid(begin, end - begin), answer.mid(end)};
}
