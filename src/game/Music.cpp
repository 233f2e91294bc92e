// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Music.h"

#include "core/Module1.h"
#include "game/GameState.h"
#include "platform/Paths.h"
#include "platform/sndPlaySoundA.h"

#include <QAction>

using namespace Module1;

namespace {

Array<QString> tracksOf(const QString &set)
{
    std::vector<QString> tracks;
    for (int level = 1; level <= GameState::LastLevel; ++level)
        tracks.push_back(QStringLiteral("%1/%2/Track%3.wav")
                             .arg(pathOf(Place::Audio), set)
                             .arg(level, 2, 10, QLatin1Char('0')));
    return Array<QString>(std::move(tracks));
}

} // namespace

bool MusicMenu::isEnabled() const
{
    return mnuUpbeat.isEnabled() && mnuSoothing.isEnabled() && mnuMusicOff.isEnabled();
}

bool MusicMenu::isTrackChosen() const
{
    return mnuUpbeat.isChecked() || mnuSoothing.isChecked();
}

void Music::fillTracks() const
{
    if (gMusicOff || !m_menu.isEnabled())
        return;
    gFastBeatTracks = tracksOf(QStringLiteral("fastbeat"));
    gSoftBeatTracks = tracksOf(QStringLiteral("softbeat"));
}

void Music::startGame()
{
    if (m_menu.isTrackChosen())
        gMusicOff = false;
    if (!gMusicOff)
        play(1);
}

void Music::changeLevel(Integer level)
{
    if (gMusicOff)
        return;
    requestSilence();
    play(level);
}

// After Music Off is chosen during a game, gMusicOff is true while the track still plays.
void Music::stop()
{
    if (gMusicOff && !m_isPlaying)
        return;
    requestSilence();
    gMusicOff = true;
}

void Music::stopTrack()
{
    if (m_isPlaying)
        requestSilence();
}

void Music::play(Integer level)
{
    const Array<QString> &tracks = gUpbeatMusic ? gFastBeatTracks : gSoftBeatTracks;
    if (tracks.size() == 0)
        return;
    sndPlaySoundA(tracks(level), SoundFlags::Asynchronous | SoundFlags::Loop);
    setPlaying(true);
}

// There is no file of this name, and every request ends the sound that is playing.
void Music::requestSilence()
{
    sndPlaySoundA(QStringLiteral("NULL"), 0);
    setPlaying(false);
}

void Music::setPlaying(bool isPlaying)
{
    m_isPlaying = isPlaying;
    m_playingChanged(isPlaying);
}
