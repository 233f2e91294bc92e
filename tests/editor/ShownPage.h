// SPDX-License-Identifier: GPL-3.0-or-later
// What the grid shows of a list made by MainWindow::fill.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/EditorModes.h"
#include "editor/MainWindow.h"

#include <QTest>

const QStringList EmptyRow{QString(), QString(), QString(), QString()};

// The page from the entry `top` on, to the grid's last row.
inline void comparePage(MainWindow &main, int top)
{
    const int count = Module1::gVocabList().NumWords().toInt();
    for (int row = 1; row <= 24; ++row)
        QCOMPARE(main.row(row),
                 top + row - 1 <= count ? EditorModes::filledRow(top + row - 1) : EmptyRow);
}
