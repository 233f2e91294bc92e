// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LooseTiles.h"

#include "game/LetterTile.h"

#include <QFontInfo>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace {

constexpr double SideOfType = 1.24;  // of a tile, in heights of its type
constexpr double PitchOfSide = 1.1;  // from tile to tile, in sides; uneven tiles do not touch
constexpr double RowOfSide = 1.25;   // from row to row
constexpr int SmallestType = 7;      // pixels
constexpr double LargestAngle = 6;   // degrees
constexpr double LargestShift = 0.5; // up or down, in sides, where there is room

struct Rows
{
    qsizetype count = 0;
    qsizetype lettersPerRow = 1; // in all but the last, which may have fewer
};

// The letters are spread evenly over as few rows as the width allows.
Rows rowsOf(qsizetype letters, double side, int width)
{
    if (letters == 0)
        return {};
    const auto fitting = std::max<qsizetype>(1, qsizetype(width / (side * PitchOfSide)));
    const qsizetype rows = (letters + fitting - 1) / fitting;
    return {rows, (letters + rows - 1) / rows};
}

double heightOf(Rows rows, double side)
{
    return double(rows.count) * side * RowOfSide;
}

// The largest type up to this height, in pixels, whose tiles fit.
int fittingType(int type, qsizetype letters, QSize room)
{
    const auto fits = [&](int pixels) {
        const double side = pixels * SideOfType;
        return side * PitchOfSide <= room.width() &&
               heightOf(rowsOf(letters, side, room.width()), side) <= room.height();
    };
    while (type > SmallestType && !fits(type))
        --type;
    return type;
}

// A number from -1 to 1 that is always the same for a letter at its place.
double unevenness(qsizetype place, QChar letter, unsigned salt)
{
    unsigned mixed = (unsigned(place) * 2654435761U) ^ (letter.unicode() * 40503U) ^ (salt << 20U);
    mixed ^= mixed >> 15U;
    mixed *= 2246822519U;
    mixed ^= mixed >> 13U;
    return double(mixed % 2001) / 1000 - 1;
}

// Which letters are covered by those that were typed; each typed letter covers one.
std::vector<bool> takenLetters(const QString &text, QString typed)
{
    std::vector<bool> taken;
    for (const QChar letter : text) {
        const qsizetype place = typed.indexOf(letter);
        taken.push_back(place >= 0);
        if (place >= 0)
            typed.remove(place, 1);
    }
    return taken;
}

} // namespace

LooseTiles::LooseTiles(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void LooseTiles::setTyped(const QString &typed)
{
    m_typed = typed;
    update();
}

int LooseTiles::heightForWidth(int width) const
{
    constexpr double side = SmallestType * SideOfType;
    return int(std::ceil(heightOf(rowsOf(text().size(), side, width), side)));
}

LooseTiles::Tiles LooseTiles::tiles() const
{
    const QString text = this->text();
    const int pixels = fittingType(QFontInfo(font()).pixelSize(), text.size(), size());
    Tiles result{pixels * SideOfType, font(), {}};
    result.type.setPixelSize(pixels);

    const Rows rows = rowsOf(text.size(), result.side, width());
    const double freeAbove = (height() - heightOf(rows, result.side)) / 2;
    const double pitch = result.side * PitchOfSide;
    const double shift = rows.count == 1 ? std::clamp(freeAbove, 0.0, LargestShift * result.side)
                                         : result.side * 0.06;
    const std::vector<bool> taken = takenLetters(text, m_typed);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const qsizetype row = i / rows.lettersPerRow;
        const qsizetype inRow =
            std::min(rows.lettersPerRow, text.size() - row * rows.lettersPerRow);
        const double x =
            width() / 2.0 + (double(i % rows.lettersPerRow) - double(inRow - 1) / 2) * pitch;
        const double y = freeAbove + (double(row) + 0.5) * result.side * RowOfSide;
        result.tiles.push_back({text.mid(i, 1),
                                {x, y + shift * unevenness(i, text[i], 1)},
                                LargestAngle * unevenness(i, text[i], 2),
                                taken[std::size_t(i)]});
    }
    return result;
}

void LooseTiles::paintEvent(QPaintEvent * /*event*/)
{
    const Tiles shown = tiles();
    const QRectF place(-shown.side / 2, -shown.side / 2, shown.side, shown.side);
    const double radius = shown.side / 7;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    for (const Tile &tile : shown.tiles) {
        painter.save();
        painter.translate(tile.middle);
        painter.rotate(tile.angle);
        if (tile.isTaken) {
            const QColor quiet = palette().color(QPalette::PlaceholderText);
            painter.setPen(QPen(quiet, 1, Qt::DashLine));
            painter.setBrush(Qt::NoBrush);
            painter.drawRoundedRect(place.adjusted(1, 1, -1, -1), radius, radius);
            painter.setPen(quiet);
            painter.setFont(shown.type);
            painter.drawText(place, Qt::AlignCenter | Qt::TextDontClip, tile.letter);
        } else {
            drawTile(painter, place, tile.letter, shown.type);
        }
        painter.restore();
    }
}
