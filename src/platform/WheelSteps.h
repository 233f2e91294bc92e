// SPDX-License-Identifier: GPL-3.0-or-later
// Adds up the parts of a wheel step that high-resolution wheels and touchpads send.
#pragma once

#include <QWheelEvent>

class WheelSteps
{
public:
    // Takes a wheel event's angle in eighths of a degree. Returns the whole steps since the last
    // ones; upwards is positive. A change of direction drops the part of a step turned before.
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
