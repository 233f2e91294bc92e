// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the texts of a window and the borders of its controls stand out, measured in its pixels.
#pragma once

#include <QStringList>

class QWidget;

namespace WindowContrast {

// The texts that stand out too little from what is behind them: "cmdAdd: #c3cbd1 on #efefef has
// 1.4". Those of disabled controls need only what a mark needs.
[[nodiscard]] QStringList weakTexts(QWidget &window);
// The boxes, buttons, lists and marks of options whose edges stand out too little from what is
// around them. Disabled controls are left out.
[[nodiscard]] QStringList weakBorders(QWidget &window);
// The same for the frame around each control that can have the keyboard, while it has it.
[[nodiscard]] QStringList weakFocusFrames(QWidget &window);

} // namespace WindowContrast
