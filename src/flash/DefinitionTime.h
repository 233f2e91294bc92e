// SPDX-License-Identifier: GPL-3.0-or-later
// How long an automatic run shows a definition.
#pragma once

#include "runtime/Integer.h"

#include <algorithm>

// In milliseconds: 200 for each character, 3000 at least, 10000 at most. The product is an
// Integer: from 164 characters on it throws Overflow.
[[nodiscard]] constexpr Integer definitionTime(Integer characters)
{
    return std::clamp(characters * 200, Integer(3000), Integer(10000));
}
