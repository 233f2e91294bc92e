// SPDX-License-Identifier: GPL-3.0-or-later
// A grid that shows one page of a list, without a scroll bar. Row 0 is the header, column 0 holds
// the item numbers.
//
// Rows and columns count from 0, sizes are in twips. The grid does not scroll: for the wheel and
// the keys it emits signals, and its owner fills the page. The space key clicks the current row.
//
// For assistive tools the texts of row 0 and column 0 are the headers of columns and rows as well,
// and a cell that they select is clicked.
#pragma once

#include "platform/GridMove.h"
#include "platform/WheelSteps.h"

#include <QTableWidget>

class MSFlexGrid final : public QTableWidget
{
    Q_OBJECT

public:
    enum CellColour { White = 16777215, Yellow = 65535 };

    explicit MSFlexGrid(QWidget *parent = nullptr);

    // New rows and columns are empty.
    void setSize(int rows, int columns);
    // Empties every cell, header included, and resets bold and background.
    void Clear();

    void setText(int row, int column, const QString &text);
    // Empty outside the grid.
    [[nodiscard]] QString text(int row, int column) const;
    void setCellBold(int row, int column, bool bold);
    [[nodiscard]] bool cellBold(int row, int column) const;
    void setCellBackColour(int row, int column, CellColour colour);
    [[nodiscard]] CellColour cellBackColour(int row, int column) const;

    void setColWidth(int column, int twips);
    [[nodiscard]] int ColWidth(int column) const;
    // The first `rows` rows, header included, fill the grid's height exactly, and the size of the
    // text follows. Further rows are below the visible area.
    void setVisibleRows(int rows);
    [[nodiscard]] int RowHeight(int row) const;

    // The current cell.
    void setCurrent(int row, int column) { setCurrentCell(row, column); }
    [[nodiscard]] int Row() const { return currentRow(); }
    [[nodiscard]] int Col() const { return currentColumn(); }

Q_SIGNALS:
    void Click(int row, int column);
    void moved(GridMove move);
    void wheeled(int rows); // downwards is positive

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags
    selectionCommand(const QModelIndex &index, const QEvent *event) const override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;

private:
    void layOutRows();
    [[nodiscard]] QTableWidgetItem &cell(int row, int column) const;
    [[nodiscard]] bool isCut(const QModelIndex &index) const;

    int m_visibleRows = 1;
    WheelSteps m_wheel;
};
