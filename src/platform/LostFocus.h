// SPDX-License-Identifier: GPL-3.0-or-later
// The event of a control that the keyboard leaves for another control of its window. Another
// window coming up is no such event.
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
