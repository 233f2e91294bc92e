// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/TimeLine.h"

#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"
#include "platform/Motion.h"
#include "platform/RetainedSize.h"

#include <QPainter>

#include <algorithm>
#include <chrono>

using namespace std::chrono_literals;

namespace {

constexpr int Thickness = 4; // pixels

} // namespace

TimeLine::TimeLine(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::Graphic, TimeLine>();
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    retainSizeWhenHidden(*this); // the card above it keeps its size
    setVisible(false);
    connect(&m_steps, &QTimer::timeout, this, &TimeLine::refresh);
}

void TimeLine::setTimer(const QTimer &timer)
{
    m_timer = &timer;
}

void TimeLine::refresh()
{
    const bool runs = m_timer && m_timer->isActive();
    setVisible(runs);
    update();
    if (!runs)
        m_steps.stop();
    else if (!m_steps.isActive())
        m_steps.start(Motion::usualTime(*this) > 0ms ? 30ms : 1000ms);
}

double TimeLine::left() const
{
    if (!m_timer || !m_timer->isActive() || m_timer->interval() <= 0)
        return 0;
    return std::clamp(double(m_timer->remainingTime()) / m_timer->interval(), 0.0, 1.0);
}

QSize TimeLine::sizeHint() const
{
    return {0, Thickness};
}

void TimeLine::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(accentColour(palette()));
    const double radius = Thickness / 2.0;
    painter.drawRoundedRect(QRectF(0, 0, width() * left(), height()), radius, radius);
}
