// SPDX-License-Identifier: GPL-3.0-or-later
// What plays sounds, as the program sees it. It lies in a library that is loaded for the first
// sound, so that a start without music does not pay for what sound needs.
#pragma once

class QString;

class SoundPlayer
{
public:
    static constexpr const char *LibraryName = "tanglewit_sound"; // without what the system adds
    static constexpr const char *MakeName = "tanglewitMakeSoundPlayer";
    using MakeFunction = SoundPlayer *(); // the caller owns the player

    SoundPlayer() = default;
    virtual ~SoundPlayer() = default;
    SoundPlayer(const SoundPlayer &) = delete;
    SoundPlayer &operator=(const SoundPlayer &) = delete;

    // Plays the wave file over and over, without a gap where its end meets its beginning, in the
    // place of what is playing. Silence if the path is empty, the file cannot be played or the
    // machine has no sound.
    virtual void loop(const QString &path) = 0;
};
