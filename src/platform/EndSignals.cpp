// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EndSignals.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array Signals{SIGTERM, SIGINT, SIGHUP};

// The ends of a pipe. Writing into it is one of the few things that a signal handler may do.
std::array<int, 2> pipeEnds{-1, -1};

void tell(int /*signal*/)
{
    const int error = errno;
    const char byte = 0;
    static_cast<void>(!write(pipeEnds[1], &byte, 1)); // a full pipe has been written to before
    errno = error;
}

} // namespace

EndSignals::EndSignals()
{
    if (pipe2(pipeEnds.data(), O_CLOEXEC | O_NONBLOCK) != 0)
        return; // without handlers the signals end the program
    m_notifier = std::make_unique<QSocketNotifier>(pipeEnds[0], QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &EndSignals::readPipe);
    for (std::size_t i = 0; i < Signals.size(); ++i) {
        struct sigaction action
        {
        };
        sigemptyset(&action.sa_mask);
        action.sa_handler = tell;
        action.sa_flags = SA_RESTART;
        sigaction(Signals[i], nullptr, &m_before[i]);
        if (m_before[i].sa_handler != SIG_IGN)
            sigaction(Signals[i], &action, nullptr);
    }
}

EndSignals::~EndSignals()
{
    if (!m_notifier)
        return;
    for (std::size_t i = 0; i < Signals.size(); ++i)
        sigaction(Signals[i], &m_before[i], nullptr);
    m_notifier.reset();
    for (const int end : pipeEnds)
        close(end);
}

void EndSignals::readPipe()
{
    std::array<char, 64> bytes{};
    while (read(pipeEnds[0], bytes.data(), bytes.size()) > 0)
        ;
    Q_EMIT received();
}
