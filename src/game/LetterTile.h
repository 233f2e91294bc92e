// SPDX-License-Identifier: GPL-3.0-or-later
// A letter tile: a wooden piece with a letter. It takes neither mouse nor keyboard.
#pragma once

#include <QPushButton>

class LetterTile final : public QPushButton
{
    Q_OBJECT

public:
    explicit LetterTile(QWidget *parent);

    // Shows the tile with the letter, animated if the style allows animations.
    void turnUp(const QString &letter);

protected:
    void paintEvent(QPaintEvent *event) override;
};
