// SPDX-License-Identifier: GPL-3.0-or-later
// Messages to the user from code that has no windows.
#pragma once

#include <QString>

#include <functional>

// Passes the text to the hook, which shows it and waits for OK. Does nothing if no hook is set.
void notice(const QString &text);

void setNoticeHook(std::function<void(const QString &)> hook);
