// SPDX-License-Identifier: GPL-3.0-or-later
// The top of the Top 10 dialog. For a score with a place, a cup and confetti are painted beside the
// texts that are laid out in it; otherwise it is plain.
#pragma once

#include <QWidget>

class PrizeBanner final : public QWidget
{
    Q_OBJECT

public:
    explicit PrizeBanner(QWidget *parent = nullptr);

    // From 0 to 1, how far the confetti has flown. At 1 it lies where it stays.
    void setPrize(double flown);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_hasPrize = false;
    double m_flown = 0;
};
