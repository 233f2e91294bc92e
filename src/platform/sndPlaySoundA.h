// SPDX-License-Identifier: GPL-3.0-or-later
// Plays one sound at a time: each request replaces the one before.
#pragma once

#include <QString>

#include <functional>

namespace SoundFlags {

inline constexpr unsigned Asynchronous = 1; // return at once
inline constexpr unsigned Loop = 8;         // repeat until the next request

} // namespace SoundFlags

// With Loop it plays the wave file over and over, without Loop it stops the sound. Returns at once.
// Errors are not reported: if the file cannot be played, there is silence.
void sndPlaySoundA(const QString &fileName, unsigned flags);

// How loud sounds are, from 0 to 100 as the ear takes it, and whether they are heard at all. Both
// hold for the sound that is playing and for those to come, and are remembered for the run. Neither
// stops or starts a sound. At first the volume is 100 and nothing is muted.
void setSoundVolume(int percent);
[[nodiscard]] int soundVolume();
void setSoundMuted(bool muted);
[[nodiscard]] bool isSoundMuted();

// Sends all requests to the function instead, until an empty function is set.
void setSoundPlayer(std::function<void(const QString &fileName, unsigned flags)> player);
