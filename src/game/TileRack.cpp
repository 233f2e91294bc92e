// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TileRack.h"

#include "game/LetterTile.h"
#include "game/LetterTiles.h"
#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"
#include "platform/Motion.h"

#include <QPainter>

#include <algorithm>

namespace {

// Pixels.
constexpr int LargestTile = 52;
constexpr int Rim = 6; // around the tiles
constexpr int Gap = 2; // between two tiles
constexpr double SlotCorner = 6;

using namespace std::chrono_literals;
constexpr auto WaveTime = 380ms;
// Shares of it.
constexpr double LastStart = 0.4;  // when the last tile begins to turn up
constexpr double TurnTime = 0.3;   // of one tile
constexpr double FadeStart = 0.75; // when the word begins to fade

} // namespace

TileRack::TileRack(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::Grouping, TileRack>();
    for (int i = 1; i <= LetterTiles; ++i) {
        auto *tile = new LetterTile(this);
        tile->setObjectName(QStringLiteral("cmdLetters_%1").arg(i));
        m_cmdLetters.push_back(tile);
    }
    setLargestTile(LargestTile);
}

void TileRack::setLargestTile(int side)
{
    m_largestTile = side;
    setFixedHeight(side + 2 * Rim);
    place();
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

void TileRack::wave(const QString &word)
{
    const std::vector<QRect> places = this->places();
    Motion::play(*this, rect(), WaveTime, [this, places, word](QPainter &painter, double t) {
        if (t > FadeStart)
            painter.setOpacity((1 - t) / (1 - FadeStart));
        drawSlots(painter, places);
        for (std::size_t i = 0; i < places.size(); ++i) {
            const double start = LastStart * double(i) / double(places.size());
            const double shown = std::clamp((t - start) / TurnTime, 0.0, 1.0);
            if (shown == 0)
                continue;
            painter.save();
            painter.translate(QRectF(places[i]).center());
            painter.scale(1, shown);
            const QRectF tile(-places[i].width() / 2.0, -places[i].height() / 2.0,
                              places[i].width(), places[i].height());
            drawTile(painter, tile, word.mid(qsizetype(i), 1), tileType(font(), tile.height()));
            painter.restore();
        }
    });
}

void TileRack::resizeEvent(QResizeEvent * /*event*/)
{
    place();
}

// The word is in the middle. Tiles that it does not use may lie outside the rack.
void TileRack::place()
{
    const int letters = m_letters.toInt();
    const int pitch = std::min((width() - 2 * Rim) / std::max(letters, 1), m_largestTile + Gap);
    const int side = std::max(pitch - Gap, 1);
    int left = (width() - letters * pitch + Gap) / 2 - tileOffset(m_letters).toInt() * pitch;
    for (LetterTile *tile : m_cmdLetters) {
        tile->setGeometry(left, (height() - side) / 2, side, side);
        left += pitch;
    }
}

std::vector<QRect> TileRack::places() const
{
    std::vector<QRect> places;
    const int first = tileOffset(m_letters).toInt();
    for (int i = first; i < first + m_letters.toInt(); ++i)
        places.push_back(m_cmdLetters[static_cast<std::size_t>(i)]->geometry());
    return places;
}

void TileRack::drawSlots(QPainter &painter, const std::vector<QRect> &places) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(panelColour(palette()));
    painter.drawRoundedRect(rect(), 10, 10);
    painter.setPen(QPen(quietColour(palette()), 1.5));
    painter.setBrush(Qt::NoBrush);
    for (const QRect &slot : places)
        painter.drawRoundedRect(QRectF(slot).adjusted(1.5, 1.5, -1.5, -1.5), SlotCorner,
                                SlotCorner);
}

void TileRack::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    drawSlots(painter, places());
}
