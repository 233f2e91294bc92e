// SPDX-License-Identifier: GPL-3.0-or-later
// The handbook in a plain window, for a desktop without a browser.
#pragma once

#include "platform/DialogForm.h"

#include <memory>

namespace Ui {
class dlgHandbook;
}

class dlgHandbook final : public DialogForm
{
    Q_OBJECT

public:
    // file: the path of the page that is shown first.
    dlgHandbook(QString file, QWidget *parent);
    ~dlgHandbook() override;

protected:
    void Form_Load() override;

private:
    void cmdBack_Click();
    void cmdContents_Click();
    void cmdClose_Click();

    std::unique_ptr<Ui::dlgHandbook> m_ui;
    QString m_file;
};
