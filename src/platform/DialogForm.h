// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog that is a Form: Esc and reject() close it in the same way as its close box.
#pragma once

#include "platform/Form.h"

#include <QDialog>

class DialogForm : public Form<QDialog>
{
public:
    using Form::Form;

    void reject() override
    {
        if (m_closing)
            QDialog::reject();
        else
            close();
    }

protected:
    void closeEvent(QCloseEvent *event) override
    {
        m_closing = true;
        Form::closeEvent(event);
        m_closing = false;
    }

private:
    bool m_closing = false;
};
