// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/LostFocus.h"
#include "platform/SystemPrinter.h"
#include "print/PrintNumbers.h"
#include "print/frmPrint.h"
#include "print/ui_frmPrint.h"

#include <algorithm>

using namespace Module1;

namespace {

constexpr int StepsPerInch = 10; // of a margin's bar

int stepsOf(Currency margin)
{
    return (margin * StepsPerInch).toInteger().toInt();
}

} // namespace

std::array<frmPrint::Position, 2> frmPrint::positions() const
{
    return {Position{*m_ui->txtFromWord, FromWord}, Position{*m_ui->txtToWord, ToWord}};
}

std::array<frmPrint::Margin, 4> frmPrint::margins() const
{
    return {Margin{*m_ui->txtTopMargin, *m_ui->vsc_TopMargin, TopMargin},
            Margin{*m_ui->txtBottomMargin, *m_ui->vsc_BottomMargin, BottomMargin},
            Margin{*m_ui->txtLeftMargin, *m_ui->vsc_LeftMargin, LeftMargin},
            Margin{*m_ui->txtRightMargin, *m_ui->vsc_RightMargin, RightMargin}};
}

void frmPrint::connectBoxes()
{
    for (const Position &position : positions())
        new LostFocus(&position.box, [this, position] { txtPosition_LostFocus(position); });
    for (const Margin &margin : margins()) {
        margin.bar.setRange(stepsOf(SmallestMargin), stepsOf(LargestMargin));
        new LostFocus(&margin.box, [this, margin] { txtMargin_LostFocus(margin); });
        if (&margin.bar == m_ui->vsc_BottomMargin) // the only bar with such a handler
            new LostFocus(&margin.bar, [this, margin] { txtMargin_LostFocus(margin); });
        connect(&margin.bar, &StepBar::valueChanged, this,
                [this, margin] { runGuarded([this, &margin] { vscMargin_Change(margin); }); });
    }
    m_ui->vsc_Copies->setRange(1, Integer::Max);
    connect(m_ui->vsc_Copies, &StepBar::valueChanged, this,
            guarded(this, &frmPrint::vsc_Copies_Change));
}

void frmPrint::showMargins()
{
    for (const Margin &margin : margins()) {
        margin.box.setText(margin.setting.toText());
        // The handler would round the margin to tenths.
        const QSignalBlocker unchanged(&margin.bar);
        margin.bar.setValue(stepsOf(margin.setting));
    }
}

void frmPrint::txtPosition_LostFocus(const Position &position)
{
    if (position.box.text().isEmpty())
        return;
    if (const auto typed = positionFromText(position.box.text()))
        position.setting = positionInList(*typed, gVocabList().NumWords());
    position.box.setText(position.setting.toText());
    showPreview();
}

void frmPrint::txtMargin_LostFocus(const Margin &margin)
{
    const auto typed = marginFromText(margin.box.text());
    if (!typed) {
        margin.box.setText(margin.setting.toText());
        return;
    }
    margin.setting = std::clamp(*typed, SmallestMargin, LargestMargin);
    if (margin.setting != *typed)
        margin.box.setText(margin.setting.toText());
    // If the bar stays where it is, the margin keeps its hundredths and the box its text.
    margin.bar.setValue(stepsOf(margin.setting));
    showPreview();
}

void frmPrint::vscMargin_Change(const Margin &margin)
{
    margin.setting = Currency(static_cast<double>(margin.bar.value()) / StepsPerInch);
    margin.box.setText(margin.setting.toText());
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
    for (const Position &position : positions())
        if (focusWidget() == &position.box)
            txtPosition_LostFocus(position);
    for (const Margin &margin : margins())
        if (focusWidget() == &margin.box)
            txtMargin_LostFocus(margin);
}
