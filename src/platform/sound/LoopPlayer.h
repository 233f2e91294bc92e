// SPDX-License-Identifier: GPL-3.0-or-later
// The plugin that plays sounds through QAudioSink. It belongs to the thread that loads it.
#pragma once

#include "platform/sound/SoundPlayer.h"

#include <QObject>

#include <memory>

class LoopedSamples;
class QAudioSink;

class LoopPlayer final : public QObject, public SoundPlayer
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Tanglewit.SoundPlayer")
    Q_INTERFACES(SoundPlayer)

public:
    LoopPlayer();
    ~LoopPlayer() override;

    void loop(const QString &path, double gain) override;
    void setGain(double gain) override;

private:
    void start();
    void stop();

    std::unique_ptr<LoopedSamples> m_samples;
    std::unique_ptr<QAudioSink> m_sink;
    double m_gain = 1;
};
