// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Screen.h"

#include <QScreen>
#include <QWidget>

QSize screenInTwips(const QWidget &window)
{
    return window.screen()->size() * TwipsPerPixel;
}

// The title bar's height is known only after the window was shown.
QSize roomOnScreen(const QWidget &window)
{
    constexpr int border = 8;
    constexpr int titleBar = 36;
    return window.screen()->availableSize() - QSize(border, titleBar);
}

void openWithSize(QWidget &window, QSize wanted)
{
    window.resize(wanted.boundedTo(roomOnScreen(window)));
}
