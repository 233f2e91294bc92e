// SPDX-License-Identifier: GPL-3.0-or-later
// A thin line that shows how much of a timer's time is left: it gets shorter until the timer fires.
// With reduced motion it does so in steps of a second. The line is hidden while the timer is off.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>

class TimeLine final : public QWidget
{
    Q_OBJECT

public:
    explicit TimeLine(QWidget *parent = nullptr);

    // The timer whose time is shown. It may be destroyed before the line.
    void setTimer(const QTimer &timer);
    // Call it when the timer was started or stopped.
    void refresh();

    // Of the timer's time: 1 = all is left.
    [[nodiscard]] double left() const;
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPointer<const QTimer> m_timer;
    QTimer m_steps{this};
};
