// SPDX-License-Identifier: GPL-3.0-or-later
// The program's rounding to whole numbers: to the nearest, halves to the even neighbour.
#pragma once

#include "runtime/Integer.h"

#include <cmath>

[[nodiscard]] inline double wholeHalfToEven(double number)
{
    const double floor = std::floor(number);
    const double rest = number - floor;
    const bool floorIsEven = std::fmod(floor, 2) == 0;
    return rest < 0.5 || (rest == 0.5 && floorIsEven) ? floor : floor + 1;
}

// Overflow where the whole number does not fit.
[[nodiscard]] inline Integer roundedHalfToEven(double number)
{
    const double whole = wholeHalfToEven(number);
    if (!(whole >= Integer::Min && whole <= Integer::Max))
        throw RunTimeError(RunTimeError::Overflow);
    return static_cast<int>(whole);
}
