// SPDX-License-Identifier: GPL-3.0-or-later
// The style sheet of the program, for light and dark palettes.
#pragma once

#include <QColor>

class QApplication;
class QPalette;

[[nodiscard]] bool isDark(const QPalette &palette);
[[nodiscard]] QColor accentColour(const QPalette &palette);
// For captions, notes and outlines.
[[nodiscard]] QColor quietColour(const QPalette &palette);
// For the borders of boxes and buttons, which have to stand out from the window.
[[nodiscard]] QColor outlineColour(const QPalette &palette);
// For a flat area in the window, such as the rack of letters; a little lighter than the window.
[[nodiscard]] QColor panelColour(const QPalette &palette);
// For the border of what has the keyboard.
[[nodiscard]] QColor focusColour(const QPalette &palette);

// Takes its colours from the application's palette and the size of its type from the application's
// font. Call it again when one of them has changed.
void applyAppearance(QApplication &application);
