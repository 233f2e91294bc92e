// SPDX-License-Identifier: GPL-3.0-or-later
// The lives as a row of hearts: a filled heart for each life left, an outline for each lost one.
#pragma once

#include "runtime/Integer.h"

#include <QWidget>

class LifeHearts final : public QWidget
{
    Q_OBJECT

public:
    explicit LifeHearts(QWidget *parent = nullptr);

    void setLives(Integer lives);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    Integer m_lives;
};
