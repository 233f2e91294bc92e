// SPDX-License-Identifier: GPL-3.0-or-later
// A vertical scroll bar for a number, with the largest at the top. The upper arrow, the Up key and
// the wheel turned upwards raise it. The wheel does so only if the bar or its box has the keyboard
// focus, so that it can be turned elsewhere to scroll.
#pragma once

#include "platform/WheelSteps.h"

#include <QScrollBar>

class StepBar final : public QScrollBar
{
    Q_OBJECT

public:
    explicit StepBar(QWidget *parent = nullptr);

    // The wheel steps the number on the box as well. The box must not be null.
    void setBox(QWidget *box);

Q_SIGNALS:
    // The wheel is about to step the number while the box has the focus.
    void boxStepped();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void raiseUpwards(int action);
    void turn(QWheelEvent &event);

    QWidget *m_box = nullptr;
    WheelSteps m_wheel;
};
