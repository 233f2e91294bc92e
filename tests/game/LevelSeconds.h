// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: the expected seconds for each word at a level.
#pragma once

#include <array>

[[nodiscard]] constexpr int levelSeconds(int level)
{
    return std::array{30, 25, 20, 15, 10, 9, 8, 7, 6, 5}.at(static_cast<std::size_t>(level - 1));
}
