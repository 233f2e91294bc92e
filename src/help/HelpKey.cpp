// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/HelpKey.h"

#include "help/Handbook.h"
#include "platform/Guarded.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWidget>

HelpKey::HelpKey()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto &key = static_cast<QKeyEvent &>(*event);
    if (key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier || key.isAutoRepeat())
        return false;
    auto &control = static_cast<QWidget &>(*watched);
    const QString page = handbookPageOf(control);
    if (page.isEmpty())
        return false;
    // Not while a long command shows its progress, nor over its own message.
    if (isHandlerAtWork() || m_isHelping)
        return true;
    const QScopedValueRollback helping(m_isHelping, true);
    runGuarded([&] { openHandbook(page, control.window()); });
    return true;
}
