// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/GridPage.h"

#include <algorithm>

namespace {

int firstOfLastPage(int entries)
{
    return std::max(1, entries - GridPage::Rows + 1);
}

} // namespace

int GridPage::itemIn(int row) const
{
    return row >= 1 && row <= numberedRows ? first + row - 1 : 0;
}

int GridPage::rowOf(int entry) const
{
    return first > 0 && entry >= first && entry <= last ? entry - first + 1 : 0;
}

void GridPage::numberFrom(int top)
{
    first = std::max(top, 1);
    numberUpTo(Rows);
}

void GridPage::numberUpTo(int row)
{
    numberedRows = std::max(numberedRows, row);
}

GridPage pageFrom(Integer top, Integer entries)
{
    GridPage page;
    page.last = entries > 0 ? std::min(top + GridPage::Rows, entries).toInt() : 1;
    const int first = std::max(top.toInt(), 1);
    if (first <= page.last) {
        page.first = first;
        page.numberedRows = page.last - first + 1;
    }
    return page;
}

Integer scrollMaximum(Integer entries)
{
    return entries + 1;
}

int scrollValue(int value, int entries)
{
    return value < GridPage::Rows ? value : std::min(value, entries);
}

GridPlace placeAfter(GridMove move, GridPlace from, int entries)
{
    const int lastPage = firstOfLastPage(entries);
    int first = from.first == 0 ? lastPage : from.first;
    const int lastFirst = std::max(first, lastPage);
    // In the header the current row is above the first entry, in an empty row below the last one.
    const int highest = move == GridMove::RowDown ? first - 1 : first;
    const int lowest = move == GridMove::RowUp ? entries + 1 : entries;
    int entry = from.first == 0 ? entries + 1 : std::clamp(first + from.row - 1, highest, lowest);
    switch (move) {
    case GridMove::RowUp:
        --entry;
        break;
    case GridMove::RowDown:
        ++entry;
        break;
    case GridMove::PageUp:
        first -= GridPage::Rows;
        entry -= GridPage::Rows;
        break;
    case GridMove::PageDown:
        first += GridPage::Rows;
        entry += GridPage::Rows;
        break;
    case GridMove::First:
        first = entry = 1;
        break;
    case GridMove::Last:
        first = lastPage;
        entry = entries;
        break;
    }
    entry = std::clamp(entry, 1, entries);
    first = std::clamp(first, 1, lastFirst);
    // The page shows the current row.
    first = std::clamp(first, std::max(1, entry - GridPage::Rows + 1), entry);
    return {first, entry - first + 1};
}

GridPlace placeOfNewWord(int entries)
{
    const int first = firstOfLastPage(entries + 1);
    return {first, entries + 1 - first + 1};
}

GridPlace placeOfHit(int hit, int entries)
{
    return entries < GridPage::Rows ? GridPlace{1, hit} : GridPlace{hit, 1};
}

int firstAfterWheel(int first, int rows, int entries)
{
    const int lastPage = firstOfLastPage(entries);
    if (first == 0)
        return lastPage;
    return std::clamp(first + rows, 1, std::max(first, lastPage));
}

int firstAfterDelete(int first, int entries)
{
    return std::min(first, entries);
}

// Not the page behind the list's end, which would be empty.
int firstAfterImport(int position, int first, int entries)
{
    return position <= entries ? position : std::min(first, entries);
}
