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

    // Lets the person set up the printer or choose another one. The copies are kept only here.
    // False if the dialog is cancelled; the properties are unchanged then.
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
