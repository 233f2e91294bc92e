// SPDX-License-Identifier: GPL-3.0-or-later
// On a tall screen, texts in the main window have larger type, as the rows of the grid do.
#pragma once

#include <QStyle>
#include <QVariant>
#include <QWidget>

// height: of the half of the window that the control is in, in pixels.
inline void fitType(QWidget &control, int height)
{
    constexpr int tall = 900;
    const bool isLarge = height >= tall;
    if (control.property("large").toBool() == isLarge)
        return;
    control.setProperty("large", isLarge);
    control.style()->polish(&control); // the style sheet asks for the property
}
