// SPDX-License-Identifier: GPL-3.0-or-later
// The game's background music: which track loops when, as the Music menu chooses.
#pragma once

#include "runtime/Integer.h"

class QAction;

// The main window's menu items, of which one is checked.
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
    explicit Music(MusicMenu menu) : m_menu(menu) {}

    // Names the tracks of both lists, if there is to be music.
    void fillTracks() const;
    // Plays track 1, if there is to be music in this game.
    void startGame();
    // Changes to the level's track, unless the music is off.
    void changeLevel(Integer level);
    // Ends what plays; the music is off until the next game starts.
    void stop();

private:
    void play(Integer level);
    void requestSilence();

    MusicMenu m_menu;
    bool m_isPlaying = false;
};
