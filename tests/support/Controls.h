// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the controls of a window by name and uses them as a person does. What a person could not
// do (click a disabled button, type into a hidden box) is not done and fails the test at the
// caller's line; the test goes on.
#pragma once

#include "support/Caller.h"

#include <QAction>
#include <QPointer>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QWidget>

#include <type_traits>

namespace Controls {

// A hidden control in the place of a missing one, so that the test can go on.
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
// Types a text in the place of the content of a text box.
void type(QWidget &box, const QString &text, Caller caller = Caller::current());
// Presses a key in the control that has the keyboard focus.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
           Caller caller = Caller::current());
// Sends the repeated press of a key that is held down to the control with the keyboard focus.
void holdOn(Qt::Key key, const QString &text = {}, Caller caller = Caller::current());
// Where an arrow, the slider or the groove of a scroll bar is; empty where the bar has none.
[[nodiscard]] QRect placeOf(const QScrollBar &bar, QStyle::SubControl part);
// The middle of an arrow or of the slider of a scroll bar. A bar without that part fails the test.
[[nodiscard]] QPoint middleOf(const QScrollBar &bar, QStyle::SubControl part,
                              Caller caller = Caller::current());
// The name of the control that has the focus; empty where there is none.
[[nodiscard]] QString focusedControl();
// The names of the controls that get the focus by this key, until the first one has it again.
[[nodiscard]] QStringList tabRound(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier,
                                   Caller caller = Caller::current());

} // namespace Controls
