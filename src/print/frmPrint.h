// SPDX-License-Identifier: GPL-3.0-or-later
// The print dialog: settings, which take effect at once, and a preview of the pages.
#pragma once

#include "platform/DialogForm.h"
#include "runtime/Currency.h"

#include <array>
#include <memory>

class QLineEdit;
class StepBar;
class SystemPrinter;

namespace Ui {
class frmPrint;
}

class frmPrint final : public DialogForm
{
    Q_OBJECT

public:
    // The printer must outlive the form.
    explicit frmPrint(SystemPrinter &printer, QWidget *parent = nullptr);
    ~frmPrint() override;

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Terminate() override;

private:
    // One end of the print range.
    struct Position
    {
        QLineEdit &box;
        Integer &setting;
    };
    struct Margin
    {
        QLineEdit &box;
        StepBar &bar;
        Currency &setting;
    };

    // frmPrint.cpp: the dialog and the choices
    void connectHandlers();
    void fillPrinters();
    void lstPrinter_Click();
    void optPortrait_Click();
    void optLandscape_Click();
    void optPrintAllWords_Click();
    void optSubset_Click();
    void enableRange(bool enabled);
    void chkPrintItemNumber_Click();
    void cmdPrint_Click();
    void cmdCancel_Click();

    // frmPrint_Boxes.cpp: range, margins and copies
    [[nodiscard]] std::array<Position, 2> positions() const;
    [[nodiscard]] std::array<Margin, 4> margins() const;
    void connectBoxes();
    void showMargins();
    // txtFromWord_LostFocus and txtToWord_LostFocus
    void txtPosition_LostFocus(const Position &position);
    // txtTopMargin_LostFocus, txtBottomMargin_LostFocus, txtLeftMargin_LostFocus,
    // txtRightMargin_LostFocus and vsc_BottomMargin_LostFocus
    void txtMargin_LostFocus(const Margin &margin);
    // vsc_TopMargin_Change, vsc_BottomMargin_Change, vsc_LeftMargin_Change and
    // vsc_RightMargin_Change
    void vscMargin_Change(const Margin &margin);
    void vsc_Copies_Change();
    void takeTypedText();

    // frmPrint_Preview.cpp: the preview
    void connectPreview();
    void showPreview();
    void showPage();

    std::unique_ptr<Ui::frmPrint> m_ui;
    SystemPrinter &m_printer;
};
