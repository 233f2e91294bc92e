// SPDX-License-Identifier: GPL-3.0-or-later
// Event handlers that may fail: an error ends the handler, is reported, and the program goes on.
#pragma once

#include <functional>

// Runs the handler; what it throws is reported and stops here. True where it ran to its end.
bool runGuarded(const std::function<void()> &handler);

// Whether a handler is at work. It is not while it waits for the answer to a dialog, but it is
// while it has events handled in between.
[[nodiscard]] bool isHandlerAtWork();

// The handler of `form` as a slot that no exception leaves:
//   connect(cmdAdd, &QPushButton::clicked, this, guarded(this, &frmMain::cmdAdd_Click));
template <class Form, class Class, class... Arguments>
[[nodiscard]] auto guarded(Form *form, void (Class::*handler)(Arguments...))
{
    return [form, handler](Arguments... arguments) {
        runGuarded([&] { (form->*handler)(arguments...); });
    };
}
