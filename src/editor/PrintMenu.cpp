// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PrintMenu.h"

#include "core/Module1.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/SystemPrinter.h"
#include "print/PrintJob.h"
#include "print/WordListPrint.h"
#include "print/frmPrint.h"

namespace {

void setScale(Printer &printer)
{
    printer.ScaleLeft = 0;
    printer.ScaleTop = 0;
    printer.ScaleMode = Printer::Scale::Inches;
}

} // namespace

PrintMenu::PrintMenu(const Ui::frmMain &ui, QWidget *window) : m_window(window)
{
    onClick(ui.mnuPageSetup, this, &PrintMenu::mnuPageSetup_Click);
    onClick(ui.mnuPrinterSetup, this, &PrintMenu::mnuPrinterSetup_Click);
    onClick(ui.mnuPrint, this, &PrintMenu::mnuPrint_Click);
    onClick(ui.mnuPrintWholeList, this, &PrintMenu::mnuPrintWholeList_Click);
}

// So that the start does not wait for the system's printers.
SystemPrinter &PrintMenu::printer()
{
    if (!m_printer)
        m_printer = std::make_unique<SystemPrinter>();
    return *m_printer;
}

void PrintMenu::mnuPrint_Click()
{
    Q_EMIT begun();
    SystemPrinter &printer = this->printer();
    tellPrinterErrorOnly(printer, [this, &printer] {
        printer.Copies = m_printerDialog.Copies;
        printer.setOrientation(m_printerDialog.Orientation);
        setScale(printer);
        frmPrint dialog(printer, m_window);
        connect(&dialog, &frmPrint::handedOver, this,
                [this, &printer] { Q_EMIT printed(printer.target()); });
        dialog.exec();
    });
}

void PrintMenu::mnuPrinterSetup_Click()
{
    m_printerDialog.DialogTitle = QStringLiteral("Printer Setup");
    if (m_printerDialog.ShowPrinter(m_window, printer()))
        printer().setOrientation(m_printerDialog.Orientation);
}

// frmPrint opens with the orientation that was chosen last, here as well.
void PrintMenu::mnuPageSetup_Click()
{
    if (!printer().showPageSetup(m_window))
        return;
    Module1::PrintOrientation = printer().orientation() == SystemPrinter::Orientation::Landscape
                                    ? QStringLiteral("Landscape")
                                    : QStringLiteral("Portrait");
}

void PrintMenu::mnuPrintWholeList_Click()
{
    Q_EMIT begun();
    SystemPrinter &printer = this->printer();
    setScale(printer);
    tellPrinterError(printer, [this, &printer] {
        const PrintEnd end = printWordList(m_window, printer, WordListPrint::wholeList());
        if (end == PrintEnd::HandedOver)
            Q_EMIT printed(printer.target());
    });
}
