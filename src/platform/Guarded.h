// SPDX-License-Identifier: GPL-3.0-or-later
// Event handlers that may throw: the exception ends the handler and is shown in a message box, and
// the program goes on.
#pragma once

#include <QAbstractButton>
#include <QAction>

#include <functional>

// Runs the handler and shows what it throws. True if it threw nothing.
bool runGuarded(const std::function<void()> &handler);

// Whether a handler is running. One that waits for the answer to a dialog does not count; one that
// calls processEvents does.
[[nodiscard]] bool isHandlerAtWork();

// Called after each handler that is not part of another one and that no other one waits for, as
// one that shows a dialog does. None by default.
void setHandlerEndHook(std::function<void()> ended);

// A slot that calls the handler of `form` by runGuarded:
//   connect(cmdAdd, &QPushButton::clicked, this, guarded(this, &frmMain::cmdAdd_Click));
template <class Form, class Class, class... Arguments>
[[nodiscard]] auto guarded(Form *form, void (Class::*handler)(Arguments...))
{
    return [form, handler](Arguments... arguments) {
        runGuarded([&] { (form->*handler)(arguments...); });
    };
}

// Connects the clicks on a button, or the choice of a menu item, to a handler of `form`:
//   onClick(m_ui->cmdAdd, this, &frmMain::cmdAdd_Click);
template <class Form, class Class>
void onClick(const QAbstractButton *button, Form *form, void (Class::*handler)())
{
    QObject::connect(button, &QAbstractButton::clicked, form, guarded(form, handler));
}

template <class Form, class Class>
void onClick(const QAction *item, Form *form, void (Class::*handler)())
{
    QObject::connect(item, &QAction::triggered, form, guarded(form, handler));
}
