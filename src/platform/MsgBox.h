// SPDX-License-Identifier: GPL-3.0-or-later
// The program's message box, with the application's title, above the active window. It shows the
// whole text: long words are wrapped, and a text that is higher than the screen scrolls.
#pragma once

#include <QString>

enum class MsgBoxButtons { OkOnly, OkCancel, YesNo, YesNoCancel };
enum class MsgBoxAnswer { Ok, Cancel, Yes, No };
// What Esc and the close box do in a Yes/No question. Ignored is for questions where No loses data.
enum class MsgBoxEsc { Ignored, MeansNo };
enum class MsgBoxDefault { FirstButton, No };

// Waits for the answer. Esc and the close box mean OK if it is the only button, and Cancel if there
// is one. If the program closes the box, the answer is Cancel or No, if there is such a button.
MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons buttons = MsgBoxButtons::OkOnly,
                    MsgBoxEsc esc = MsgBoxEsc::Ignored,
                    MsgBoxDefault defaultButton = MsgBoxDefault::FirstButton);
