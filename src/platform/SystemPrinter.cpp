// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SystemPrinter.h"

#include "platform/Paths.h"
#include "platform/PrintDocument.h"
#include "platform/PrintMetrics.h"
#include "platform/PrintQueue.h"
#include "runtime/BinaryFile.h"
#include "runtime/RunTimeError.h"

#include <QDialogButtonBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QTemporaryDir>

#include <initializer_list>
#include <utility>

namespace {

// The border that printing to a file leaves empty, in inches. It is that of many printers: text on
// the edge of the sheet would be lost when the file is printed.
constexpr double FileBorder = 0.25;

// Hides controls of a dialog of Qt's. The dialog shows some of them again, so that they need a
// hidden parent.
void hide(QDialog &dialog, std::initializer_list<const char *> controls)
{
    auto *hidden = new QWidget(&dialog);
    hidden->hide();
    for (const char *name : controls)
        if (auto *control = dialog.findChild<QWidget *>(QLatin1String(name)))
            control->setParent(hidden);
}

// The program asks for the PDF file at the time of printing. The dialog insists on a file name.
void hideFile(QPrintDialog &dialog, const QString &newFile)
{
    if (auto *box = dialog.findChild<QLineEdit *>(QStringLiteral("filename")))
        box->setText(newFile);
    hide(dialog, {"lOutput", "filename", "fileBrowser"});
}

} // namespace

SystemPrinter::SystemPrinter()
    : m_device(std::make_unique<QPrinter>(QPrinter::HighResolution)),
      m_fileDialog(pathOf(Place::WordLists))
{
    const QString preferred = QPrinterInfo::defaultPrinterName();
    select(preferred.isEmpty() ? installed().constFirst() : preferred);
}

SystemPrinter::~SystemPrinter() = default;

QString SystemPrinter::printToPdf()
{
    return QStringLiteral("Print to PDF");
}

QStringList SystemPrinter::installed()
{
    return QPrinterInfo::availablePrinterNames() + QStringList(printToPdf());
}

QString SystemPrinter::target() const
{
    return printsToFile() ? m_fileDialog.FileTitle : m_deviceName;
}

void SystemPrinter::select(const QString &deviceName)
{
    const QPageLayout paper = m_device->pageLayout();
    m_deviceName = deviceName;
    if (printsToFile()) {
        m_device->setOutputFormat(QPrinter::PdfFormat);
    } else {
        m_device->setOutputFormat(QPrinter::NativeFormat);
        m_device->setPrinterName(deviceName);
    }
    m_device->setPageSize(paper.pageSize());
    m_device->setPageOrientation(paper.orientation());
    measure();
}

SystemPrinter::Orientation SystemPrinter::orientation() const
{
    return m_device->pageLayout().orientation() == QPageLayout::Landscape ? Orientation::Landscape
                                                                          : Orientation::Portrait;
}

void SystemPrinter::setOrientation(Orientation orientation)
{
    m_device->setPageOrientation(orientation == Orientation::Landscape ? QPageLayout::Landscape
                                                                       : QPageLayout::Portrait);
    // Setting the size again turns the borders that the printer cannot reach.
    m_device->setPageSize(m_device->pageLayout().pageSize());
    measure();
}

QPageLayout SystemPrinter::paper() const
{
    QPageLayout paper = m_device->pageLayout();
    if (printsToFile()) {
        paper.setUnits(QPageLayout::Inch);
        paper.setMinimumMargins({FileBorder, FileBorder, FileBorder, FileBorder});
    }
    return paper;
}

void SystemPrinter::measure()
{
    m_metrics = std::make_shared<PrintMetrics>(sheetSize(paper()), printableArea(paper()),
                                               m_device->resolution());
}

double SystemPrinter::ScaleWidth() const
{
    return m_metrics->area().width();
}

double SystemPrinter::ScaleHeight() const
{
    return m_metrics->area().height();
}

