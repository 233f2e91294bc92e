// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
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

// Made at the first printing command: no start has to wait for the system's printers.
SystemPrinter &frmMain::printer()
{
    if (!m_printer)
        m_printer = std::make_unique<SystemPrinter>();
    return *m_printer;
}

void frmMain::mnuPrint_Click()
{
    SystemPrinter &printer = this->printer();
    tellPrinterErrorOnly(printer, [this, &printer] {
        printer.Copies = m_printerDialog.Copies;
        printer.setOrientation(m_printerDialog.Orientation);
        setScale(printer);
        frmPrint dialog(printer, this);
        dialog.exec();
    });
}

void frmMain::mnuPrinterSetup_Click()
{
    m_printerDialog.DialogTitle = QStringLiteral("Printer Setup");
    if (m_printerDialog.ShowPrinter(this, printer()))
        printer().setOrientation(m_printerDialog.Orientation);
}

// frmPrint opens with the orientation that was chosen last, here as well.
void frmMain::mnuPageSetup_Click()
{
    if (!printer().showPageSetup(this))
        return;
    Module1::PrintOrientation = printer().orientation() == SystemPrinter::Orientation::Landscape
                                    ? QStringLiteral("Landscape")
                                    : QStringLiteral("Portrait");
}

void frmMain::mnuPrintWholeList_Click()
{
    SystemPrinter &printer = this->printer();
    setScale(printer);
    tellPrinterError(
        printer, [this, &printer] { printWordList(this, printer, WordListPrint::wholeList()); });
}
