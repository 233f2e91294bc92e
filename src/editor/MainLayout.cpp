// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MainLayout.h"

#include <cmath>

namespace {

int wholeTwips(double twips)
{
    return static_cast<int>(std::lround(twips));
}

} // namespace

MainLayout mainLayout(int windowWidth, int windowHeight)
{
    MainLayout layout;
    layout.windowWidth = windowWidth;
    layout.numberWidth = 960;
    layout.columnWidths = {wholeTwips(windowWidth / 7.0), wholeTwips(windowWidth / 3.0),
                           wholeTwips(windowWidth / 2.315)};
    layout.gridHeight = windowHeight / 2;
    layout.frameTop = windowHeight / 2;
    layout.frameWidth = windowWidth - 200;
    layout.frameDefWidth = layout.frameWidth / 2 - 200;
    layout.frameSenLeft = layout.frameWidth / 2;
    layout.textWidth = layout.frameDefWidth - 500;
    layout.playLeft = layout.frameWidth - 2000;
    return layout;
}
