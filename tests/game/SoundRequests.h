// SPDX-License-Identifier: GPL-3.0-or-later
// Notes the requests for sound as long as it lives; nothing is heard.
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

    // File name and flags of each since the last call.
    QStringList take() { return std::exchange(m_requests, {}); }

private:
    QStringList m_requests;
};
