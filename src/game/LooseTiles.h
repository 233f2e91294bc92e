// SPDX-License-Identifier: GPL-3.0-or-later
// A label whose text lies on loose, uneven tiles, one for each letter, in the label's type. Tiles
// that do not fit into a row go to further rows, and the type gets smaller where these do not fit
// either; so every letter is always seen. The smallest type is 7 pixels high: a text that does not
// fit in it makes the label higher.
#pragma once

#include <QLabel>

#include <vector>

class LooseTiles final : public QLabel
{
    Q_OBJECT

public:
    explicit LooseTiles(QWidget *parent = nullptr);

    // The tiles of the letters in this text are taken: only their outlines are drawn.
    void setTyped(const QString &typed);

    [[nodiscard]] QSize minimumSizeHint() const override { return {1, 1}; }
    [[nodiscard]] QSize sizeHint() const override { return {1, heightForWidth(width())}; }
    // Of the smallest tiles.
    [[nodiscard]] int heightForWidth(int width) const override;

    struct Tile
    {
        QString letter;
        QPointF middle;
        double angle; // degrees
        bool isTaken;
    };
    struct Tiles
    {
        double side; // pixels
        QFont type;
        std::vector<Tile> tiles;
    };
    // The tiles as they are painted.
    [[nodiscard]] Tiles tiles() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_typed;
};
