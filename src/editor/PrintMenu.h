// SPDX-License-Identifier: GPL-3.0-or-later
// The File menu's printing commands.
#pragma once

#include "platform/PrinterDialog.h"

#include <QObject>

#include <memory>

namespace Ui {
class frmMain;
}

class PrintMenu final : public QObject
{
    Q_OBJECT

public:
    // The dialogs open over the window.
    PrintMenu(const Ui::frmMain &ui, QWidget *window);

Q_SIGNALS:
    // A command that prints begins.
    void begun();
    // A command has printed: the name of the printer or of the file.
    void printed(const QString &target);

private:
    void mnuPrint_Click();
    void mnuPrinterSetup_Click();
    void mnuPageSetup_Click();
    void mnuPrintWholeList_Click();
    [[nodiscard]] SystemPrinter &printer();

    QWidget *m_window;
    PrinterDialog m_printerDialog;
    std::unique_ptr<SystemPrinter> m_printer; // made for the first command
};
