// SPDX-License-Identifier: GPL-3.0-or-later
// What MainWindow::look() and MainWindow::row() show in the editor's modes.
#pragma once

#include <QStringList>

namespace EditorModes {

enum class Boxes { Disabled, WordOnly, Enabled };

[[nodiscard]] QStringList look(const QStringList &buttons, Boxes boxes);

// After the start, Abort, Update and Delete.
[[nodiscard]] QStringList idle();
[[nodiscard]] QStringList newWord();
// An entry picked in the grid.
[[nodiscard]] QStringList editing();
// A search, started in the idle editor, without a hit and with one.
[[nodiscard]] QStringList searching();
[[nodiscard]] QStringList found();

// A row that shows an entry of MainWindow::fill(int).
[[nodiscard]] QStringList filledRow(int position);
// A row with an item number alone, and one with nothing.
[[nodiscard]] QStringList numberedRow(int number);
[[nodiscard]] QStringList emptyRow();

} // namespace EditorModes
