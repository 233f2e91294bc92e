// SPDX-License-Identifier: GPL-3.0-or-later
// Print commands as the person gives them: with progress, Cancel and the printer's errors.
#pragma once

#include <functional>

class QWidget;
class SystemPrinter;
struct WordListPrint;

// Prints entries of the open list. Tells where the list is empty; shows progress over the window,
// with Cancel, when it takes a while.
void printWordList(QWidget *window, SystemPrinter &printer, const WordListPrint &job);

// Runs the action. A printer's error ends it and is told with the printer's name; other errors
// pass.
void tellPrinterError(const SystemPrinter &printer, const std::function<void()> &action);
