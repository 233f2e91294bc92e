// SPDX-License-Identifier: GPL-3.0-or-later
// The page of the list that the grid shows, and the pages that the scroll bar, keys, the wheel and
// the editor's commands lead to.
//
// Entries and rows count from 1; row 0 is the header. The scroll bar goes to the page that begins
// with the last entry, and with fewer than 22 entries to an empty page behind it. Keys and the
// wheel stop at the last full page.
#pragma once

#include "platform/GridMove.h"
#include "runtime/Integer.h"

struct GridPage
{
    static constexpr int Rows = 23; // of a full page
    // With the header, and one row below the grid's edge that shows an entry as well.
    static constexpr int GridRows = 1 + Rows + 1;

    int first = 0;        // item in row 1; 0 = the page is empty
    int last = 0;         // item in the last row that was filled
    int numberedRows = 0; // rows with an item number, filled or not

    bool operator==(const GridPage &) const = default;

    // 0 where the row has no number.
    [[nodiscard]] int itemIn(int row) const;
    // 0 where no row is filled with the entry.
    [[nodiscard]] int rowOf(int entry) const;
    // Numbers all rows of a full page.
    void numberFrom(int top);
    void numberUpTo(int row);
};

// The page that begins with the item `top`, 0 being 1. For an empty list it is one row that has
// only a number. Throws Overflow where a full page does not fit into 16 bits.
[[nodiscard]] GridPage pageFrom(Integer top, Integer entries);

// The scroll bar's maximum; its minimum is 0. Throws Overflow for the longest list.
[[nodiscard]] Integer scrollMaximum(Integer entries);
// The value that the scroll bar keeps when it is moved to this one.
[[nodiscard]] int scrollValue(int value, int entries);

// A row on a page.
struct GridPlace
{
    int first = 1; // item in row 1; 0 = the page is empty
    int row = 1;

    bool operator==(const GridPlace &) const = default;
};

// Where a key leads from the current row, in a list that is not empty.
[[nodiscard]] GridPlace placeAfter(GridMove move, GridPlace from, int entries);
// The row of the next new word.
[[nodiscard]] GridPlace placeOfNewWord(int entries);
[[nodiscard]] GridPlace placeOfHit(int hit, int entries);

// The first item of the next page, `first` being that of the page shown.
[[nodiscard]] int firstAfterWheel(int first, int rows, int entries); // downwards is positive
[[nodiscard]] int firstAfterDelete(int first, int entries);
// `position` was the current one before the import.
[[nodiscard]] int firstAfterImport(int position, int first, int entries);
