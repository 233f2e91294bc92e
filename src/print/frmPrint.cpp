// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/frmPrint.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/LostFocus.h"
#include "platform/SystemPrinter.h"
#include "print/PrintJob.h"
#include "print/PrintNumbers.h"
#include "print/WordListPrint.h"
#include "print/ui_frmPrint.h"

#include <QShortcut>

#include <algorithm>
#include <initializer_list>

using namespace Module1;

namespace {

constexpr int StepsPerInch = 10; // of a margin's scroll bar

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
    const auto onClick = [this](QAbstractButton *button, void (frmPrint::*handler)()) {
        connect(button, &QAbstractButton::clicked, this, guarded(this, handler));
    };
    onClick(m_ui->optPortrait, &frmPrint::optPortrait_Click);
    onClick(m_ui->optLandscape, &frmPrint::optLandscape_Click);
    onClick(m_ui->optPrintAllWords, &frmPrint::optPrintAllWords_Click);
    onClick(m_ui->optSubset, &frmPrint::optSubset_Click);
    onClick(m_ui->chkPrintItemNumber, &frmPrint::chkPrintItemNumber_Click);
    onClick(m_ui->cmdPrint, &frmPrint::cmdPrint_Click);
    onClick(m_ui->cmdCancel, &frmPrint::cmdCancel_Click);
    onClick(m_ui->cmdFirstPage, &frmPrint::cmdFirstPage_Click);
    onClick(m_ui->cmdPreviousPage, &frmPrint::cmdPreviousPage_Click);
    onClick(m_ui->cmdNextPage, &frmPrint::cmdNextPage_Click);
    onClick(m_ui->cmdLastPage, &frmPrint::cmdLastPage_Click);
    onClick(m_ui->cmdZoom, &frmPrint::cmdZoom_Click);

    const auto onChange = [this](StepBar *bar, void (frmPrint::*handler)()) {
        connect(bar, &StepBar::valueChanged, this, guarded(this, handler));
    };
    onChange(m_ui->vsc_TopMargin, &frmPrint::vsc_TopMargin_Change);
    onChange(m_ui->vsc_BottomMargin, &frmPrint::vsc_BottomMargin_Change);
    onChange(m_ui->vsc_LeftMargin, &frmPrint::vsc_LeftMargin_Change);
    onChange(m_ui->vsc_RightMargin, &frmPrint::vsc_RightMargin_Change);
    onChange(m_ui->vsc_Copies, &frmPrint::vsc_Copies_Change);

    new LostFocus(m_ui->txtFromWord, [this] { txtFromWord_LostFocus(); });
    new LostFocus(m_ui->txtToWord, [this] { txtToWord_LostFocus(); });
    new LostFocus(m_ui->txtTopMargin, [this] { txtTopMargin_LostFocus(); });
    new LostFocus(m_ui->txtBottomMargin, [this] { txtBottomMargin_LostFocus(); });
    new LostFocus(m_ui->txtLeftMargin, [this] { txtLeftMargin_LostFocus(); });
    new LostFocus(m_ui->txtRightMargin, [this] { txtRightMargin_LostFocus(); });
    new LostFocus(m_ui->vsc_BottomMargin, [this] { vsc_BottomMargin_LostFocus(); });

    connect(m_ui->lstPrinter, &QListWidget::itemSelectionChanged, this,
            guarded(this, &frmPrint::lstPrinter_Click));
    connect(m_ui->preview, &PagePreview::changed, this, guarded(this, &frmPrint::showPage));
    const auto onKey = [this](const QKeySequence &keys, QAbstractButton *button) {
        connect(new QShortcut(keys, this), &QShortcut::activated, button, &QAbstractButton::click);
    };
    onKey(Qt::CTRL | Qt::Key_PageUp, m_ui->cmdPreviousPage);
    onKey(Qt::CTRL | Qt::Key_PageDown, m_ui->cmdNextPage);
}

void frmPrint::Form_Load()
{
    fillPrinters();
    const auto showMargin = [](QLineEdit *box, StepBar *bar, Currency margin) {
        box->setText(margin.toText());
        // The margin keeps its hundredths.
        const QSignalBlocker unchanged(bar);
        bar->setValue((margin * StepsPerInch).toInteger().toInt());
    };
    showMargin(m_ui->txtBottomMargin, m_ui->vsc_BottomMargin, BottomMargin);
    showMargin(m_ui->txtLeftMargin, m_ui->vsc_LeftMargin, LeftMargin);
    showMargin(m_ui->txtRightMargin, m_ui->vsc_RightMargin, RightMargin);
    showMargin(m_ui->txtTopMargin, m_ui->vsc_TopMargin, TopMargin);
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

// Every change stays, whichever way the dialog is left.
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
    list.clear();
    for (const QString &name : SystemPrinter::installed()) {
        list.addItem(name);
        if (name == m_printer.DeviceName())
            list.setCurrentRow(list.count() - 1);
    }
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
        // A click with Ctrl would take the mark away from the current printer.
        const QSignalBlocker marking(m_ui->lstPrinter);
        chosen->setSelected(true);
    }
    for (const QString &name : SystemPrinter::installed())
        if (name == chosen->text())
            m_printer.select(name);
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

void frmPrint::txtFromWord_LostFocus()
{
    takePosition(*m_ui->txtFromWord, FromWord);
}

void frmPrint::txtToWord_LostFocus()
{
    takePosition(*m_ui->txtToWord, ToWord);
}

