// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: records the requests for sound, which are not played, until it is destroyed.
#pragma once

#include "platform/sndPlaySoundA.h"

#include <QStringList>

#include <utility>

class SoundRequests final
{
public:
    SoundRequests()
    {
        setSoundPlayer([this](const QString &fileName, unsigned flags) {
            m_requests += fileName + u' ' + QString::number(flags);
        });
    }
    ~SoundRequests() { setSoundPlayer({}); }
    Q_DISABLE_COPY_MOVE(SoundRequests)

    // "file name flags" of each request since the last call.
    QStringList take() { return std::exchange(m_requests, {}); }

private:
    QStringList m_requests;
};
