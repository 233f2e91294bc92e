// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers that are typed in the print dialog.
//
// std::nullopt if the text is not a number. A number out of the range of its type becomes the
// nearest number of that type.
#pragma once

#include "runtime/Currency.h"

#include <optional>

[[nodiscard]] std::optional<Currency> marginFromText(const QString &text);
[[nodiscard]] std::optional<Integer> positionFromText(const QString &text);

// The nearest position from 1 to NumWords; 1 if the list is empty.
[[nodiscard]] Integer positionInList(Integer position, Integer NumWords);

inline constexpr Currency SmallestMargin = 0; // inches
inline constexpr Currency LargestMargin = 3;
