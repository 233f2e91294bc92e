// SPDX-License-Identifier: GPL-3.0-or-later
// What the data has to tell the person, without a window of its own.
#pragma once

#include <QString>

#include <functional>

// Shows the text with an OK button through the hook that the windows put in; without one it is
// dropped.
void notice(const QString &text);

void setNoticeHook(std::function<void(const QString &)> hook);
