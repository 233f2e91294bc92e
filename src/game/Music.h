// SPDX-License-Identifier: GPL-3.0-or-later
// The game's background music: starts, changes and stops the tracks that the Music menu chooses.
#pragma once

#include "runtime/Integer.h"

#include <functional>
#include <utility>

class QAction;

// The items of the main window's Music menu, one of which is checked.
struct MusicMenu
{
    const QAction &mnuUpbeat;
    const QAction &mnuSoothing;
    const QAction &mnuMusicOff;

    [[nodiscard]] bool isEnabled() const;
    [[nodiscard]] bool isTrackChosen() const;
};

class Music final
{
public:
    // playingChanged: called with true when a track starts, with false when it stops.
    explicit Music(
        MusicMenu menu, std::function<void(bool)> playingChanged = [](bool) {})
        : m_menu(menu), m_playingChanged(std::move(playingChanged))
    {
    }

    // Fills gFastBeatTracks and gSoftBeatTracks, unless the music is off or the menu is disabled.
    void fillTracks() const;
    // Plays track 1, unless Music Off is checked.
    void startGame();
    // Plays the level's track of the set that is now chosen, unless the music is off.
    void changeLevel(Integer level);
    // Stops the track. The music is off until the next game starts.
    void stop();
    // Stops the track, if one plays, and leaves the choice of music alone.
    void stopTrack();

private:
    void play(Integer level);
    void requestSilence();
    void setPlaying(bool isPlaying);

    MusicMenu m_menu;
    std::function<void(bool)> m_playingChanged;
    bool m_isPlaying = false;
};
