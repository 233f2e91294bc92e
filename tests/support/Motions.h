// SPDX-License-Identifier: GPL-3.0-or-later
// The motions that play.
#pragma once

#include "platform/Motion.h"

// How many play on the widget and what it contains.
[[nodiscard]] inline int motions(const QWidget &widget)
{
    int playing = 0;
    for (const Motion *motion : widget.findChildren<Motion *>())
        playing += motion->isVisible() ? 1 : 0;
    return playing;
}
