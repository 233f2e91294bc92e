// SPDX-License-Identifier: GPL-3.0-or-later
// The program's one source of random numbers, uniform in [0, 1) with 24 bits.
#pragma once

#include <functional>

namespace RandomNumbers {

// Starts a new sequence from the clock. No two calls start the same one, however fast they
// follow, so that numbers drawn with a re-seeding before each draw are uniform too.
void reseedFromClock();

[[nodiscard]] float next();

// Puts a source of the caller's in the place of the generator; an empty function puts the
// generator back. While it is set, re-seeding does nothing.
void setSource(std::function<float()> source);

} // namespace RandomNumbers
