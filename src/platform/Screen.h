// SPDX-License-Identifier: GPL-3.0-or-later
// Sizes in twips (1/1440 inch). A logical pixel has 15 at any scale factor.
#pragma once

#include <QSize>

class QWidget;

inline constexpr int TwipsPerPixel = 15;

// The size of the window's screen, panels included.
[[nodiscard]] QSize screenInTwips(const QWidget &window);

// In pixels: what panels leave of the window's screen, without a title bar.
[[nodiscard]] QSize roomOnScreen(const QWidget &window);
// For a window that is not shown yet: it opens with this size in pixels, or with as much of it as
// the screen has room for.
void openWithSize(QWidget &window, QSize wanted);

// Rounded to the nearest pixel.
[[nodiscard]] constexpr int pixels(int twips)
{
    return (twips + TwipsPerPixel / 2) / TwipsPerPixel;
}
