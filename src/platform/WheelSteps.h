// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of a wheel, put together from the parts of a step that fine wheels and touchpads send.
#pragma once

#include <QWheelEvent>

class WheelSteps
{
public:
    // How many steps are completed by turning it that far, in eighths of a degree; upwards is
    // positive. Turned back, it starts anew.
    [[nodiscard]] int turned(int delta)
    {
        if ((delta < 0) != (m_rest < 0))
            m_rest = 0;
        m_rest += delta;
        const int steps = m_rest / QWheelEvent::DefaultDeltasPerStep;
        m_rest %= QWheelEvent::DefaultDeltasPerStep;
        return steps;
    }

private:
    int m_rest = 0;
};
