// SPDX-License-Identifier: GPL-3.0-or-later
// A letter tile: a button that looks like a piece of wood with a letter, turned up where it lies.
#pragma once

#include <QPushButton>

class LetterTile final : public QPushButton
{
    Q_OBJECT

public:
    explicit LetterTile(QWidget *parent);

    // Shows the tile with the letter; it is seen to turn, unless the style asks for no motion.
    void turnUp(const QString &letter);

protected:
    void paintEvent(QPaintEvent *event) override;
};
