// SPDX-License-Identifier: GPL-3.0-or-later
// Option buttons and check boxes for assistive tools, which click them as the mouse does. Qt's own
// interface only sets their state, and the handlers of clicks would not run.
#pragma once

// For all option buttons and check boxes of the program. Further calls do nothing.
void makeOptionsClickable();
