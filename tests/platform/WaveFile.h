// SPDX-License-Identifier: GPL-3.0-or-later
// Reading wave files.
#pragma once

#include "runtime/ByteReader.h"

#include <QFile>

#include <optional>

struct WaveFile
{
    int sampleRate = 0;
    int channels = 0;
    int bitsPerSample = 0;
    QByteArray samples;
};

// Nothing if the file cannot be read or has no samples.
[[nodiscard]] inline std::optional<WaveFile> readWaveFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    ByteReader reader(bytes);
    if (reader.take(4) != "RIFF" || reader.take(8).last(4) != "WAVE")
        return std::nullopt;
    WaveFile wave;
    while (!reader.atEnd() && wave.samples.isEmpty()) {
        const QByteArrayView name = reader.take(4);
        const QByteArrayView chunk = reader.take(reader.number<quint32>());
        ByteReader format(chunk);
        if (name == "fmt ") {
            format.number<quint16>(); // the kind
            wave.channels = format.number<quint16>();
            wave.sampleRate = format.number<qint32>();
            format.take(6); // bytes a second and bytes of a sample of all channels
            wave.bitsPerSample = format.number<quint16>();
        } else if (name == "data") {
            wave.samples = chunk.toByteArray();
        }
    }
    if (wave.channels == 0 || wave.samples.isEmpty())
        return std::nullopt;
    return wave;
}
