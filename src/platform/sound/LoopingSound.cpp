// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/LoopingSound.h"

#include <algorithm>
#include <utility>

LoopingSound::LoopingSound(QByteArray samples, QObject *parent)
    : QIODevice(parent), m_samples(std::move(samples))
{
    Q_ASSERT(!m_samples.isEmpty());
    open(QIODevice::ReadOnly | QIODevice::Unbuffered);
}

qint64 LoopingSound::bytesAvailable() const
{
    return m_samples.size() + QIODevice::bytesAvailable();
}

qint64 LoopingSound::readData(char *data, qint64 maxSize)
{
    qint64 filled = 0;
    while (filled < maxSize) {
        const qint64 piece = std::min<qint64>(maxSize - filled, m_samples.size() - m_next);
        std::copy_n(m_samples.constData() + m_next, piece, data + filled);
        filled += piece;
        m_next = (m_next + piece) % m_samples.size();
    }
    return filled;
}

qint64 LoopingSound::writeData(const char * /*data*/, qint64 /*maxSize*/)
{
    return -1;
}
