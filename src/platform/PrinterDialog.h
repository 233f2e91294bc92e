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

    // Lets the person set up the printer and choose another one. False where the person cancelled;
    // the properties are as before then.
    [[nodiscard]] bool ShowPrinter(QWidget *parent, SystemPrinter &printer)
    {
        if (!printer.showSetup(parent, DialogTitle))
            return false;
        Copies = printer.Copies;
        Orientation = printer.orientation();
        return true;
    }
};
