// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: while it lives, the time of all animations stands still until the test lets it pass.
#pragma once

#include <QAnimationDriver>
#include <QCoreApplication>

class SteppedTime final : public QAnimationDriver
{
public:
    SteppedTime() { install(); }
    ~SteppedTime() override { uninstall(); }
    Q_DISABLE_COPY_MOVE(SteppedTime)

    void pass(int milliseconds)
    {
        QCoreApplication::sendPostedEvents(); // Qt starts and stops animations by events
        m_elapsed += milliseconds;
        if (isRunning())
            advanceAnimation();
        QCoreApplication::sendPostedEvents();
    }
    // Whether an animation plays.
    [[nodiscard]] bool isNeeded() const
    {
        QCoreApplication::sendPostedEvents();
        return isRunning();
    }

    [[nodiscard]] qint64 elapsed() const override { return m_elapsed; }
    void advance() override {}

protected:
    void start() override
    {
        m_elapsed = 0;
        QAnimationDriver::start();
    }

private:
    qint64 m_elapsed = 0;
};
