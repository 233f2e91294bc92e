// SPDX-License-Identifier: GPL-3.0-or-later
// The frame "Margins" of the print dialog. Each margin has a text box in inches and a scroll bar in
// tenths of an inch.
#pragma once

#include "runtime/Currency.h"

#include <QObject>

#include <array>

class QLineEdit;
class StepBar;

namespace Ui {
class frmPrint;
}

class MarginsFrame final : public QObject
{
    Q_OBJECT

public:
    explicit MarginsFrame(const Ui::frmPrint &ui);

    void show();
    // Takes the typed text if the focus is in one of the boxes.
    void takeTypedText(const QWidget *focus);

Q_SIGNALS:
    // A text or a step of a bar was taken.
    void changed();

private:
    struct Margin
    {
        QLineEdit &box;
        StepBar &bar;
        Currency &setting;
    };

    // txtTopMargin_LostFocus, txtBottomMargin_LostFocus, txtLeftMargin_LostFocus,
    // txtRightMargin_LostFocus and vsc_BottomMargin_LostFocus
    void txtMargin_LostFocus(const Margin &margin);
    // vsc_TopMargin_Change, vsc_BottomMargin_Change, vsc_LeftMargin_Change and
    // vsc_RightMargin_Change
    void vscMargin_Change(const Margin &margin);

    std::array<Margin, 4> m_margins;
};
