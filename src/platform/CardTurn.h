// SPDX-License-Identifier: GPL-3.0-or-later
// The animation of a card that is turned over: the old side gets narrower, then the new side gets
// wider.
#pragma once

#include <QBrush>
#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

class CardTurn final : public QWidget
{
    Q_OBJECT

public:
    // Removes an animation that is still running.
    static void end(QWidget &card);
    // Plays on top of the card, then removes itself. Does nothing if the style has no animations.
    // `behind` fills the area beside the narrow card.
    static void play(QWidget &card, const QPixmap &oldSide, const QPixmap &newSide,
                     const QBrush &behind);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    CardTurn(QWidget &card, QPixmap oldSide, QPixmap newSide, const QBrush &behind);

    QPixmap m_oldSide;
    QPixmap m_newSide;
    QBrush m_behind;
    QVariantAnimation m_turn; // from 0, the old side, to 1, the new one
};
