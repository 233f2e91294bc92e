// SPDX-License-Identifier: GPL-3.0-or-later
// The short motion of a card that is turned over: its old side narrows, its new one widens.
#pragma once

#include <QBrush>
#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

class CardTurn final : public QWidget
{
    Q_OBJECT

public:
    // Plays over the card and goes away by itself, or at the call of end; not at all where the
    // style asks for no motion.
    static void end(QWidget &card);
    // `behind` is what is seen beside the card while it turns.
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
