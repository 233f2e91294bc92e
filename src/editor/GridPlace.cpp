// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/GridPlace.h"

#include <algorithm>

namespace {

int firstOfLastPage(int entries)
{
    return std::max(1, entries - GridPlace::Rows + 1);
}

} // namespace

GridPlace placeAfter(GridMove move, GridPlace from, int entries)
{
    const int lastPage = firstOfLastPage(entries);
    int first = from.first == 0 ? lastPage : from.first;
    const int lastFirst = std::max(first, lastPage);
    // The header is above the page's first entry. An empty row or page is behind the last one.
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
        first -= GridPlace::Rows;
        entry -= GridPlace::Rows;
        break;
    case GridMove::PageDown:
        first += GridPlace::Rows;
        entry += GridPlace::Rows;
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
    // The current row is in sight.
    first = std::clamp(first, std::max(1, entry - GridPlace::Rows + 1), entry);
    return {first, entry - first + 1};
}

int firstOfNewWordPage(int entries)
{
    return firstOfLastPage(entries + 1);
}

int firstAfterWheel(int first, int rows, int entries)
{
    const int lastPage = firstOfLastPage(entries);
    if (first == 0)
        return lastPage;
    return std::clamp(first + rows, 1, std::max(first, lastPage));
}
