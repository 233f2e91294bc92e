// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Screen.h"

#include <QScreen>
#include <QWidget>

QSize screenInTwips(const QWidget &window)
{
    return window.screen()->size() * TwipsPerPixel;
}
