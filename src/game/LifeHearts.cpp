// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LifeHearts.h"

#include "game/GameState.h"
#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"
#include "platform/Motion.h"

#include <QPainter>
#include <QPainterPath>

namespace {

// Pixels.
constexpr int HeartSide = 24;
constexpr int HeartPitch = 28;

constexpr std::chrono::milliseconds FadingTime(400);

QColor fullColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xF0, 0x61, 0x6E) : QColor(0xD8, 0x3A, 0x4B);
}

QPainterPath heart()
{
    QPainterPath path(QPointF(12, 21));
    path.cubicTo(2, 14, 1, 9, 3, 6);
    path.cubicTo(5.5, 2, 10.5, 3, 12, 7);
    path.cubicTo(13.5, 3, 18.5, 2, 21, 6);
    path.cubicTo(23, 9, 22, 14, 12, 21);
    return path;
}

void drawHeart(QPainter &painter, const QColor &outline, const QBrush &inside)
{
    static const QPainterPath Heart = heart();
    painter.setPen(QPen(outline, 1.5));
    painter.setBrush(inside);
    painter.drawPath(Heart);
}

} // namespace

LifeHearts::LifeHearts(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::StatusBar, LifeHearts>();
    setFixedSize(GameState().NumLifes.toInt() * HeartPitch, HeartSide);
}

void LifeHearts::setLives(Integer lives)
{
    if (lives == m_lives)
        return;
    const bool isLost = lives == m_lives - 1 && lives >= 0;
    m_lives = lives;
    setAccessibleName(lives == 1 ? QStringLiteral("1 life left")
                                 : QStringLiteral("%1 lives left").arg(lives.toInt()));
    update();
    Motion::end(*this);
    if (!isLost)
        return;
    const QRect place(lives.toInt() * HeartPitch, 0, HeartSide, HeartSide);
    Motion::play(*this, place, FadingTime,
                 [colour = fullColour(palette())](QPainter &painter, double t) {
                     painter.setOpacity(1 - t);
                     drawHeart(painter, colour, colour);
                 });
}

void LifeHearts::paintEvent(QPaintEvent * /*event*/)
{
    const QColor full = fullColour(palette());
    const QColor lost = quietColour(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (int life = 1; life * HeartPitch <= width(); ++life) {
        const bool isLeft = life <= m_lives.toInt();
        drawHeart(painter, isLeft ? full : lost, isLeft ? QBrush(full) : QBrush(Qt::NoBrush));
        painter.translate(HeartPitch, 0);
    }
}
