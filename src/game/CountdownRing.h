// SPDX-License-Identifier: GPL-3.0-or-later
// The countdown: a number of seconds in a ring that gets shorter with them. In the last five
// seconds it is a filled disc with a larger number.
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
