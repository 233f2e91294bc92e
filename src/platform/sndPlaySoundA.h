// SPDX-License-Identifier: GPL-3.0-or-later
// Sound as the game asks for it: one at a time, each request in the place of the one before.
#pragma once

#include <QString>

#include <functional>

namespace SoundFlags {

inline constexpr unsigned Asynchronous = 1; // return at once
inline constexpr unsigned Loop = 8;         // over and over until the next request

} // namespace SoundFlags

// With Loop the wave file is played from now on; any other request is silence. Returns at once and
// reports nothing: a file that is missing or damaged, and a machine without sound, are silence too.
void sndPlaySoundA(const QString &fileName, unsigned flags);

// Puts a player of the caller's in the place of the machine's; an empty function puts that back.
void setSoundPlayer(std::function<void(const QString &fileName, unsigned flags)> player);
