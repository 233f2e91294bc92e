// SPDX-License-Identifier: GPL-3.0-or-later
// Finding a window's controls by name and using them as a person does. What a person could not do
// (press a disabled button, type into a hidden box) fails the test at the caller's line; nothing
// is done then, and the test goes on.
#pragma once

#include "support/Caller.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QWidget>

#include <type_traits>

namespace Controls {

// A control for a test to go on with where the window has none: hidden, and of no window.
template <class Control> Control &missing()
{
    using Made = std::conditional_t<std::is_same_v<Control, QAbstractButton>, QPushButton, Control>;
    static QPointer<Made> made;
    if (!made)
        made = new Made;
    return *made;
}

// A missing control fails the test.
template <class Control>
Control &find(const QObject &window, const char *name, Caller caller = Caller::current())
{
    if (auto *found = window.findChild<Control *>(QLatin1String(name)))
        return *found;
    failTest(QLatin1String("there is no %1 named %2")
                 .arg(QLatin1String(Control::staticMetaObject.className()), QLatin1String(name)),
             caller);
    return missing<Control>();
}

// Waits until the window is active.
void waitUntilActive(QWidget &window, Caller caller = Caller::current());

void click(QAbstractButton &button, Caller caller = Caller::current());
// Chooses a menu item.
void choose(QAction &item, Caller caller = Caller::current());
// Replaces the content of a text box by what is typed.
void type(QWidget &box, const QString &text, Caller caller = Caller::current());
// Presses a key in the control that has the focus.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           Caller caller = Caller::current());
// Presses a key that is already held down: the repeated key event that the control with the focus
// gets.
void holdOn(Qt::Key key, const QString &text = {}, Caller caller = Caller::current());
// The name of the control that has the focus; empty where there is none.
[[nodiscard]] QString focusedControl();
// The names of the controls that the key visits, until it comes back to the first one.
[[nodiscard]] QStringList tabRound(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                                   Caller caller = Caller::current());

} // namespace Controls
