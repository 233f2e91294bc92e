// SPDX-License-Identifier: GPL-3.0-or-later
// A vertical scroll bar for a number: the largest is at the top, and whatever points upwards, an
// arrow, a key or the wheel, raises it.
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
