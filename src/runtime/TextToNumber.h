// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that a person or a file gives for numbers.
//
// A number is written with the digits 0 to 9, a point, a sign and an exponent, without groups.
// Outer blanks (U+0020) do not count. A text that is no number throws RunTimeError TypeMismatch,
// one beyond all range Overflow.
#pragma once

#include "runtime/Integer.h"

#include <cstdint>

// The nearest double; 0 for a number too small for one.
[[nodiscard]] double toNumber(const QString &text);

// Rounded to the nearest whole number, halves to even; Overflow where that does not fit. All
// digits count, however many there are.
[[nodiscard]] Integer toInteger(const QString &text);

// In the same way the number times ten to the power of `decimals`.
[[nodiscard]] std::int64_t toUnits(const QString &text, int decimals);
