// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/SoundEffectPlayer.h"

#include <QFile>
#include <QSoundEffect>
#include <QUrl>
#include <QtEndian>

namespace {

// QSoundEffect waits for the rest of a file that is cut off, and plays no other file meanwhile.
bool isWhole(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    // The file begins with four letters and the number of bytes that follow.
    constexpr qint64 headerSize = 8;
    const QByteArray header = file.read(headerSize);
    return header.size() == headerSize &&
           headerSize + qFromLittleEndian<quint32>(header.constData() + 4) <= file.size();
}

} // namespace

SoundEffectPlayer::SoundEffectPlayer() = default;

SoundEffectPlayer::~SoundEffectPlayer() = default;

void SoundEffectPlayer::loop(const QString &path)
{
    if (m_effect) {
        m_effect->stop();
        // Its destructor handles events, and with them the next request, which must not come
        // while this one is at work.
        m_effect.release()->deleteLater();
    }
    if (path.isEmpty() || !isWhole(path))
        return;
    m_effect = std::make_unique<QSoundEffect>();
    m_effect->setLoopCount(QSoundEffect::Infinite);
    m_effect->setSource(QUrl::fromLocalFile(path));
    m_effect->play();
}
