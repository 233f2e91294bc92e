// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LifeHearts.h"

#include "game/GameState.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Pixels.
constexpr int HeartSide = 24;
constexpr int HeartPitch = 28;

QPainterPath heart()
{
    QPainterPath path(QPointF(12, 21));
    path.cubicTo(2, 14, 1, 9, 3, 6);
    path.cubicTo(5.5, 2, 10.5, 3, 12, 7);
    path.cubicTo(13.5, 3, 18.5, 2, 21, 6);
    path.cubicTo(23, 9, 22, 14, 12, 21);
    return path;
}

} // namespace

LifeHearts::LifeHearts(QWidget *parent) : QWidget(parent)
{
    setFixedSize(GameState().NumLifes.toInt() * HeartPitch, HeartSide);
}

void LifeHearts::setLives(Integer lives)
{
    m_lives = lives;
    update();
}

void LifeHearts::paintEvent(QPaintEvent * /*event*/)
{
    static const QPainterPath Heart = heart();
    const QColor full(0xD8, 0x3A, 0x4B);
    const QColor lost = palette().color(QPalette::PlaceholderText);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int life = 1; life * HeartPitch <= width(); ++life) {
        const bool isLeft = life <= m_lives.toInt();
        painter.setPen(QPen(isLeft ? full : lost, 1.5));
        painter.setBrush(isLeft ? QBrush(full) : QBrush(Qt::NoBrush));
        painter.drawPath(Heart);
        painter.translate(HeartPitch, 0);
    }
}
