// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/WordPage.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainLayout.h"
#include "editor/TallArea.h"
#include "platform/Guarded.h"
#include "platform/MSFlexGrid.h"
#include "platform/Screen.h"

#include <QLabel>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

using namespace Module1;

namespace {

// Columns of the grid.
enum Column { Number, Word, Definition, Sentence, Columns };

void paintMarkedRow(MSFlexGrid &grid, MSFlexGrid::CellColour colour)
{
    for (int column = Word; gHighlightRow > 0 && column < Columns; ++column) {
        grid.setCellBackColour(gHighlightRow.toInt(), column, colour);
        grid.setCellBold(gHighlightRow.toInt(), column, colour == MSFlexGrid::Yellow);
    }
}

} // namespace

WordPage::WordPage(MSFlexGrid &grid, QScrollBar &bar)
    : m_grid(grid), m_bar(bar), m_hint(new QLabel(grid.viewport()))
{
    m_hint->setObjectName(QStringLiteral("lblEmptyList"));
    m_hint->setText(QStringLiteral("This list has no words yet.\n"
                                   "New Word (Alt+N) adds one.\n"
                                   "File > Open (Ctrl+O) opens a list; there are samples to try."));
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_grid.setSize(GridPage::GridRows, Columns);
    m_grid.setVisibleRows(1 + GridPage::Rows);
    connect(&m_grid, &MSFlexGrid::moved, this, guarded(this, &WordPage::moveCurrentRow));
    connect(&m_grid, &MSFlexGrid::wheeled, this, guarded(this, &WordPage::turnPage));
    connect(&m_bar, &QScrollBar::valueChanged, this, guarded(this, &WordPage::VScroll1_Change));
}

void WordPage::place(const MainLayout &layout)
{
    const int width = pixels(layout.windowWidth);
    const int height = pixels(layout.gridHeight);
    const int barWidth = m_bar.sizeHint().width();
    m_grid.setGeometry(0, 0, width - barWidth, height);
    m_bar.setGeometry(width - barWidth, 0, barWidth, height);
    // The numbers have what the other columns leave, and on a tall screen larger type.
    int left = width - barWidth;
    for (int column = Word; column < Columns; ++column) {
        m_grid.setColWidth(column, layout.columnWidths[static_cast<std::size_t>(column - Word)]);
        left -= m_grid.columnWidth(column);
    }
    constexpr int margin = 12;
    const int longest = m_grid.fontMetrics().horizontalAdvance(QStringLiteral("32767")) + margin;
    m_grid.setColumnWidth(Number, std::min(std::max(pixels(layout.numberWidth), longest), left));
    gRowHeight = m_grid.RowHeight(1);
    placeHint();
}

// In the middle of the rows below the first one, which takes the new word.
void WordPage::placeHint()
{
    fitType(*m_hint, m_grid.height());
    m_hint->adjustSize();
    const QRect rows = m_grid.viewport()->rect().adjusted(0, m_grid.rowViewportPosition(2), 0, 0);
    QRect place(QPoint(), m_hint->size().boundedTo(rows.size()));
    place.moveCenter(rows.center());
    m_hint->setGeometry(place);
}

void WordPage::returnToChosen()
{
    if (isChosen())
        gVocabList().CurrentWord(m_chosen);
}

void WordPage::FillGrid(Integer top)
{
    cVocabList &list = gVocabList();
    const Integer count = list.NumWords();
    const GridPage page = pageFrom(top, count);
    gLastItem = page.last;
    emptyGrid();
    m_page = page;
    list.CurrentWord(std::max(top, Integer(1)));
    for (int row = 1; row <= page.numberedRows; ++row) {
        const Integer item = page.itemIn(row);
        m_grid.setText(row, Number, item.toText());
        if (item <= count) {
            m_grid.setText(row, Word, list.Word());
            m_grid.setText(row, Definition, list.Definition());
            m_grid.setText(row, Sentence, list.Sentence());
        }
        gRowItem.at(static_cast<std::size_t>(row - 1)) = item;
        list.CurrentWord(list.CurrentWord() + 1);
    }
    returnToChosen();
    markRow(page.rowOf(m_chosen.toInt()));
}

void WordPage::NumberRows(Integer top)
{
    m_page.numberFrom(top.toInt());
    for (int row = 1; row <= GridPage::Rows; ++row)
        m_grid.setText(row, Number, QString::number(m_page.itemIn(row)));
}

void WordPage::showNoEntries()
{
    emptyGrid();
    gLastItem = 1;
    NumberRows(1);
}

void WordPage::emptyGrid()
{
    m_page = {};
    m_grid.Clear();
    m_grid.setText(0, Word, QStringLiteral("Vocabulary Word"));
    m_grid.setText(0, Definition, QStringLiteral("Definition"));
    m_grid.setText(0, Sentence, QStringLiteral("Sentence"));
    for (int column = Word; column < Columns; ++column)
        m_grid.setCellBold(0, column, true);
    makeCurrent(1);
    gHighlightRow = 0;
    m_hint->setVisible(gVocabList().NumWords() == 0);
    setScrollRange(); // throws for the longest list, whose grid stays empty
}

void WordPage::scrollTo(Integer value)
{
    setScrollRange();
    {
        const QSignalBlocker blocker(m_bar);
        m_bar.setValue(value.toInt());
    }
    VScroll1_Change();
}

void WordPage::setScrollRange()
{
    // No page is filled where the new range changes the value.
    const QSignalBlocker blocker(m_bar);
    m_bar.setRange(0, scrollMaximum(gVocabList().NumWords()).toInt());
}

void WordPage::VScroll1_Change()
{
    m_bar.setSingleStep(1);
    m_bar.setPageStep(GridPage::Rows);
    const int count = gVocabList().NumWords().toInt();
    if (count == 0)
        return;
    {
        const QSignalBlocker onePageOnly(m_bar);
        m_bar.setValue(scrollValue(m_bar.value(), count));
    }
    FillGrid(std::max(1, m_bar.value()));
}

void WordPage::moveCurrentRow(GridMove move)
{
    const int count = gVocabList().NumWords().toInt();
    if (count == 0)
        return;
    const GridPlace place = placeAfter(move, {m_page.first, m_grid.Row()}, count);
    if (place.first != m_page.first)
        scrollTo(place.first);
    makeCurrent(place.row);
}

void WordPage::turnPage(int rows)
{
    const int count = gVocabList().NumWords().toInt();
    if (count == 0)
        return;
    const int first = firstAfterWheel(m_page.first, rows, count);
    if (first != m_page.first)
        scrollTo(first);
}

void WordPage::makeCurrent(int row)
{
    m_grid.setCurrent(row, Word);
}

void WordPage::HighlightRow()
{
    paintMarkedRow(m_grid, MSFlexGrid::Yellow);
}

void WordPage::UnhighlightRow()
{
    paintMarkedRow(m_grid, MSFlexGrid::White);
}

void WordPage::markRow(Integer row)
{
    gHighlightRow = row;
    HighlightRow();
}

void WordPage::MarkNewRow()
{
    const Integer count = gVocabList().NumWords();
    UnhighlightRow();
    const int row = placeOfNewWord(count.toInt()).row;
    if (count > 0) {
        m_page.numberUpTo(row);
        m_grid.setText(row, Number, (count + 1).toText());
    }
    markRow(row);
}
