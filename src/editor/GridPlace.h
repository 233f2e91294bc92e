// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the list that the grid shows and the current row on it, and where keys and the wheel
// lead from there: never above the first entry, never behind the last full page.
//
// A page that was brought behind the last full one by the scroll bar stays until it is left.
#pragma once

#include "platform/GridMove.h"

struct GridPlace
{
    static constexpr int Rows = 23; // of a page

    int first = 1; // entry in row 1; 0 = the page shows none
    int row = 1;   // of the current cell, 0 being the header

    bool operator==(const GridPlace &) const = default;
};

// For a list of one entry or more.
[[nodiscard]] GridPlace placeAfter(GridMove move, GridPlace from, int entries);
// The first entry of the page that ends with the row of the next new word.
[[nodiscard]] int firstOfNewWordPage(int entries);
// The first entry of the page after the wheel was turned by so many rows; downwards is positive.
[[nodiscard]] int firstAfterWheel(int first, int rows, int entries);
