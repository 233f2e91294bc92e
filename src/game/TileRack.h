// SPDX-License-Identifier: GPL-3.0-or-later
// The rack of the letter tiles, made for the word on show: as many places as it has letters, and
// tiles as large as that allows.
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

    // Covers all tiles and makes room for a word of so many letters; for 0 the rack is empty.
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
