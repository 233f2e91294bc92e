// SPDX-License-Identifier: GPL-3.0-or-later
// What the printing commands have in common: progress, Cancel and the report of errors.
#pragma once

#include <functional>

class QWidget;
class SystemPrinter;
struct WordListPrint;

enum class PrintEnd {
    HandedOver, // to the printer's queue, or written to the file
    Cancelled,  // in the choice of a file or while printing
    EmptyList
};

// Prints entries of the open list, or shows a message if the list is empty. A job that takes a
// while shows its progress over the window, with Cancel.
[[nodiscard]] PrintEnd printWordList(QWidget *window, SystemPrinter &printer,
                                     const WordListPrint &job);

// Runs the action. After RunTimeError PrinterFault a message names the printer; other errors are
// not caught.
void tellPrinterError(const SystemPrinter &printer, const std::function<void()> &action);

// As above, but any other RunTimeError ends the action without a message.
void tellPrinterErrorOnly(const SystemPrinter &printer, const std::function<void()> &action);
