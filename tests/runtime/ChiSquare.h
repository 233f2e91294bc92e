// SPDX-License-Identifier: GPL-3.0-or-later
// The chi-square statistic of outcomes that should be equally likely.
#pragma once

#include <span>

// The statistic has (cells - 1) degrees of freedom: its mean is that number, its variance twice it.
[[nodiscard]] inline double chiSquare(std::span<const int> counts)
{
    double total = 0;
    for (const int count : counts)
        total += count;
    const double expected = total / static_cast<double>(counts.size());
    double sum = 0;
    for (const int count : counts)
        sum += (count - expected) * (count - expected) / expected;
    return sum;
}
