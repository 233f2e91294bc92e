// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/SinkPlayer.h"

#include "platform/sound/LoopingSound.h"
#include "platform/sound/WaveFile.h"

#include <QAudioDevice>
#include <QAudioSink>
#include <QMediaDevices>

namespace {

// Enough to get over a machine that is busy for a moment; a request does not wait for it to empty.
constexpr int BufferedMilliseconds = 500;

QAudioFormat formatOf(const WaveFile &wave)
{
    QAudioFormat format;
    format.setSampleRate(wave.sampleRate);
    format.setChannelCount(wave.channels);
    format.setSampleFormat(wave.bitsPerSample == 8 ? QAudioFormat::UInt8 : QAudioFormat::Int16);
    return format;
}

} // namespace

SinkPlayer::SinkPlayer() = default;

SinkPlayer::~SinkPlayer() = default;

void SinkPlayer::loop(const QString &path)
{
    stop();
    if (path.isEmpty())
        return;
    std::optional<WaveFile> wave = readWaveFile(path);
    if (!wave)
        return;
    const QAudioDevice device = QMediaDevices::defaultAudioOutput();
    if (device.isNull())
        return;
    const QAudioFormat format = formatOf(*wave);
    m_sink = std::make_unique<QAudioSink>(device, format);
    m_sink->setBufferSize(format.bytesForDuration(BufferedMilliseconds * 1000LL));
    m_sink->start(new LoopingSound(std::move(wave->samples), m_sink.get()));
}

void SinkPlayer::stop()
{
    if (!m_sink)
        return;
    m_sink->reset();
    // Not at once: a sink that goes runs the event loop, and with it the next request.
    m_sink.release()->deleteLater();
}

extern "C" Q_DECL_EXPORT SoundPlayer *tanglewitMakeSoundPlayer()
{
    return std::make_unique<SinkPlayer>().release();
}
