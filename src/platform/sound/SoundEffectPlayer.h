// SPDX-License-Identifier: GPL-3.0-or-later
// The plugin that plays sounds through QSoundEffect. It belongs to the thread that loads it.
#pragma once

#include "platform/sound/SoundPlayer.h"

#include <QObject>

#include <memory>

class QSoundEffect;

class SoundEffectPlayer final : public QObject, public SoundPlayer
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "Tanglewit.SoundPlayer")
    Q_INTERFACES(SoundPlayer)

public:
    SoundEffectPlayer();
    ~SoundEffectPlayer() override;

    void loop(const QString &path) override;

private:
    std::unique_ptr<QSoundEffect> m_effect;
};
