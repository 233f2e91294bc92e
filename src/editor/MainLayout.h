// SPDX-License-Identifier: GPL-3.0-or-later
// Where the main window puts its controls, computed from the screen's size. All in twips.
#pragma once

#include <array>

struct MainLayout
{
    int windowWidth = 0;
    int numberWidth = 0;               // of the item numbers' column
    std::array<int, 3> columnWidths{}; // of grid columns 1 to 3
    int gridHeight = 0;
    int frameTop = 0; // of Frame1
    int frameWidth = 0;
    int frameDefWidth = 0; // also of FrameSen
    int frameSenLeft = 0;
    int textWidth = 0; // of the definition and sentence boxes
    int playLeft = 0;
};

[[nodiscard]] MainLayout mainLayout(int windowWidth, int windowHeight);
