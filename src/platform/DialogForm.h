// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog that is a Form: Esc and reject() close it in the same way as its close box.
#pragma once

#include "platform/Form.h"

#include <QDialog>

class DialogForm : public Form<QDialog>
{
public:
    using Form::Form;

    void reject() override;

protected:
    // For the end of a constructor: a dialog that was open before in this run has the size and the
    // place again with which it was closed, as far as the screen has room for them.
    void openAsLastClosed();

    void closeEvent(QCloseEvent *event) override;

private:
    bool m_closing = false;
    bool m_keepsPlace = false;
};
