// SPDX-License-Identifier: GPL-3.0-or-later
// What the program is: version, licence, what it is built with, where its word lists lie.
#pragma once

#include "platform/DialogForm.h"

#include <memory>

namespace Ui {
class dlgAbout;
}

class dlgAbout final : public DialogForm
{
    Q_OBJECT

public:
    explicit dlgAbout(QWidget *parent);
    ~dlgAbout() override;

protected:
    void Form_Load() override;

private:
    void cmdOK_Click();
    void fitToTexts();

    std::unique_ptr<Ui::dlgAbout> m_ui;
};
