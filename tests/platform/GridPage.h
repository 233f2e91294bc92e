// SPDX-License-Identifier: GPL-3.0-or-later
// A visible grid with the size of the one in the main window.
#pragma once

#include "platform/MSFlexGrid.h"

#include <QApplication>
#include <QHelpEvent>
#include <QImage>
#include <QTextDocument>
#include <QToolTip>

using namespace Qt::StringLiterals;

inline constexpr int Rows = 25;
inline constexpr int VisibleRows = 24;

class GridPage
{
public:
    GridPage()
    {
        grid.setSize(Rows, 4);
        grid.setVisibleRows(VisibleRows);
        grid.resize(600, 480);
        grid.show();
    }

    [[nodiscard]] QPoint centreOf(int row, int column) const
    {
        return grid.visualRect(grid.model()->index(row, column)).center();
    }

    // The text of the tool tip of a cell; empty if there is none.
    QString toolTip(int row, int column)
    {
        // Qt hides the tool tip before it only after some time.
        for (QWidget *window : QApplication::topLevelWidgets())
            if (window->objectName() == "qtooltip_label"_L1)
                window->hide();
        const QPoint spot = centreOf(row, column);
        QHelpEvent event(QEvent::ToolTip, spot, grid.viewport()->mapToGlobal(spot));
        QCoreApplication::sendEvent(grid.viewport(), &event);
        if (!QToolTip::isVisible())
            return {};
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        return shown.toPlainText();
    }

    QImage cellImage(int row, int column)
    {
        return grid.grab(grid.visualRect(grid.model()->index(row, column))).toImage();
    }

    MSFlexGrid grid;
};
