// SPDX-License-Identifier: GPL-3.0-or-later
// The grid with its scroll bar: shows one page of the open list, scrolls it and marks a row.
//
// The entry that is chosen, picked or found, stays the list's current one and its row stays marked
// whatever the page. Without one a filled page leaves the list's position behind its last entry.
#pragma once

#include "editor/GridPage.h"

#include <QObject>

class MSFlexGrid;
class QScrollBar;
struct MainLayout;

class WordPage final : public QObject
{
    Q_OBJECT

public:
    WordPage(MSFlexGrid &grid, QScrollBar &bar);

    void place(const MainLayout &layout);

    // 0 = the entry is chosen no longer.
    void choose(Integer entry) { m_chosen = entry; }
    [[nodiscard]] bool isChosen() const { return m_chosen != 0; }
    // Makes the chosen entry the list's current one: other windows move the position, too.
    void returnToChosen();

    // What fills a page throws Overflow where the list is too long for 16 bits.
    void FillGrid(Integer top);
    void NumberRows(Integer top);
    // Numbered rows without an entry.
    void showNoEntries();
    // Shows the page that the scroll bar stands for at `value`, also if it has that value already.
    void scrollTo(Integer value);
    [[nodiscard]] Integer FirstShownItem() const { return m_page.first; }
    [[nodiscard]] int itemIn(int row) const { return m_page.itemIn(row); }

    // The row of the current cell.
    void makeCurrent(int row);
    void HighlightRow();
    void UnhighlightRow();
    void markRow(Integer row);
    // Marks the row of the next new word on its page.
    void MarkNewRow();

private:
    void VScroll1_Change();
    void moveCurrentRow(GridMove move);
    void turnPage(int rows);
    void emptyGrid();
    void setScrollRange();

    MSFlexGrid &m_grid;
    QScrollBar &m_bar;
    GridPage m_page;
    Integer m_chosen; // 0 = none
};
