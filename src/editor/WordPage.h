// SPDX-License-Identifier: GPL-3.0-or-later
// The grid with its scroll bar: shows one page of the open list, scrolls it and marks a row.
//
// While an entry is chosen (picked or found), every page that is filled leaves it the list's
// current entry and marks its row. Otherwise the list's position is behind the page's last entry.
#pragma once

#include "editor/GridPage.h"

#include <QObject>

class MSFlexGrid;
class QLabel;
class QScrollBar;
struct MainLayout;

class WordPage final : public QObject
{
    Q_OBJECT

public:
    WordPage(MSFlexGrid &grid, QScrollBar &bar);

    void place(const MainLayout &layout);

    // 0 = none.
    void choose(Integer entry) { m_chosen = entry; }
    [[nodiscard]] Integer chosen() const { return m_chosen; }
    [[nodiscard]] bool isChosen() const { return m_chosen != 0; }
    // Makes the chosen entry the list's current one again: other windows move the position, too.
    void returnToChosen();

    // Filling a page throws Overflow where the list is too long for 16 bits.
    void FillGrid(Integer top);
    void NumberRows(Integer top);
    // Numbered rows without an entry.
    void showNoEntries();
    // Fills the page that belongs to the value, also if the scroll bar has it already.
    void scrollTo(Integer value);
    [[nodiscard]] Integer FirstShownItem() const { return m_page.first; }
    [[nodiscard]] int itemIn(int row) const { return m_page.itemIn(row); }

    // Puts the current cell there.
    void makeCurrent(int row);
    void HighlightRow();
    void UnhighlightRow();
    void markRow(Integer row);
    // Marks the row of the next new word, whose page is shown.
    void MarkNewRow();

private:
    void VScroll1_Change();
    void moveCurrentRow(GridMove move);
    void turnPage(int rows);
    void emptyGrid();
    void setScrollRange();
    void placeHint();

    MSFlexGrid &m_grid;
    QScrollBar &m_bar;
    GridPage m_page;
    Integer m_chosen; // 0 = none
    QLabel *m_hint;   // what to do next, in place of the entries of an empty list
};
