// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LetterTile.h"

#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"
#include "platform/Motion.h"

#include <QPainter>

namespace {

// The same in light and dark palettes.
constexpr QColor Wood(0xF6, 0xE3, 0xB8);
constexpr QColor WoodLight(0xFD, 0xF3, 0xD9);
constexpr QColor WoodEdge(0xA8, 0x7B, 0x38);
constexpr QColor Ink(0x3A, 0x26, 0x12);

} // namespace

void drawTile(QPainter &painter, const QRectF &place, const QString &letter, const QFont &type)
{
    const double edge = place.height() / 12; // visible side of the tile below its face
    const double radius = place.height() / 7;
    const QRectF whole = place.adjusted(1, 1, -1, -1);
    const QRectF face = whole.adjusted(0, 0, 0, -edge);

    painter.setPen(Qt::NoPen);
    painter.setBrush(WoodEdge);
    painter.drawRoundedRect(whole, radius, radius);
    QLinearGradient light(face.topLeft(), face.bottomLeft());
    light.setColorAt(0, WoodLight);
    light.setColorAt(1, Wood);
    painter.setBrush(light);
    painter.drawRoundedRect(face, radius, radius);

    painter.setFont(type);
    painter.setPen(Ink);
    painter.drawText(face, Qt::AlignCenter | Qt::TextDontClip, letter);
}

QFont tileType(QFont type, double side)
{
    type.setBold(true);
    type.setPixelSize(qMax(1, qRound(side * 0.55)));
    return type;
}

LetterTile::LetterTile(QWidget *parent) : QPushButton(parent)
{
    giveAccessibleRole<QAccessible::StaticText, LetterTile>(); // there is nothing to press
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void LetterTile::turnUp(const QString &letter)
{
    setText({});
    setAccessibleName(letter);
    show();
    const QPixmap back = grab();
    setText(letter);
    Motion::turnOver(*this, back, grab(), panelColour(parentWidget()->palette()));
}

void LetterTile::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawTile(painter, rect(), text(), tileType(font(), height()));
}
