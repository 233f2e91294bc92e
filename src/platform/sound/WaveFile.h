// SPDX-License-Identifier: GPL-3.0-or-later
// The sound of a wave file: a RIFF file of kind WAVE, whose chunks are each a name of four letters,
// a size in 32 bits, and that many bytes, followed by one more where the size is odd. "fmt " says
// what the bytes of "data" mean.
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

struct WaveFile
{
    int sampleRate = 0;
    int channels = 0;
    int bitsPerSample = 0; // 8 (unsigned) or 16 (signed)
    QByteArray samples;    // whole frames, at least one
};

// Nothing if the file is cut off, even within a frame, or if it has other samples than plain ones
// of 8 or 16 bits on one or two channels at 1,000 to 192,000 Hz.
[[nodiscard]] std::optional<WaveFile> waveFileFromBytes(QByteArrayView bytes);

// Also nothing if the file cannot be read.
[[nodiscard]] std::optional<WaveFile> readWaveFile(const QString &path);
