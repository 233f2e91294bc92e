// SPDX-License-Identifier: GPL-3.0-or-later
// The queues of CUPS, the system's print server.
//
// A PDF file is handed over, and nothing drawn on QPrinter, because Qt's engine for CUPS also
// prints a document that was given up or not written to its end, and reports no error.
#pragma once

#include <QByteArray>

class QPrinter;

namespace PrintQueue {

// Hands a PDF file over to the queue of the printer, with its document name, paper, sides and
// copies. False where the queue does not take it.
[[nodiscard]] bool submit(const QPrinter &printer, const QByteArray &pdf);

} // namespace PrintQueue
