// SPDX-License-Identifier: GPL-3.0-or-later
// The program's message box: a text and standard buttons over the active window, titled with the
// application's title. It shows the whole text: lines break wherever they must, and a text that is
// higher than the screen scrolls.
#pragma once

#include <QString>

enum class MsgBoxButtons { OkOnly, OkCancel, YesNo, YesNoCancel };
enum class MsgBoxAnswer { Ok, Cancel, Yes, No };
// What Esc and the close box do at a Yes/No question: nothing where No would lose something.
enum class MsgBoxEsc { Ignored, MeansNo };
enum class MsgBoxDefault { FirstButton, No };

// Waits for the answer. Esc and the close box answer OK where that is the only button and Cancel
// where there is one. A box that ends without any of its buttons is answered by Cancel or No, if
// it has one of them.
MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons buttons = MsgBoxButtons::OkOnly,
                    MsgBoxEsc esc = MsgBoxEsc::Ignored,
                    MsgBoxDefault defaultButton = MsgBoxDefault::FirstButton);
