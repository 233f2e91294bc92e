// SPDX-License-Identifier: GPL-3.0-or-later
// A style whose animations take this many milliseconds; 0 means no animations.
#pragma once

#include <QProxyStyle>

class MotionStyle final : public QProxyStyle
{
public:
    explicit MotionStyle(int duration) : m_duration(duration) {}
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override
    {
        return hint == SH_Widget_Animation_Duration
                   ? m_duration
                   : QProxyStyle::styleHint(hint, option, widget, returnData);
    }

private:
    int m_duration;
};
