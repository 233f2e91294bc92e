// SPDX-License-Identifier: GPL-3.0-or-later
// Opens a file in the desktop's browser.
#pragma once

class QString;

// False where no browser can be started.
[[nodiscard]] bool openInBrowser(const QString &file);
