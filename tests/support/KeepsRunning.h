// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: whether an action leaves a running timer alone.
#pragma once

#include <QTest>
#include <QTimer>

#include <functional>

// Lets the timer fire once. False if the action stops it or starts it again: a timer that is
// started before the action then fires first.
[[nodiscard]] inline bool keepsRunning(QTimer &timer, const std::function<void()> &action)
{
    constexpr int soon = 20; // milliseconds
    const int interval = timer.interval();
    QObject order;
    QList<const QTimer *> fired;
    QTimer other;
    other.setTimerType(timer.timerType());
    for (const QTimer *each : {&timer, &other})
        QObject::connect(each, &QTimer::timeout, &order, [&fired, each] { fired += each; });
    timer.setInterval(soon);
    other.start(soon);
    action();
    const bool anyFired = QTest::qWaitFor([&fired] { return !fired.isEmpty(); });
    timer.setInterval(interval);
    return anyFired && fired.constFirst() == &timer;
}
