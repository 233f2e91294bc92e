// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LetterTile.h"

#include "platform/CardTurn.h"

#include <QPainter>

namespace {

// The same in light and dark palettes.
constexpr QColor Wood(0xF6, 0xE3, 0xB8);
constexpr QColor WoodLight(0xFD, 0xF3, 0xD9);
constexpr QColor WoodEdge(0xC4, 0x9A, 0x55);
constexpr QColor Ink(0x3A, 0x26, 0x12);

} // namespace

LetterTile::LetterTile(QWidget *parent) : QPushButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void LetterTile::turnUp(const QString &letter)
{
    setText({});
    show();
    const QPixmap back = grab();
    setText(letter);
    CardTurn::play(*this, back, grab(), parentWidget()->palette().midlight());
}

void LetterTile::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double edge = height() / 12.0; // visible side of the tile below its face
    const double radius = height() / 7.0;
    const QRectF whole = QRectF(rect()).adjusted(1, 1, -1, -1);
    const QRectF face = whole.adjusted(0, 0, 0, -edge);

    painter.setPen(Qt::NoPen);
    painter.setBrush(WoodEdge);
    painter.drawRoundedRect(whole, radius, radius);
    QLinearGradient light(face.topLeft(), face.bottomLeft());
    light.setColorAt(0, WoodLight);
    light.setColorAt(1, Wood);
    painter.setBrush(light);
    painter.drawRoundedRect(face, radius, radius);

    QFont type = font();
    type.setBold(true);
    type.setPixelSize(qMax(1, qRound(face.height() * 0.62)));
    painter.setFont(type);
    painter.setPen(Ink);
    painter.drawText(face, Qt::AlignCenter, text());
}
