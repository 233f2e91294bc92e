// SPDX-License-Identifier: GPL-3.0-or-later
// The rack of the letter tiles. It has as many places as the word has letters; the tiles are as
// large as this allows.
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

    // Covers all tiles and makes places for a word with this number of letters.
    void prepare(Integer letters);
    // Turns up the tiles of the word's first `count` letters, as far as there are tiles, and
    // covers the others.
    void uncover(Integer count, const QString &word);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();

    std::vector<LetterTile *> m_cmdLetters; // 1 to 30
    Integer m_letters;                      // of the word; 0 = none
};
