// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/GridPlace.h"
#include "editor/ui_frmMain.h"
#include "runtime/Blanks.h"

#include <QSignalBlocker>

#include <algorithm>

using namespace Module1;

namespace {

constexpr int LargeChange = GridPlace::Rows;

} // namespace

void frmMain::MSFlexGrid1_Click(int row, int column)
{
    if (row < 1)
        return;
    bool isNumber = false;
    const int item = withoutOuterBlanks(m_ui->MSFlexGrid1->text(row, 0)).toInt(&isNumber);
    if (!isNumber || item < 1 || item > gVocabList().NumWords().toInt())
        return;
    gVocabList().CurrentWord(item);
    m_ui->MSFlexGrid1->setCurrent(row, 1);
    gWordSelected = true;
    gNewWord = false;
    showEntry();
    showMode(Mode::Editing);
    switch (column) {
    case 2:
        m_ui->txtDefinition->setFocus();
        break;
    case 3:
        m_ui->txtSentence->setFocus();
        break;
    default:
        m_ui->txtWord->setFocus();
    }
    UnhighlightRow();
    markRow(row);
}

void frmMain::moveCurrentRow(GridMove move)
{
    const int entries = gVocabList().NumWords().toInt();
    if (entries == 0)
        return;
    const int shown = FirstShownItem().toInt();
    const GridPlace place = placeAfter(move, {shown, m_ui->MSFlexGrid1->Row()}, entries);
    if (place.first != shown)
        scrollTo(place.first);
    m_ui->MSFlexGrid1->setCurrent(place.row, 1);
}

void frmMain::turnPage(int rows)
{
    const int entries = gVocabList().NumWords().toInt();
    if (entries == 0)
        return;
    const int shown = FirstShownItem().toInt();
    const int first = firstAfterWheel(shown, rows, entries);
    if (first != shown)
        scrollTo(first);
}

void frmMain::VScroll1_Change()
{
    QScrollBar &bar = *m_ui->VScroll1;
    bar.setSingleStep(1);
    bar.setPageStep(LargeChange);
    const Integer count = gVocabList().NumWords();
    if (count == 0)
        return;
    if (bar.value() == 0) {
        FillGrid(1);
        return;
    }
    if (bar.value() >= GridPlace::Rows && bar.value() > count.toInt()) {
        const QSignalBlocker onePageOnly(bar);
        bar.setValue(count.toInt());
    }
    FillGrid(bar.value());
}

void frmMain::FillGrid(Integer top)
{
    cVocabList &list = gVocabList();
    const Integer count = list.NumWords();
    gLastItem = count > 0 ? std::min(top + LargeChange, count) : Integer(1);
    top = std::max(top, Integer(1));
    emptyGrid();
    list.CurrentWord(top);
    MSFlexGrid &grid = *m_ui->MSFlexGrid1;
    for (Integer item = top; item <= gLastItem; ++item) {
        const Integer row = item - top + 1;
        grid.setText(row.toInt(), 0, item.toText());
        if (item <= count) {
            grid.setText(row.toInt(), 1, list.Word());
            grid.setText(row.toInt(), 2, list.Definition());
            grid.setText(row.toInt(), 3, list.Sentence());
        }
        gRowItem.at(static_cast<std::size_t>(row.toInt() - 1)) = item;
        list.CurrentWord(list.CurrentWord() + 1);
    }

    returnToShownEntry();
    if (m_shownEntry >= top && m_shownEntry <= gLastItem)
        markRow(m_shownEntry - top + 1);
}

void frmMain::NumberRows(Integer top)
{
    top = std::max(top, Integer(1));
    for (int row = 1; row <= GridPlace::Rows; ++row)
        m_ui->MSFlexGrid1->setText(row, 0, (top + row - 1).toText());
}

void frmMain::emptyGrid()
{
    MSFlexGrid &grid = *m_ui->MSFlexGrid1;
    grid.Clear();
    grid.setText(0, 1, QStringLiteral("Vocabulary Word"));
    grid.setText(0, 2, QStringLiteral("Definition"));
    grid.setText(0, 3, QStringLiteral("Sentence"));
    for (int column = 1; column <= 3; ++column)
        grid.setCellBold(0, column, true);
    grid.setCurrent(1, 1);
    gHighlightRow = 0;
    setScrollRange(); // fails for the longest list there is, whose grid stays empty
}

// Shows the page that the scroll bar stands for at `value`, also if it has that value already.
// Throws what filling the page throws.
void frmMain::scrollTo(Integer value)
{
    setScrollRange();
    {
        const QSignalBlocker blocker(m_ui->VScroll1);
        m_ui->VScroll1->setValue(value.toInt());
    }
    VScroll1_Change();
}

void frmMain::setScrollRange()
{
    // A value that the new range cuts off asks for no other page.
    const QSignalBlocker blocker(m_ui->VScroll1);
    m_ui->VScroll1->setRange(0, (gVocabList().NumWords() + 1).toInt());
}

Integer frmMain::FirstShownItem() const
{
    return withoutOuterBlanks(m_ui->MSFlexGrid1->text(1, 0)).toInt();
}

void frmMain::HighlightRow()
{
    for (int column = 1; gHighlightRow > 0 && column <= 3; ++column) {
        m_ui->MSFlexGrid1->setCellBackColour(gHighlightRow.toInt(), column, MSFlexGrid::Yellow);
        m_ui->MSFlexGrid1->setCellBold(gHighlightRow.toInt(), column, true);
    }
}

void frmMain::UnhighlightRow()
{
    for (int column = 1; gHighlightRow > 0 && column <= 3; ++column) {
        m_ui->MSFlexGrid1->setCellBackColour(gHighlightRow.toInt(), column, MSFlexGrid::White);
        m_ui->MSFlexGrid1->setCellBold(gHighlightRow.toInt(), column, false);
    }
}

void frmMain::markRow(Integer row)
{
    gHighlightRow = row;
    HighlightRow();
}

void frmMain::showNewWordRow()
{
    const Integer count = gVocabList().NumWords();
    if (count > 0)
        scrollTo(firstOfNewWordPage(count.toInt()));
    MarkNewRow();
}

void frmMain::MarkNewRow()
{
    const Integer count = gVocabList().NumWords();
    UnhighlightRow();
    const int row = std::min(count.toInt() + 1, GridPlace::Rows);
    if (count > 0)
        m_ui->MSFlexGrid1->setText(row, 0, (count + 1).toText());
    markRow(row);
}
