// SPDX-License-Identifier: GPL-3.0-or-later
// The queues of CUPS, the system's print server.
//
// The program hands over PDF files instead of drawing on QPrinter, because Qt's engine for CUPS
// also prints a document that was cancelled or not written completely, and reports no errors.
#pragma once

#include <QByteArray>

class QPrinter;

namespace PrintQueue {

// Sends a PDF file to the printer's queue with the document name, paper, sides and copies that the
// printer is set to. False if the queue does not accept it.
[[nodiscard]] bool submit(const QPrinter &printer, const QByteArray &pdf);

} // namespace PrintQueue
