// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/WaveFile.h"

#include "runtime/ByteReader.h"

#include <QFile>

namespace {

constexpr quint16 PlainSamples = 1;

// Whether the chunk describes samples that can be played.
bool readFormat(QByteArrayView chunk, WaveFile *wave)
{
    ByteReader reader(chunk);
    const auto kind = reader.number<quint16>();
    wave->channels = reader.number<quint16>();
    const auto sampleRate = reader.number<quint32>();
    reader.number<quint32>(); // bytes a second and bytes a frame follow from the rest
    reader.number<quint16>();
    wave->bitsPerSample = reader.number<quint16>();
    if (sampleRate < 1000 || sampleRate > 192'000)
        return false;
    wave->sampleRate = int(sampleRate);
    return kind == PlainSamples && (wave->channels == 1 || wave->channels == 2) &&
           (wave->bitsPerSample == 8 || wave->bitsPerSample == 16);
}

} // namespace

std::optional<WaveFile> waveFileFromBytes(QByteArrayView bytes)
{
    ByteReader reader(bytes);
    if (reader.take(4) != "RIFF")
        return std::nullopt;
    reader.number<quint32>(); // the file's size, which the file system knows better
    if (reader.take(4) != "WAVE")
        return std::nullopt;

    std::optional<WaveFile> wave;
    while (!reader.atEnd()) {
        const QByteArrayView name = reader.take(4);
        const qsizetype size = reader.number<quint32>();
        const QByteArrayView chunk = reader.take(size);
        if (chunk.size() < size)
            return std::nullopt;
        reader.take(size % 2);
        if (name == "fmt ") {
            wave.emplace();
            if (!readFormat(chunk, &*wave))
                return std::nullopt;
        } else if (name == "data") {
            const qsizetype frame = wave ? wave->channels * wave->bitsPerSample / 8 : 0;
            if (frame == 0 || size == 0 || size % frame != 0)
                return std::nullopt;
            wave->samples = chunk.toByteArray();
            return wave;
        }
    }
    return std::nullopt;
}

std::optional<WaveFile> readWaveFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return waveFileFromBytes(file.readAll());
}
