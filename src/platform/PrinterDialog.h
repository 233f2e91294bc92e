// SPDX-License-Identifier: GPL-3.0-or-later
// The common printer dialog. Its properties stay from one opening to the next.
#pragma once

#include "platform/SystemPrinter.h"

class PrinterDialog
{
public:
    QString DialogTitle;

    Integer Copies = 1;
    SystemPrinter::Orientation Orientation = SystemPrinter::Orientation::Portrait;

    // Lets the person set up the printer and choose another one; the copies are kept here alone.
    // False where the person cancelled; the properties are as before then.
    [[nodiscard]] bool ShowPrinter(QWidget *parent, SystemPrinter &printer)
    {
        const auto copies = printer.showSetup(parent, DialogTitle, Copies);
        if (!copies)
            return false;
        Copies = *copies;
        Orientation = printer.orientation();
        return true;
    }
};