std::optional<Integer> SystemPrinter::showSetup(QWidget *parent, const QString &title,
                                                Integer copies)
{
    m_device->setCopyCount(copies.toInt());
    QPrintDialog dialog(m_device.get(), parent);
    dialog.setWindowTitle(title);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile);
    // Qt calls the button "Print".
    if (auto *buttons = dialog.findChild<QDialogButtonBox *>())
        buttons->button(QDialogButtonBox::Ok)->setText(QStringLiteral("&OK"));
    const QTemporaryDir folder;
    hideFile(dialog, folder.filePath(QStringLiteral("print.pdf")));
    // What a print job does not follow. Behind "Properties" are the paper, which Page Setup has as
    // well, several pages on a sheet and options of the job.
    hide(dialog, {"properties", "gbPrintRange", "collate", "reverse", "outputIcon", "colorMode"});
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    select(m_device->outputFormat() == QPrinter::PdfFormat ? printToPdf()
                                                           : m_device->printerName());
    return m_device->copyCount();
}

bool SystemPrinter::showPageSetup(QWidget *parent)
{
    QPageSetupDialog dialog(m_device.get(), parent);
    // The print dialog has margins of its own, and no job prints several pages on a sheet.
    hide(dialog, {"groupBox", "pagesPerSheetButtonGroup"});
    if (dialog.exec() != QDialog::Accepted)
        return false;
    measure();
    return true;
}

bool SystemPrinter::StartDoc(QWidget *parent, const QString &title)
{
    if (!printsToFile())
        checkQueue();
    else if (!askForFile(parent, title))
        return false;
    m_device->setCopyCount(Copies.toInt());
    m_device->setDocName(title);
    m_document =
        std::make_unique<PrintDocument>(PrintedPaper{paper(), m_device->resolution(), title});
    return true;
}

void SystemPrinter::checkQueue()
{
    const QPrinterInfo printer = QPrinterInfo::printerInfo(m_deviceName);
    if (printer.isNull() || printer.state() == QPrinter::Error)
        throw RunTimeError(RunTimeError::PrinterFault, m_deviceName);
    // If the printer was missing when it was selected, the device has kept the one before.
    if (m_device->printerName() != m_deviceName)
        select(m_deviceName);
    if (m_device->printerName() != m_deviceName)
        throw RunTimeError(RunTimeError::PrinterFault, m_deviceName);
}

bool SystemPrinter::askForFile(QWidget *parent, const QString &title)
{
    m_fileDialog.DialogTitle = printToPdf();
    m_fileDialog.Filter = QStringLiteral("PDF (*.pdf)|*.pdf|All files (*.*)|*.*");
    m_fileDialog.DefaultExt = QStringLiteral("pdf");
    m_fileDialog.OverwritePrompt = true;
    m_fileDialog.FileName = QFileInfo(title).completeBaseName() + QStringLiteral(".pdf");
    return m_fileDialog.ShowSave(parent);
}

double SystemPrinter::widthOf(QStringView text, const PrintStyle &style) const
{
    return m_metrics->widthOf(text, style);
}

double SystemPrinter::lineHeight(const PrintStyle &style) const
{
    return m_metrics->lineHeight(style);
}

void SystemPrinter::beginSheet()
{
    m_document->nextSheet();
}

void SystemPrinter::drawText(QPointF topLeft, const QString &text, const PrintStyle &style)
{
    m_metrics->draw(m_document->painter(), topLeft, text, style);
}

void SystemPrinter::endDocument()
{
    const std::unique_ptr<PrintDocument> document = std::exchange(m_document, nullptr);
    if (!document || !document->hasSheets())
        return;
    const QByteArray pdf = document->finish();
    if (printsToFile())
        BinaryFile::replace(m_fileDialog.FileName, pdf);
    else if (!PrintQueue::submit(*m_device, pdf))
        throw RunTimeError(RunTimeError::PrinterFault, m_deviceName);
}

void SystemPrinter::dropDocument()
{
    m_document.reset();
}
