// SPDX-License-Identifier: GPL-3.0-or-later
// The splash window: three seconds of picture, name and version before the main window.
#pragma once

#include "platform/Form.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class frmSplash;
}

class frmSplash final : public Form<QWidget>
{
    Q_OBJECT

public:
    frmSplash();
    ~frmSplash() override;

Q_SIGNALS:
    // The splash is closed; the main window can be shown.
    void unloaded();

protected:
    void Form_Load() override;

private:
    void Timer1_Timer();

    std::unique_ptr<Ui::frmSplash> m_ui;
    QTimer m_timer1;
};
