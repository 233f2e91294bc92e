// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sndPlaySoundA.h"

#include "platform/sound/SoundThread.h"

#include <utility>

namespace {

std::function<void(const QString &, unsigned)> g_player;

} // namespace

void sndPlaySoundA(const QString &fileName, unsigned flags)
{
    if (g_player)
        g_player(fileName, flags);
    else if (flags & SoundFlags::Loop)
        SoundThread::loop(fileName);
    else
        SoundThread::silence();
}

void setSoundPlayer(std::function<void(const QString &fileName, unsigned flags)> player)
{
    g_player = std::move(player);
}
