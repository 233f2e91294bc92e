// SPDX-License-Identifier: GPL-3.0-or-later
// The print dialog: settings, which take effect at once, and a preview of the pages.
#pragma once

#include "platform/DialogForm.h"

#include <memory>

class MarginsFrame;
class RangeFrame;
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

Q_SIGNALS:
    // The list was printed.
    void handedOver();

protected:
    void Form_Load() override;
    bool Form_QueryUnload() override;
    void Form_Terminate() override;

private:
    void connectHandlers();
    void connectPreview();
    void fillPrinters();
    void lstPrinter_Click();
    void optPortrait_Click();
    void optLandscape_Click();
    void chkPrintItemNumber_Click();
    void vsc_Copies_Change();
    void takeTypedText();
    void showPreview();
    void showPage();
    void cmdPrint_Click();
    void cmdCancel_Click();

    std::unique_ptr<Ui::frmPrint> m_ui;
    std::unique_ptr<RangeFrame> m_range;
    std::unique_ptr<MarginsFrame> m_margins;
    SystemPrinter &m_printer;
};
