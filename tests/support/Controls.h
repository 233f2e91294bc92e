// SPDX-License-Identifier: GPL-3.0-or-later
// Finding a window's controls by name and using them as a person does. What a person could not do
// (press a disabled button, type into a hidden box) ends the test with a fatal message.
#pragma once

#include <QAction>
#include <QWidget>

using namespace Qt::StringLiterals;

class QAbstractButton;

namespace Controls {

// Ends the test program, naming the test function.
[[noreturn]] void fail(const QString &what);

template <class Control> Control &find(const QObject &window, const char *name)
{
    auto *found = window.findChild<Control *>(QLatin1String(name));
    if (!found)
        fail(u"no control named %1 of that kind"_s.arg(QLatin1String(name)));
    return *found;
}

void click(QAbstractButton &button);
// Chooses a menu item.
void choose(QAction &item);
// Replaces the content of a text box by what is typed.
void type(QWidget &box, const QString &text);
// Presses a key in the control that has the focus.
void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// A key that is held down, as it comes again and again to the control that has the focus.
void holdOn(Qt::Key key, const QString &text = {});
// Its name; empty where no control has the focus.
[[nodiscard]] QString focusedControl();
// The controls that the key walks through until it comes to the first one again.
[[nodiscard]] QStringList tabRound(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

} // namespace Controls
