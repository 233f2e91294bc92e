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
    // Uncovers letter `position` of the word; one that it lacks or that has no tile is left out.
    void uncover(Integer position, const QString &word);
    void coverAll();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void place();

    std::vector<LetterTile *> m_cmdLetters; // 1 to 30
    Integer m_letters;                      // of the word; 0 = no word yet
};
