// SPDX-License-Identifier: GPL-3.0-or-later
// The random numbers of the program: uniform in [0, 1), with 24 bits.
#pragma once

#include <functional>

namespace RandomNumbers {

// Starts a new sequence from the clock. Two calls never start the same sequence, so that numbers
// are uniform even if each is drawn after a new seeding.
void reseedFromClock();

[[nodiscard]] float next();

// Takes all numbers from the function instead, until an empty function is set. While one is set,
// seeding does nothing.
void setSource(std::function<float()> source);

} // namespace RandomNumbers
