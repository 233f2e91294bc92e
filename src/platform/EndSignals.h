// SPDX-License-Identifier: GPL-3.0-or-later
// The system's signals that ask the program to end (SIGTERM, SIGINT, SIGHUP), brought into the
// event loop. One that the program was started to ignore, as by nohup, stays ignored.
#pragma once

#include <QObject>
#include <QSocketNotifier>

#include <array>
#include <memory>

#include <csignal>

class EndSignals final : public QObject
{
    Q_OBJECT

public:
    // There may be one such object at a time. The signals do what they did before when it goes.
    EndSignals();
    ~EndSignals() override;

Q_SIGNALS:
    void received();

private:
    void readPipe();

    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, 3> m_before{};
};
