// SPDX-License-Identifier: GPL-3.0-or-later
// What the grid shows of a list made by MainWindow::fill.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/EditorModes.h"
#include "editor/MainWindow.h"

using namespace Qt::StringLiterals;

inline void compareRow(MainWindow &main, int row, const QStringList &expected, Caller caller)
{
    if (main.row(row) != expected)
        failTest(u"row %1 is \"%2\" instead of \"%3\""_s.arg(row).arg(main.row(row).join(u'|'),
                                                                      expected.join(u'|')),
                 caller);
}

// The page that begins with this entry, down to the last row of the grid.
inline void comparePage(MainWindow &main, int top, Caller caller = Caller::current())
{
    const int count = Module1::gVocabList().NumWords().toInt();
    for (int row = 1; row <= 24; ++row) {
        const int item = top + row - 1;
        compareRow(main, row,
                   item <= count ? EditorModes::filledRow(item) : EditorModes::emptyRow(), caller);
    }
}

// The page of a list without entries: the header, the item numbers, no mark.
inline void compareEmptyPage(MainWindow &main, Caller caller = Caller::current())
{
    compareRow(main, 0, {{}, u"Vocabulary Word"_s, u"Definition"_s, u"Sentence"_s}, caller);
    for (int row = 1; row <= 23; ++row)
        compareRow(main, row, EditorModes::numberedRow(row), caller);
    compareRow(main, 24, EditorModes::emptyRow(), caller);
    for (int column = 1; column <= 3; ++column)
        if (!main.grid().cellBold(0, column))
            failTest(u"the header is not bold"_s, caller);
    if (!main.markedRows(caller).isEmpty())
        failTest(u"a row is marked"_s, caller);
    if (main.grid().Row() != 1 || main.grid().Col() != 1)
        failTest(u"the first cell is not the current one"_s, caller);
}
