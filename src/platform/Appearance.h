// SPDX-License-Identifier: GPL-3.0-or-later
// The program's look: one accent colour, round corners, even spacing, in light and dark palettes.
#pragma once

#include <QColor>

class QApplication;
class QPalette;

[[nodiscard]] QColor accentColour(const QPalette &palette);

// Follows the application's palette; to be called again when that changes.
void applyAppearance(QApplication &application);
