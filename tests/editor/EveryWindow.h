// SPDX-License-Identifier: GPL-3.0-or-later
// Opens each window of the program, in each state in which it has other controls.
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace EveryWindow {

// Column "window", a row for each window and state.
void addRows();
// Opens the window of the running row, calls `look` with it and closes it.
void open(const std::function<void(QWidget &)> &look);

} // namespace EveryWindow
