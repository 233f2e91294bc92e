// SPDX-License-Identifier: GPL-3.0-or-later
// The print settings, which take effect as they are made, and beside them the pages that Print
// would give.
#pragma once

#include "platform/DialogForm.h"
#include "runtime/Currency.h"

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
    // frmPrint.cpp: the dialog, and what is chosen by a click
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
    void txtFromWord_LostFocus();
    void txtToWord_LostFocus();
    void takePosition(QLineEdit &box, Integer &position);
    void showMargins();
    void txtTopMargin_LostFocus();
    void txtBottomMargin_LostFocus();
    void txtLeftMargin_LostFocus();
    void txtRightMargin_LostFocus();
    void takeMargin(QLineEdit &box, StepBar &bar, Currency &margin);
    void vsc_TopMargin_Change();
    void vsc_BottomMargin_Change();
    void vsc_BottomMargin_LostFocus();
    void vsc_LeftMargin_Change();
    void vsc_RightMargin_Change();
    void takeStep(QLineEdit &box, const StepBar &bar, Currency &margin);
    void vsc_Copies_Change();
    void takeTypedText();

    // frmPrint_Preview.cpp: the pages beside the settings
    void cmdFirstPage_Click();
    void cmdPreviousPage_Click();
    void cmdNextPage_Click();
    void cmdLastPage_Click();
    void cmdZoom_Click();
    void showPreview();
    void showPage();

    std::unique_ptr<Ui::frmPrint> m_ui;
    SystemPrinter &m_printer;
};
