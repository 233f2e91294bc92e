// SPDX-License-Identifier: GPL-3.0-or-later
// A wooden tile with one letter.
#pragma once

#include <QPushButton>

class QPainter;

// Draws a tile of the size of the place. The letter is drawn in this type.
void drawTile(QPainter &painter, const QRectF &place, const QString &letter, const QFont &type);
// The type for a letter that fills a tile with sides of this length, in pixels.
[[nodiscard]] QFont tileType(QFont type, double side);

// A tile of the rack. It takes neither keyboard nor mouse.
class LetterTile final : public QPushButton
{
    Q_OBJECT

public:
    explicit LetterTile(QWidget *parent = nullptr);

    // Shows the tile and turns it from its blank side to the letter.
    void turnUp(const QString &letter);

protected:
    void paintEvent(QPaintEvent *event) override;
};
