// SPDX-License-Identifier: GPL-3.0-or-later
// What Qt's own widgets are for assistive tools, where Qt's answer does not suit the program:
// - Option buttons and check boxes are clicked, as by the mouse. Qt only sets their state, and the
//   handlers of clicks would not run.
// - A plain widget that is a window has the role of a window, and a plain frame that of a group.
#pragma once

// For all widgets of the program. Further calls do nothing.
void refineAccessibility();
