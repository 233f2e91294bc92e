// SPDX-License-Identifier: GPL-3.0-or-later
// The screen in twips: 1/1440 inch, 15 to a logical pixel at any scale factor.
#pragma once

#include <QSize>

class QWidget;

inline constexpr int TwipsPerPixel = 15;

// Of the whole screen that the window is on, panels included.
[[nodiscard]] QSize screenInTwips(const QWidget &window);

// Rounded to the nearest pixel.
[[nodiscard]] constexpr int pixels(int twips)
{
    return (twips + TwipsPerPixel / 2) / TwipsPerPixel;
}
