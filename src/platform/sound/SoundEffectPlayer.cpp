// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sound/SoundEffectPlayer.h"

#include "platform/sound/WaveFile.h"

#include <QSoundEffect>
#include <QUrl>

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
    // QSoundEffect waits without end for the rest of a damaged file, and may crash.
    if (!readWaveFile(path))
        return;
    m_effect = std::make_unique<QSoundEffect>();
    m_effect->setLoopCount(QSoundEffect::Infinite);
    m_effect->setSource(QUrl::fromLocalFile(path));
    m_effect->play();
}
