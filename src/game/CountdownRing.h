// SPDX-License-Identifier: GPL-3.0-or-later
// The countdown: a number of seconds in a ring that gets shorter with them, in the colour of the
// level. In the last five seconds it is a filled disc with a larger number.
//
// Screen readers tell the seconds when ten and when five are left, and whenever they are asked.
#pragma once

#include "runtime/Integer.h"

#include <QLabel>

class CountdownRing final : public QLabel
{
    Q_OBJECT

public:
    explicit CountdownRing(QWidget *parent = nullptr);

    // The width and height, in pixels.
    void setSide(int side);
    void setSeconds(Integer left, Integer limit);
    // 1 to 10.
    void setLevel(Integer level);
    // Shows the ring filling in the colour of the level. It stays full until setSeconds is called.
    void playFilling();
    // Shows that the time is up by a circle that closes. Changes nothing.
    void playTimeOut();

    // The colour of the ring at a level; at least 3 to 1 to the window and to the ring's track.
    [[nodiscard]] static QColor colourOf(Integer level, const QPalette &palette);

Q_SIGNALS:
    // Screen readers are told of the seconds left.
    void told();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    // share: of the ring, 0 to 1. growth: of the number, 1 = its usual size.
    void draw(QPainter &painter, double share, double growth) const;
    [[nodiscard]] bool isLastSeconds() const;
    [[nodiscard]] double share() const;

    Integer m_left;
    Integer m_limit = 1;
    Integer m_level = 1;
    bool m_isFilled = false;
};
