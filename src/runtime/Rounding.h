// SPDX-License-Identifier: GPL-3.0-or-later
// Rounding to the nearest whole number, halves to the even neighbour.
#pragma once

#include "runtime/Integer.h"

#include <cmath>

// Throws RunTimeError Overflow where the whole number is no Integer.
[[nodiscard]] inline Integer roundedHalfToEven(double number)
{
    const double whole = std::nearbyint(number);
    if (!(whole >= Integer::Min && whole <= Integer::Max))
        throw RunTimeError(RunTimeError::Overflow);
    return static_cast<int>(whole);
}
