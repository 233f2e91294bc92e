// SPDX-License-Identifier: GPL-3.0-or-later
// The cards and tiles that are seen to turn.
#pragma once

#include "platform/CardTurn.h"

// How many there are below the widget.
[[nodiscard]] inline int cardTurns(const QWidget &widget)
{
    int shown = 0;
    for (const CardTurn *turn : widget.findChildren<CardTurn *>())
        shown += turn->isVisible() ? 1 : 0;
    return shown;
}
