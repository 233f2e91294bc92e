// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/MarginsFrame.h"

#include "core/Module1.h"
#include "platform/LostFocus.h"
#include "print/PrintNumbers.h"
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

MarginsFrame::MarginsFrame(const Ui::frmPrint &ui)
    : m_margins{Margin{*ui.txtTopMargin, *ui.vsc_TopMargin, TopMargin},
                Margin{*ui.txtBottomMargin, *ui.vsc_BottomMargin, BottomMargin},
                Margin{*ui.txtLeftMargin, *ui.vsc_LeftMargin, LeftMargin},
                Margin{*ui.txtRightMargin, *ui.vsc_RightMargin, RightMargin}}
{
    for (const Margin &margin : m_margins) {
        margin.bar.setRange(stepsOf(SmallestMargin), stepsOf(LargestMargin));
        margin.bar.setBox(&margin.box);
        connect(&margin.bar, &StepBar::boxStepped, this,
                [this, &margin] { runGuarded([this, &margin] { txtMargin_LostFocus(margin); }); });
        new LostFocus(&margin.box, [this, &margin] { txtMargin_LostFocus(margin); });
        if (&margin.bar == ui.vsc_BottomMargin) // the only bar with such a handler
            new LostFocus(&margin.bar, [this, &margin] { txtMargin_LostFocus(margin); });
        connect(&margin.bar, &StepBar::valueChanged, this,
                [this, &margin] { runGuarded([this, &margin] { vscMargin_Change(margin); }); });
    }
}

void MarginsFrame::show()
{
    for (const Margin &margin : m_margins) {
        margin.box.setText(margin.setting.toText());
        // The handler would round the margin to tenths.
        const QSignalBlocker unchanged(&margin.bar);
        margin.bar.setValue(stepsOf(margin.setting));
    }
}

void MarginsFrame::takeTypedText(const QWidget *focus)
{
    for (const Margin &margin : m_margins)
        if (focus == &margin.box)
            txtMargin_LostFocus(margin);
}

void MarginsFrame::txtMargin_LostFocus(const Margin &margin)
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
    Q_EMIT changed();
}

void MarginsFrame::vscMargin_Change(const Margin &margin)
{
    margin.setting = Currency(static_cast<double>(margin.bar.value()) / StepsPerInch);
    margin.box.setText(margin.setting.toText());
    Q_EMIT changed();
}
