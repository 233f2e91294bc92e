// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TileRack.h"

#include "game/LetterTile.h"
#include "game/LetterTiles.h"

#include <QPainter>

#include <algorithm>

namespace {

// Pixels.
constexpr int LargestTile = 52;
constexpr int Rim = 6; // around the tiles
constexpr int Gap = 2; // between two tiles

} // namespace

TileRack::TileRack(QWidget *parent) : QWidget(parent)
{
    setFixedHeight(LargestTile + 2 * Rim);
    for (int i = 1; i <= LetterTiles; ++i) {
        auto *tile = new LetterTile(this);
        tile->setObjectName(QStringLiteral("cmdLetters_%1").arg(i));
        m_cmdLetters.push_back(tile);
    }
}

void TileRack::prepare(Integer letters)
{
    uncover(0, {});
    m_letters = std::min(letters, Integer(LetterTiles));
    place();
    update();
}

void TileRack::uncover(Integer count, const QString &word)
{
    const int offset = tileOffset(word.size()).toInt();
    for (int i = 0; i < LetterTiles; ++i) {
        LetterTile &tile = *m_cmdLetters[static_cast<std::size_t>(i)];
        const int letter = i - offset;
        if (letter < 0 || letter >= count.toInt() || letter >= word.size())
            tile.hide();
        else if (tile.isHidden())
            tile.turnUp(word.mid(letter, 1));
    }
}

void TileRack::resizeEvent(QResizeEvent * /*event*/)
{
    place();
}

// The row of 30 tiles is centred, so a word with an odd number of letters lies half a tile beside
// the middle. Tiles that the word does not use may lie outside the rack.
void TileRack::place()
{
    const int pitch = std::min((width() - 2 * Rim) / (m_letters.toInt() + 1), LargestTile + Gap);
    const int side = std::max(pitch - Gap, 1);
    int left = width() / 2 - LetterTiles / 2 * pitch + Gap / 2;
    for (LetterTile *tile : m_cmdLetters) {
        tile->setGeometry(left, (height() - side) / 2, side, side);
        left += pitch;
    }
}

void TileRack::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().midlight());
    painter.drawRoundedRect(rect(), 10, 10);
    painter.setPen(QPen(palette().mid(), 1));
    painter.setBrush(Qt::NoBrush);
    const int first = tileOffset(m_letters).toInt();
    for (int i = first; i < first + m_letters.toInt(); ++i) {
        const QRectF place(m_cmdLetters[static_cast<std::size_t>(i)]->geometry());
        painter.drawRoundedRect(place.adjusted(1.5, 1.5, -1.5, -1.5), 6, 6);
    }
}
