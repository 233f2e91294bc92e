// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a handler when the keyboard focus leaves a control for another control of the window. It
// does not run when another window or a menu takes the focus.
#pragma once

#include "platform/Guarded.h"

#include <QEvent>
#include <QFocusEvent>
#include <QObject>
#include <QWidget>

#include <functional>
#include <utility>

class LostFocus final : public QObject
{
public:
    LostFocus(QWidget *control, std::function<void()> handler)
        : QObject(control), m_handler(std::move(handler))
    {
        control->installEventFilter(this);
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusOut) {
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
                runGuarded(m_handler);
        }
        return QObject::eventFilter(watched, event);
    }

private:
    std::function<void()> m_handler;
};
