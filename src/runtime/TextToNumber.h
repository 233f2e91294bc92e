// SPDX-License-Identifier: GPL-3.0-or-later
// Texts that a person or a file gives for numbers.
//
// A number is written with the digits 0 to 9, a point, a sign and an exponent, without groups.
// Outer blanks (U+0020) do not count. A text that is no number throws RunTimeError TypeMismatch,
// one beyond all range Overflow.
#pragma once

#include "runtime/Integer.h"

[[nodiscard]] double toNumber(const QString &text);

// Rounded to the nearest whole number, halves to even; Overflow where that does not fit.
[[nodiscard]] Integer toInteger(const QString &text);
