// SPDX-License-Identifier: GPL-3.0-or-later
// Wave files made byte by byte.
#pragma once

#include <QByteArray>
#include <QtEndian>

template <class Number> [[nodiscard]] QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

[[nodiscard]] inline QByteArray chunk(const QByteArray &name, const QByteArray &content)
{
    return name + littleEndian(quint32(content.size())) + content +
           QByteArray(content.size() % 2, '\0');
}

[[nodiscard]] inline QByteArray riff(const QByteArray &chunks)
{
    return chunk("RIFF", "WAVE" + chunks);
}

[[nodiscard]] inline QByteArray formatChunk(int sampleRate, int channels, int bits, int kind = 1)
{
    const int frame = channels * bits / 8;
    return chunk("fmt ", littleEndian(quint16(kind)) + littleEndian(quint16(channels)) +
                             littleEndian(quint32(sampleRate)) +
                             littleEndian(quint32(sampleRate * frame)) +
                             littleEndian(quint16(frame)) + littleEndian(quint16(bits)));
}

[[nodiscard]] inline QByteArray waveBytes(int sampleRate, int channels, int bits,
                                          const QByteArray &samples)
{
    return riff(formatChunk(sampleRate, channels, bits) + chunk("data", samples));
}
