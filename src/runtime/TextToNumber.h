// SPDX-License-Identifier: GPL-3.0-or-later
// Conversion of texts that a person types or a file holds to numbers.
//
// A number is written with the digits 0 to 9, a point, a sign and an exponent, without group
// separators. Blanks (U+0020) around it are ignored. Any other text throws RunTimeError
// TypeMismatch; a number that is out of range throws Overflow.
#pragma once

#include "runtime/Integer.h"

#include <cstdint>

// The nearest double; 0 for a number too small for one.
[[nodiscard]] double toNumber(const QString &text);

// The nearest whole number, halves to even. All digits count, however many there are.
[[nodiscard]] Integer toInteger(const QString &text);

// The number times ten to the power of `decimals`, rounded to the nearest whole number. Throws
// Overflow if that has more than 18 digits.
[[nodiscard]] std::int64_t toUnits(const QString &text, int decimals);
