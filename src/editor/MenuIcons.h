// SPDX-License-Identifier: GPL-3.0-or-later
// Icons of the desktop's theme for the menu items. Items that the theme has no icon for have none.
#pragma once

namespace Ui {
class frmMain;
}

// Looks for the icons of a menu when it is opened for the first time, so that the start does not
// wait for them.
void showMenuIcons(const Ui::frmMain &ui);
