// SPDX-License-Identifier: GPL-3.0-or-later
// The interface of the plugin that plays sounds.
#pragma once

#include <QtPlugin>

class SoundPlayer
{
public:
    SoundPlayer() = default;
    virtual ~SoundPlayer() = default;
    Q_DISABLE_COPY_MOVE(SoundPlayer)

    // Plays the wave file over and over, without a gap between its end and its beginning, instead
    // of what is playing. Silence if the path is empty, the file cannot be played or the machine
    // has no sound. `gain` is the factor for its samples, from 0 to 1.
    virtual void loop(const QString &path, double gain) = 0;
    // For the sound that is playing, which goes on.
    virtual void setGain(double gain) = 0;
};

Q_DECLARE_INTERFACE(SoundPlayer, "Tanglewit.SoundPlayer")
