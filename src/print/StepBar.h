// SPDX-License-Identifier: GPL-3.0-or-later
// A vertical scroll bar for a number, with the largest at the top. The upper arrow, the Up key and
// the wheel turned upwards raise it.
#pragma once

#include "platform/WheelSteps.h"

#include <QScrollBar>

class StepBar final : public QScrollBar
{
    Q_OBJECT

public:
    explicit StepBar(QWidget *parent = nullptr);

protected:
    void wheelEvent(QWheelEvent *event) override;

private:
    void raiseUpwards(int action);

    WheelSteps m_wheel;
};
