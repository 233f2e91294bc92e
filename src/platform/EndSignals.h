// SPDX-License-Identifier: GPL-3.0-or-later
// Delivers SIGTERM, SIGINT and SIGHUP in the event loop. A signal that was ignored when the program
// started (as nohup does with SIGHUP) stays ignored.
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
    // There can be one object at a time. Its destructor restores the previous signal handlers.
    EndSignals();
    ~EndSignals() override;

Q_SIGNALS:
    void received();

private:
    void readPipe();

    std::unique_ptr<QSocketNotifier> m_notifier;
    std::array<struct sigaction, 3> m_before{};
};
