// SPDX-License-Identifier: GPL-3.0-or-later
// The shuffled order in which the words of a list are asked or shown.
#pragma once

#include "runtime/Array.h"
#include "runtime/Integer.h"

// The most words that one order takes from a list.
inline constexpr int LongestWordOrder = 1000;

// `size` different positions from 1 to `count`; all orders are equally likely. The random numbers
// are seeded from the clock before every draw. `size` must not be greater than `count`.
[[nodiscard]] Array<Integer> drawWordOrder(Integer size, Integer count);
