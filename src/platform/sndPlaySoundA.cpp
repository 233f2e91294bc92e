// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sndPlaySoundA.h"

#include "platform/sound/SoundThread.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int FullVolume = 100;

std::function<void(const QString &, unsigned)> g_player;
int g_volume = FullVolume;
bool g_isMuted = false;

// The factor for the samples. The ear takes a quarter of it as about half as loud.
double gain()
{
    const double volume = double(g_volume) / FullVolume;
    return g_isMuted ? 0 : volume * volume;
}

} // namespace

void sndPlaySoundA(const QString &fileName, unsigned flags)
{
    if (g_player)
        g_player(fileName, flags);
    else if (flags & SoundFlags::Loop)
        SoundThread::loop(fileName, gain());
    else
        SoundThread::silence();
}

void setSoundVolume(int percent)
{
    g_volume = std::clamp(percent, 0, FullVolume);
    SoundThread::setGain(gain());
}

int soundVolume()
{
    return g_volume;
}

void setSoundMuted(bool muted)
{
    g_isMuted = muted;
    SoundThread::setGain(gain());
}

bool isSoundMuted()
{
    return g_isMuted;
}

void setSoundPlayer(std::function<void(const QString &fileName, unsigned flags)> player)
{
    g_player = std::move(player);
}
