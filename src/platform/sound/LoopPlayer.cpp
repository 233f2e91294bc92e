// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/LoopPlayer.h"

#include "platform/sound/LoopedSamples.h"

#include <QAudioDevice>
#include <QAudioFormat>
#include <QAudioSink>
#include <QMediaDevices>

LoopPlayer::LoopPlayer() = default;

LoopPlayer::~LoopPlayer()
{
    stop();
}

void LoopPlayer::loop(const QString &path, double gain)
{
    stop();
    m_samples.reset();
    m_gain = gain;
    std::optional<WaveFile> wave = readWaveFile(path);
    if (!wave)
        return;
    m_samples = std::make_unique<LoopedSamples>(std::move(*wave));
    start();
}

// What the sound server has in store lasts for up to a second. To be heard at once, muting throws
// that away and goes on at the place that is heard now; a change of volume can wait.
void LoopPlayer::setGain(double gain)
{
    const bool changesMuting = (gain == 0) != (m_gain == 0);
    m_gain = gain;
    if (!m_sink)
        return;
    m_samples->setGain(gain);
    if (!changesMuting)
        return;
    const qint64 inStore = m_sink->bufferSize() - m_sink->bytesFree();
    stop();
    m_samples->stepBack(inStore);
    start();
}

void LoopPlayer::start()
{
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return; // no sound on this machine
    QAudioFormat format;
    format.setSampleRate(m_samples->wave().sampleRate);
    format.setChannelCount(m_samples->wave().channels);
    format.setSampleFormat(m_samples->wave().bitsPerSample == 8 ? QAudioFormat::UInt8
                                                                : QAudioFormat::Int16);
    m_samples->setGain(m_gain);
    m_sink = std::make_unique<QAudioSink>(device, format);
    m_sink->start(m_samples.get());
}

void LoopPlayer::stop()
{
    if (m_sink)
        m_sink->stop();
    m_sink.reset();
}
