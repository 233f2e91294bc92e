// SPDX-License-Identifier: GPL-3.0-or-later
// The player over the system's sound output. It belongs to the thread of its first call.
#pragma once

#include "platform/sound/SoundPlayer.h"

#include <memory>

class QAudioSink;

class SinkPlayer final : public SoundPlayer
{
public:
    SinkPlayer();
    ~SinkPlayer() override;

    void loop(const QString &path) override;

private:
    void stop();

    std::unique_ptr<QAudioSink> m_sink;
};
