// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/frmPrint.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/LostFocus.h"
#include "platform/Screen.h"
#include "platform/SystemPrinter.h"
#include "print/MarginsFrame.h"
#include "print/PrintJob.h"
#include "print/RangeFrame.h"
#include "print/WordListPrint.h"
#include "print/ui_frmPrint.h"

#include <QShortcut>

using namespace Module1;

namespace {

const QString Portrait = QStringLiteral("Portrait");
const QString Landscape = QStringLiteral("Landscape");

} // namespace

frmPrint::frmPrint(SystemPrinter &printer, QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::frmPrint>()), m_printer(printer)
{
    m_ui->setupUi(this);
    m_range = std::make_unique<RangeFrame>(*m_ui);
    m_margins = std::make_unique<MarginsFrame>(*m_ui);
    m_ui->vsc_Copies->setRange(1, Integer::Max);
    m_ui->vsc_Copies->setBox(m_ui->txtCopies);
    openWithSize(*this, size().expandedTo(sizeHint()));
    openAsLastClosed();
    connectHandlers();
    connectPreview();
}

frmPrint::~frmPrint() = default;

void frmPrint::connectHandlers()
{
    onClick(m_ui->optPortrait, &frmPrint::optPortrait_Click);
    onClick(m_ui->optLandscape, &frmPrint::optLandscape_Click);
    onClick(m_ui->chkPrintItemNumber, &frmPrint::chkPrintItemNumber_Click);
    onClick(m_ui->cmdPrint, &frmPrint::cmdPrint_Click);
    onClick(m_ui->cmdCancel, &frmPrint::cmdCancel_Click);
    connect(m_ui->lstPrinter, &QListWidget::itemSelectionChanged, this,
            guarded(this, &frmPrint::lstPrinter_Click));
    connect(m_ui->vsc_Copies, &StepBar::valueChanged, this,
            guarded(this, &frmPrint::vsc_Copies_Change));
    connect(m_range.get(), &RangeFrame::changed, this, guarded(this, &frmPrint::showPreview));
    connect(m_margins.get(), &MarginsFrame::changed, this, guarded(this, &frmPrint::showPreview));
}

void frmPrint::connectPreview()
{
    PagePreview *preview = m_ui->preview;
    const auto turnsTo = [this, preview](QAbstractButton *button, PagePreview::Page page) {
        connect(button, &QAbstractButton::clicked, preview, [this, preview, page] {
            runGuarded([this, preview, page] {
                takeTypedText(); // a click leaves the keyboard where it is
                preview->goTo(page);
            });
        });
        new LostFocus(button, [this] { showPage(); });
    };
    turnsTo(m_ui->cmdFirstPage, PagePreview::Page::First);
    turnsTo(m_ui->cmdPreviousPage, PagePreview::Page::Previous);
    turnsTo(m_ui->cmdNextPage, PagePreview::Page::Next);
    turnsTo(m_ui->cmdLastPage, PagePreview::Page::Last);
    connect(m_ui->cmdZoom, &QAbstractButton::clicked, preview,
            guarded(preview, &PagePreview::toggleZoom));
    connect(preview, &PagePreview::changed, this, guarded(this, &frmPrint::showPage));

    const auto onKey = [this](const QKeySequence &keys, QAbstractButton *button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QAbstractButton::click);
    };
    onKey(Qt::CTRL | Qt::Key_PageUp, m_ui->cmdPreviousPage);
    onKey(Qt::CTRL | Qt::Key_PageDown, m_ui->cmdNextPage);
}

void frmPrint::Form_Load()
{
    fillPrinters();
    m_margins->show();
    m_range->show();
    m_ui->chkPrintItemNumber->setChecked(PrintItemNumber);
    m_ui->vsc_Copies->setValue(m_printer.Copies.toInt());
    if (PrintOrientation != Portrait)
        m_ui->optLandscape->click();
    else
        m_ui->optPortrait->click();
    m_ui->lstPrinter->setFocus();
}

// Cancel, Esc and the close box keep all changes.
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

void frmPrint::chkPrintItemNumber_Click()
{
    PrintItemNumber = m_ui->chkPrintItemNumber->isChecked();
    showPreview();
}

void frmPrint::vsc_Copies_Change()
{
    const Integer copies = m_ui->vsc_Copies->value();
    m_ui->txtCopies->setText(copies.toText());
    m_printer.Copies = copies;
    showPreview();
}

// Enter, Esc and the shortcuts of the buttons leave the focus in the box.
void frmPrint::takeTypedText()
{
    m_range->takeTypedText(focusWidget());
    m_margins->takeTypedText(focusWidget());
}

void frmPrint::showPreview()
{
    m_ui->preview->setPages(std::make_unique<PreviewPages>(
        m_printer.metrics(), gVocabList(), WordListPrint::chosen(), m_printer.Copies));
}

void frmPrint::showPage()
{
    const PagePreview &preview = *m_ui->preview;
    m_ui->lblPage->setPages(preview.pageText(), preview.isCounted() ? PageLabel::Count::Known
                                                                    : PageLabel::Count::Estimated);
    // A button that is disabled would lose the focus.
    const auto enable = [](QWidget *button, bool enabled) {
        button->setEnabled(enabled || button->hasFocus());
    };
    enable(m_ui->cmdFirstPage, !preview.isFirst());
    enable(m_ui->cmdPreviousPage, !preview.isFirst());
    enable(m_ui->cmdNextPage, !preview.isLast());
    enable(m_ui->cmdLastPage, !preview.isLast());
    const bool isWhole = preview.zoom() == PagePreview::Zoom::WholePage;
    m_ui->cmdZoom->setText(isWhole ? QStringLiteral("Actual size") : QStringLiteral("Whole page"));
    m_ui->cmdZoom->setToolTip(
        isWhole ? QStringLiteral("Show the page as large as on paper (+ in the preview)")
                : QStringLiteral("Show all of the page (- in the preview)"));
}

void frmPrint::cmdPrint_Click()
{
    takeTypedText();
    auto end = PrintEnd::Cancelled; // also after an error
    tellPrinterError(m_printer, [this, &end] {
        const PagePreview::Pause pause(*m_ui->preview); // no layout while the job prints
        end = printWordList(this, m_printer, WordListPrint::chosen());
    });
    if (end == PrintEnd::HandedOver)
        Q_EMIT handedOver();
    if (end != PrintEnd::Cancelled)
        close();
}

void frmPrint::cmdCancel_Click()
{
    close();
}
