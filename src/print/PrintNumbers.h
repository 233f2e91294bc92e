// SPDX-License-Identifier: GPL-3.0-or-later
// What a person types for the numbers of the print settings.
//
// Nothing where the text is no number; a number beyond its type is the nearest one of the type.
#pragma once

#include "runtime/Currency.h"

#include <optional>

[[nodiscard]] std::optional<Currency> marginFromText(const QString &text);
[[nodiscard]] std::optional<Integer> positionFromText(const QString &text);

// Brought into 1 to NumWords; 1 where the list is empty.
[[nodiscard]] Integer positionInList(Integer position, Integer NumWords);

inline constexpr Currency SmallestMargin = 0; // inches
inline constexpr Currency LargestMargin = 3;
