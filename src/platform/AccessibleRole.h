// SPDX-License-Identifier: GPL-3.0-or-later
// What a widget is for assistive tools, where Qt's own answer is too general.
#pragma once

#include <QAccessibleWidget>

// Gives all widgets of this class the role. Further calls do nothing. Screen readers tell the name
// of a status bar whenever it changes, wherever the keyboard focus is.
template <QAccessible::Role role, class Widget> void giveAccessibleRole()
{
    QAccessible::installFactory(
        [](const QString & /*className*/, QObject *object) -> QAccessibleInterface * {
            auto *widget = qobject_cast<Widget *>(object);
            return widget ? new QAccessibleWidget(widget, role) : nullptr;
        });
}
