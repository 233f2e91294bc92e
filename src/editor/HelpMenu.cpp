// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/HelpMenu.h"

#include "editor/ui_frmMain.h"
#include "help/Handbook.h"
#include "help/dlgAbout.h"
#include "platform/Guarded.h"

HelpMenu::HelpMenu(const Ui::frmMain &ui, QWidget *window) : m_window(window)
{
    onClick(ui.mnuHandbook, this, &HelpMenu::mnuHandbook_Click);
    onClick(ui.mnuKeyboard, this, &HelpMenu::mnuKeyboard_Click);
    onClick(ui.mnuAbout, this, &HelpMenu::mnuAbout_Click);
}

void HelpMenu::mnuHandbook_Click()
{
    openHandbook(handbookPageOf(*m_window), m_window);
}

void HelpMenu::mnuKeyboard_Click()
{
    openHandbook(QStringLiteral("keyboard"), m_window);
}

void HelpMenu::mnuAbout_Click()
{
    dlgAbout(m_window).exec();
}
