// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/PrizeBanner.h"

#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"

#include <QLayout>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>

namespace {

// Pixels.
constexpr int CupWidth = 64;
constexpr int SideWidth = 112; // beside the texts, on each side
constexpr double PieceLength = 8;
constexpr double PieceWidth = 5;

const QColor Gold(0xF2, 0xB9, 0x1D);

// Where a piece of confetti comes to lie: shares of the side's width from the outer edge, and of
// the height.
struct Piece
{
    double x, y, degrees;
};

constexpr std::array<Piece, 14> Pieces{{{0.06, 0.30, 20},
                                        {0.10, 0.72, 75},
                                        {0.17, 0.12, 140},
                                        {0.22, 0.90, 35},
                                        {0.30, 0.08, 60},
                                        {0.44, 0.07, 110},
                                        {0.50, 0.94, 15},
                                        {0.62, 0.08, 160},
                                        {0.72, 0.93, 95},
                                        {0.80, 0.16, 50},
                                        {0.86, 0.80, 125},
                                        {0.92, 0.36, 5},
                                        {0.95, 0.60, 80},
                                        {0.05, 0.52, 150}}};

// In a square of 64.
void paintCup(QPainter &painter)
{
    QPainterPath handles;
    handles.addEllipse(QPointF(16, 20), 9, 10);
    handles.addEllipse(QPointF(48, 20), 9, 10);
    painter.setPen(QPen(Gold.darker(135), 4));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(handles);

    QPainterPath cup(QPointF(15, 7));
    cup.lineTo(49, 7);
    cup.cubicTo(49, 26, 43, 36, 35, 38);
    cup.lineTo(35, 47);
    cup.lineTo(43, 52);
    cup.lineTo(43, 57);
    cup.lineTo(21, 57);
    cup.lineTo(21, 52);
    cup.lineTo(29, 47);
    cup.lineTo(29, 38);
    cup.cubicTo(21, 36, 15, 26, 15, 7);
    cup.closeSubpath();
    painter.setPen(QPen(Gold.darker(150), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Gold);
    painter.drawPath(cup);
    // A reflection.
    painter.setPen(QPen(Gold.lighter(150), 3, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(22, 13), QPointF(24.5, 24));
}

} // namespace

PrizeBanner::PrizeBanner(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::Grouping, PrizeBanner>();
}

void PrizeBanner::setPrize(double flown)
{
    if (!m_hasPrize) {
        m_hasPrize = true;
        const QMargins margins = layout()->contentsMargins();
        layout()->setContentsMargins(SideWidth, margins.top(), SideWidth, margins.bottom());
    }
    m_flown = flown;
    update();
}

void PrizeBanner::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_hasPrize)
        return;
    const std::array<QColor, 4> colours{Gold, accentColour(palette()), QColor(0xD8, 0x3A, 0x4B),
                                        QColor(0x7A, 0x5C, 0xC8)};
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double middle = height() / 2.0;
    for (const bool isLeft : {true, false}) {
        const double outer = isLeft ? 0 : width();
        const double inward = isLeft ? 1 : -1;
        const QPointF from(outer + inward * SideWidth / 2, middle);
        painter.setPen(Qt::NoPen);
        for (std::size_t i = 0; i < Pieces.size(); ++i) {
            const Piece &piece = Pieces[i];
            const QPointF to(outer + inward * piece.x * SideWidth, piece.y * height());
            painter.save();
            painter.translate(from + (to - from) * m_flown);
            painter.rotate(piece.degrees + 360 * (1 - m_flown));
            painter.setBrush(colours[i % colours.size()]);
            painter.drawRect(QRectF(-PieceLength / 2, -PieceWidth / 2, PieceLength, PieceWidth));
            painter.restore();
        }
        painter.save();
        painter.translate(from);
        const double size = 0.6 + 0.4 * m_flown;
        painter.scale(size, size);
        painter.translate(-CupWidth / 2.0, -CupWidth / 2.0);
        paintCup(painter);
        painter.restore();
    }
}
