// SPDX-License-Identifier: GPL-3.0-or-later
// The samples of a sound as an endless stream, over and over.
#pragma once

#include "platform/sound/WaveFile.h"

#include <QIODevice>

class LoopedSamples final : public QIODevice
{
    Q_OBJECT

public:
    // The wave has samples.
    explicit LoopedSamples(WaveFile wave, QObject *parent = nullptr);

    [[nodiscard]] const WaveFile &wave() const { return m_wave; }
    [[nodiscard]] bool isSequential() const override { return true; }

    // The factor for the samples that are read from now on, from 0 to 1.
    void setGain(double gain) { m_gain = gain; }
    // Whole frames are stepped over, at most as many as the sound has.
    void stepBack(qint64 bytes);

protected:
    qint64 readData(char *data, qint64 maxSize) override;
    qint64 writeData(const char * /*data*/, qint64 /*size*/) override { return -1; }

private:
    void scale(char *data, qsizetype size) const;

    WaveFile m_wave;
    qsizetype m_position = 0;
    double m_gain = 1;
};
