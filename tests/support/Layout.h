// SPDX-License-Identifier: GPL-3.0-or-later
// Whether the controls of a window can be seen whole, and are named.
#pragma once

#include "support/Caller.h"

#include <QList>
#include <QRect>

class QWidget;

namespace Layout {

// In the coordinates of its window.
[[nodiscard]] QRect placeOf(const QWidget &control);
// All that is visible and has a name, without the parts of Qt's own controls and without the
// content of scroll areas.
[[nodiscard]] QList<QWidget *> visibleControls(const QWidget &window);
// Lets the layout follow the texts. Then fails the test if a visible control has no size, is cut by
// the window or by what contains it, overlaps another one, or, if it is a button, a label or a box
// of one line, is smaller than its least size; if a label that wraps its text is too low for it; if
// the title of a frame is cut or touches a control inside; or if a placeholder is cut. A control in
// a scroll area may be out of view if a bar can bring it back and it is not the default button.
void checkNothingIsCut(const QWidget &window, Caller caller = Caller::current());
// Fails the test if one line with the text is wider or higher than the control.
void checkHasRoomFor(const QWidget &control, const QString &text,
                     Caller caller = Caller::current());
// Fails the test if a visible control that can have the keyboard has no name for assistive tools.
void checkNames(const QWidget &window, Caller caller = Caller::current());

// Both, and the window has room on its screen together with a title bar. A maximised window has if
// its least size does: the window manager makes room for the bar, which tests run without.
void checkFitsTheScreen(const QWidget &window, Caller caller = Caller::current());

// Columns "type": factors for the application's font with which windows have to fit the screen that
// the test runs on.
void addTypeSizes();

} // namespace Layout
