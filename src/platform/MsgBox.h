// SPDX-License-Identifier: GPL-3.0-or-later
// The program's message box: a text and standard buttons over the active window, titled with the
// application's title.
#pragma once

#include <QString>

enum class MsgBoxButtons { OkOnly, OkCancel, YesNo, YesNoCancel };
enum class MsgBoxAnswer { Ok, Cancel, Yes, No };

// Waits for the answer. Esc and the close box answer OK where that is the only button and Cancel
// where there is one; a Yes/No question must be answered by one of its buttons.
MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons buttons = MsgBoxButtons::OkOnly);
