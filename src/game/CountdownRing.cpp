// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/CountdownRing.h"

#include "platform/Appearance.h"

#include <QPainter>

#include <algorithm>

namespace {

// Pixels.
constexpr int RingSide = 84;
constexpr int RingWidth = 8;
constexpr int NumberHeight = 30;
constexpr int LastNumberHeight = 42;

constexpr int LastSeconds = 5;

constexpr QColor Alarm(0xC6, 0x28, 0x28); // contrast to white 5.6 to 1

} // namespace

CountdownRing::CountdownRing(QWidget *parent) : QLabel(parent)
{
    setFixedSize(RingSide, RingSide);
}

void CountdownRing::setSeconds(Integer left, Integer limit)
{
    m_left = left;
    m_limit = limit;
    setText(left.toText());
    update();
}

void CountdownRing::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double half = RingWidth / 2.0;
    const QRectF ring = QRectF(rect()).adjusted(half, half, -half, -half);
    const bool last = m_left <= LastSeconds;

    painter.setPen(QPen(palette().mid(), RingWidth));
    painter.setBrush(last ? QBrush(Alarm) : QBrush(Qt::NoBrush));
    painter.drawEllipse(ring);
    const double share = double(m_left.toInt()) / std::max(m_limit.toInt(), 1);
    constexpr int FullCircle = 360 * 16;
    constexpr int Top = 90 * 16;
    painter.setPen(
        QPen(last ? Alarm : accentColour(palette()), RingWidth, Qt::SolidLine, Qt::RoundCap));
    if (m_left > 0)
        painter.drawArc(ring, Top, -qRound(share * FullCircle));

    QFont type = font();
    type.setBold(true);
    type.setPixelSize(last ? LastNumberHeight : NumberHeight);
    painter.setFont(type);
    painter.setPen(last ? QColor(Qt::white) : palette().color(QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter, text());
}
