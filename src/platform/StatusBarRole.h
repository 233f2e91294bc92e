// SPDX-License-Identifier: GPL-3.0-or-later
// For a widget whose name screen readers tell whenever it changes, wherever the keyboard focus is.
#pragma once

#include <QAccessibleWidget>

// Gives all widgets of this class the role of a status bar. Further calls do nothing.
template <class Widget> void giveStatusBarRole()
{
    QAccessible::installFactory(
        [](const QString & /*className*/, QObject *object) -> QAccessibleInterface * {
            auto *widget = qobject_cast<Widget *>(object);
            return widget ? new QAccessibleWidget(widget, QAccessible::StatusBar) : nullptr;
        });
}
