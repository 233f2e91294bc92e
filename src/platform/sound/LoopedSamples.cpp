// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/LoopedSamples.h"

#include <QtEndian>

#include <algorithm>
#include <cmath>
#include <utility>

LoopedSamples::LoopedSamples(WaveFile wave, QObject *parent)
    : QIODevice(parent), m_wave(std::move(wave))
{
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

void LoopedSamples::stepBack(qint64 bytes)
{
    const qint64 size = m_wave.samples.size();
    const qint64 frame = qint64(m_wave.channels) * m_wave.bitsPerSample / 8;
    const qint64 step = std::clamp<qint64>(bytes / frame * frame, 0, size);
    m_position = qsizetype((m_position + size - step) % size);
}

qint64 LoopedSamples::readData(char *data, qint64 maxSize)
{
    const qsizetype wanted =
        qsizetype(maxSize) / (m_wave.bitsPerSample / 8) * (m_wave.bitsPerSample / 8);
    for (qsizetype read = 0; read < wanted;) {
        const qsizetype part = std::min(wanted - read, m_wave.samples.size() - m_position);
        std::copy_n(m_wave.samples.cbegin() + m_position, part, data + read);
        read += part;
        m_position = (m_position + part) % m_wave.samples.size();
    }
    scale(data, wanted);
    return wanted;
}

void LoopedSamples::scale(char *data, qsizetype size) const
{
    if (m_gain == 1)
        return;
    if (m_wave.bitsPerSample == 8) {
        constexpr int Middle = 128; // the samples are unsigned
        for (qsizetype i = 0; i < size; ++i) {
            const int sample = static_cast<quint8>(data[i]) - Middle;
            data[i] = static_cast<char>(std::lround(sample * m_gain) + Middle);
        }
        return;
    }
    for (qsizetype i = 0; i < size; i += qsizetype(sizeof(qint16))) {
        const auto sample = qFromLittleEndian<qint16>(data + i);
        qToLittleEndian(static_cast<qint16>(std::lround(sample * m_gain)), data + i);
    }
}