void frmPrint::takePosition(QLineEdit &box, Integer &position)
{
    if (box.text().isEmpty())
        return;
    if (const auto typed = positionFromText(box.text()))
        position = positionInList(*typed, gVocabList().NumWords());
    box.setText(position.toText());
    showPreview();
}

void frmPrint::txtTopMargin_LostFocus()
{
    takeMargin(*m_ui->txtTopMargin, *m_ui->vsc_TopMargin, TopMargin);
}

void frmPrint::txtBottomMargin_LostFocus()
{
    takeMargin(*m_ui->txtBottomMargin, *m_ui->vsc_BottomMargin, BottomMargin);
}

void frmPrint::txtLeftMargin_LostFocus()
{
    takeMargin(*m_ui->txtLeftMargin, *m_ui->vsc_LeftMargin, LeftMargin);
}

void frmPrint::txtRightMargin_LostFocus()
{
    takeMargin(*m_ui->txtRightMargin, *m_ui->vsc_RightMargin, RightMargin);
}

// A margin that the scroll bar does not follow keeps its hundredths, and the box what was typed.
void frmPrint::takeMargin(QLineEdit &box, StepBar &bar, Currency &margin)
{
    const auto typed = marginFromText(box.text());
    if (!typed) {
        box.setText(margin.toText());
        return;
    }
    margin = std::clamp(*typed, SmallestMargin, LargestMargin);
    if (margin != *typed)
        box.setText(margin.toText());
    bar.setValue((margin * StepsPerInch).toInteger().toInt());
    showPreview();
}

void frmPrint::vsc_TopMargin_Change()
{
    takeStep(*m_ui->txtTopMargin, *m_ui->vsc_TopMargin, TopMargin);
}

void frmPrint::vsc_BottomMargin_Change()
{
    takeStep(*m_ui->txtBottomMargin, *m_ui->vsc_BottomMargin, BottomMargin);
}

void frmPrint::vsc_BottomMargin_LostFocus()
{
    txtBottomMargin_LostFocus();
}

void frmPrint::vsc_LeftMargin_Change()
{
    takeStep(*m_ui->txtLeftMargin, *m_ui->vsc_LeftMargin, LeftMargin);
}

void frmPrint::vsc_RightMargin_Change()
{
    takeStep(*m_ui->txtRightMargin, *m_ui->vsc_RightMargin, RightMargin);
}

void frmPrint::takeStep(QLineEdit &box, const StepBar &bar, Currency &margin)
{
    margin = Currency(static_cast<double>(bar.value()) / StepsPerInch);
    box.setText(margin.toText());
    showPreview();
}

void frmPrint::vsc_Copies_Change()
{
    const Integer copies = m_ui->vsc_Copies->value();
    m_ui->txtCopies->setText(copies.toText());
    m_printer.Copies = copies;
    showPreview();
}

void frmPrint::cmdPrint_Click()
{
    takeTypedText();
    bool printed = false;
    tellPrinterError(m_printer, [this, &printed] {
        const PagePreview::Pause pause(*m_ui->preview); // the job gets all the time
        printWordList(this, m_printer, WordListPrint::chosen());
        printed = true;
    });
    if (printed)
        close();
}

// Enter, Esc and the buttons' keys do not leave the box.
void frmPrint::takeTypedText()
{
    const QWidget *box = focusWidget();
    if (box == m_ui->txtFromWord)
        txtFromWord_LostFocus();
    else if (box == m_ui->txtToWord)
        txtToWord_LostFocus();
    else if (box == m_ui->txtTopMargin)
        txtTopMargin_LostFocus();
    else if (box == m_ui->txtBottomMargin)
        txtBottomMargin_LostFocus();
    else if (box == m_ui->txtLeftMargin)
        txtLeftMargin_LostFocus();
    else if (box == m_ui->txtRightMargin)
        txtRightMargin_LostFocus();
}

void frmPrint::cmdCancel_Click()
{
    close();
}

void frmPrint::cmdFirstPage_Click()
{
    m_ui->preview->goTo(1);
}

void frmPrint::cmdPreviousPage_Click()
{
    m_ui->preview->goTo(m_ui->preview->page() - 1);
}

void frmPrint::cmdNextPage_Click()
{
    m_ui->preview->goTo(m_ui->preview->page() + 1);
}

void frmPrint::cmdLastPage_Click()
{
    m_ui->preview->goToLast();
}

void frmPrint::cmdZoom_Click()
{
    PagePreview &preview = *m_ui->preview;
    preview.setZoom(preview.zoom() == PagePreview::Zoom::WholePage ? PagePreview::Zoom::ActualSize
                                                                   : PagePreview::Zoom::WholePage);
}

void frmPrint::showPreview()
{
    m_ui->preview->setPages(std::make_unique<PreviewPages>(
        m_printer.metrics(), gVocabList(), WordListPrint::chosen(), m_printer.Copies));
}

void frmPrint::showPage()
{
    const PagePreview &preview = *m_ui->preview;
    if (const QString text = preview.pageText(); text != m_ui->lblPage->text()) {
        m_ui->lblPage->setText(text);
        m_ui->preview->setAccessibleDescription(text); // is told to who does not see it, each time
    }
    m_ui->cmdFirstPage->setEnabled(!preview.isFirst());
    m_ui->cmdPreviousPage->setEnabled(!preview.isFirst());
    m_ui->cmdNextPage->setEnabled(!preview.isLast());
    m_ui->cmdLastPage->setEnabled(!preview.isLast());
    m_ui->cmdZoom->setText(preview.zoom() == PagePreview::Zoom::WholePage
                               ? QStringLiteral("Actual size")
                               : QStringLiteral("Whole page"));
}
