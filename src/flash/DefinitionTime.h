// SPDX-License-Identifier: GPL-3.0-or-later
// How long an automatic run shows a definition.
#pragma once

#include "runtime/Integer.h"

#include <algorithm>

// In milliseconds: 200 for each character, but at least 3000 and at most 10000. Throws RunTimeError
// Overflow for 164 characters or more, whose product does not fit into an Integer.
[[nodiscard]] constexpr Integer definitionTime(Integer characters)
{
    return std::clamp(characters * 200, Integer(3000), Integer(10000));
}
