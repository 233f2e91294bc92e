// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/frmPrint.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/SystemPrinter.h"
#include "print/PrintJob.h"
#include "print/WordListPrint.h"
#include "print/ui_frmPrint.h"

#include <initializer_list>

using namespace Module1;

namespace {

const QString Portrait = QStringLiteral("Portrait");
const QString Landscape = QStringLiteral("Landscape");

} // namespace

frmPrint::frmPrint(SystemPrinter &printer, QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::frmPrint>()), m_printer(printer)
{
    m_ui->setupUi(this);
    connectHandlers();
}

frmPrint::~frmPrint() = default;

void frmPrint::connectHandlers()
{
    onClick(m_ui->optPortrait, &frmPrint::optPortrait_Click);
    onClick(m_ui->optLandscape, &frmPrint::optLandscape_Click);
    onClick(m_ui->optPrintAllWords, &frmPrint::optPrintAllWords_Click);
    onClick(m_ui->optSubset, &frmPrint::optSubset_Click);
    onClick(m_ui->chkPrintItemNumber, &frmPrint::chkPrintItemNumber_Click);
    onClick(m_ui->cmdPrint, &frmPrint::cmdPrint_Click);
    onClick(m_ui->cmdCancel, &frmPrint::cmdCancel_Click);
    connect(m_ui->lstPrinter, &QListWidget::itemSelectionChanged, this,
            guarded(this, &frmPrint::lstPrinter_Click));
    connectBoxes();
    connectPreview();
}

void frmPrint::Form_Load()
{
    fillPrinters();
    showMargins();
    if (FromWord == 0 || ToWord == 0) {
        FromWord = 1;
        ToWord = gVocabList().NumWords();
        enableRange(false);
    } else {
        enableRange(true);
        m_ui->txtFromWord->setText(FromWord.toText());
        m_ui->txtToWord->setText(ToWord.toText());
    }
    m_ui->chkPrintItemNumber->setChecked(PrintItemNumber);
    m_ui->vsc_Copies->setValue(m_printer.Copies.toInt());
    if (PrintOrientation != Portrait)
        m_ui->optLandscape->click();
    else
        m_ui->optPortrait->click();
    m_ui->lstPrinter->setFocus();
}

// Changes stay, however the dialog is closed.
bool frmPrint::Form_QueryUnload()
{
    takeTypedText();
    return true;
}

void frmPrint::Form_Terminate()
{
    m_ui->preview->dropPages();
}

void frmPrint::fillPrinters()
{
    QListWidget &list = *m_ui->lstPrinter;
    const QSignalBlocker filling(&list);
    const QStringList names = SystemPrinter::installed();
    list.clear();
    list.addItems(names);
    list.setCurrentRow(static_cast<int>(names.lastIndexOf(m_printer.DeviceName())));
}

void frmPrint::enableRange(bool enabled)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->txtFromWord, m_ui->txtToWord,
                                                             m_ui->lblFrom, m_ui->lblTo})
        control->setEnabled(enabled);
}

void frmPrint::lstPrinter_Click()
{
    QListWidgetItem *chosen = m_ui->lstPrinter->currentItem();
    if (!chosen)
        return;
    {
        // Ctrl+click would deselect the current printer.
        const QSignalBlocker marking(m_ui->lstPrinter);
        chosen->setSelected(true);
    }
    if (SystemPrinter::installed().contains(chosen->text()))
        m_printer.select(chosen->text());
    showPreview();
}

void frmPrint::optPortrait_Click()
{
    m_printer.setOrientation(SystemPrinter::Orientation::Portrait);
    PrintOrientation = Portrait;
    showPreview();
}

void frmPrint::optLandscape_Click()
{
    m_printer.setOrientation(SystemPrinter::Orientation::Landscape);
    PrintOrientation = Landscape;
    showPreview();
}

void frmPrint::optPrintAllWords_Click()
{
    FromWord = 1;
    ToWord = gVocabList().NumWords();
    enableRange(false);
    showPreview();
}

void frmPrint::optSubset_Click()
{
    enableRange(true);
}

void frmPrint::chkPrintItemNumber_Click()
{
    PrintItemNumber = m_ui->chkPrintItemNumber->isChecked();
    showPreview();
}

void frmPrint::cmdPrint_Click()
{
    takeTypedText();
    bool printed = false;
    tellPrinterError(m_printer, [this, &printed] {
        const PagePreview::Pause pause(*m_ui->preview); // no layout while the job prints
        printWordList(this, m_printer, WordListPrint::chosen());
        printed = true;
    });
    if (printed)
        close();
}

void frmPrint::cmdCancel_Click()
{
    close();
}
