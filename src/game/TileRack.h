// SPDX-License-Identifier: GPL-3.0-or-later
// The row of 30 tiles that the countdown uncovers. The places of the current word's letters are
// seen as empty slots, in the middle of the rack.
#pragma once

#include "runtime/Integer.h"

#include <QWidget>

#include <vector>

class LetterTile;

class TileRack final : public QWidget
{
    Q_OBJECT

public:
    explicit TileRack(QWidget *parent = nullptr);

    // Of the largest tiles, in pixels. It sets the height of the rack.
    void setLargestTile(int side);
    // Covers all tiles and shows a slot for each letter of the next word.
    void prepare(Integer letters);
    // Turns up the tiles of the word's first letters and covers the others.
    void uncover(Integer count, const QString &word);
    // Lets the tiles of a word that was answered turn up in a wave, in the places that they have
    // now. Changes nothing.
    void wave(const QString &word);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
    void drawSlots(QPainter &painter, const std::vector<QRect> &places) const;
    // The places of the word's letters.
    [[nodiscard]] std::vector<QRect> places() const;

    int m_largestTile = 0;
    Integer m_letters = 0; // of the word, at most 30
    std::vector<LetterTile *> m_cmdLetters;
};
