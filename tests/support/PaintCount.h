// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: counts how often a widget is painted.
#pragma once

#include <QEvent>
#include <QWidget>

class PaintCount final : public QObject
{
public:
    explicit PaintCount(QWidget &widget) { widget.installEventFilter(this); }
    [[nodiscard]] int count() const { return m_count; }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        m_count += event->type() == QEvent::Paint;
        return QObject::eventFilter(object, event);
    }

private:
    int m_count = 0;
};
