// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/SystemPrinter.h"
#include "print/PrintNumbers.h"
#include "print/frmPrint.h"
#include "print/ui_frmPrint.h"

#include <algorithm>

using namespace Module1;

namespace {

constexpr int StepsPerInch = 10; // of a margin's scroll bar

} // namespace

void frmPrint::showMargins()
{
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
