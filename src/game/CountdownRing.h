// SPDX-License-Identifier: GPL-3.0-or-later
// The countdown: its seconds as a number in a ring that shrinks with them. In the last five the
// ring is a full disc with a larger number.
#pragma once

#include "runtime/Integer.h"

#include <QLabel>

class CountdownRing final : public QLabel
{
    Q_OBJECT

public:
    explicit CountdownRing(QWidget *parent = nullptr);

    void setSeconds(Integer left, Integer limit);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Integer m_left;
    Integer m_limit = 1;
};
