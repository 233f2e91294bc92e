// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/WordOrder.h"

#include "runtime/RandomNumbers.h"

Array<Integer> drawWordOrder(Integer size, Integer count)
{
    std::vector<Integer> order;
    order.reserve(static_cast<std::size_t>(size.toInt()));
    std::vector<bool> drawn(static_cast<std::size_t>(count.toInt()) + 1);
    while (order.size() < static_cast<std::size_t>(size.toInt())) {
        RandomNumbers::reseedFromClock();
        const auto position =
            static_cast<std::size_t>(count.toInt() * double(RandomNumbers::next())) + 1;
        if (drawn[position])
            continue;
        drawn[position] = true;
        order.emplace_back(position);
    }
    return Array<Integer>(std::move(order));
}
