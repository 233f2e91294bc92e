// SPDX-License-Identifier: GPL-3.0-or-later
// The Help menu, and F1 in all windows.
#pragma once

#include "help/HelpKey.h"

#include <QObject>

namespace Ui {
class frmMain;
}

class HelpMenu final : public QObject
{
    Q_OBJECT

public:
    // The dialogs open over the window.
    HelpMenu(const Ui::frmMain &ui, QWidget *window);

private:
    void mnuHandbook_Click();
    void mnuKeyboard_Click();
    void mnuAbout_Click();

    QWidget *m_window;
    HelpKey m_helpKey;
};
