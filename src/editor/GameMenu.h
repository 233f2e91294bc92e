// SPDX-License-Identifier: GPL-3.0-or-later
// The Game menu and the two buttons that do the same: the game with its music, and the flash cards.
#pragma once

#include <QObject>

#include <memory>

class QAction;
class frmTanglewit;

namespace Ui {
class frmMain;
}

class GameMenu final : public QObject
{
    Q_OBJECT

public:
    // The window is hidden while the game is open.
    GameMenu(const Ui::frmMain &ui, QWidget *window);
    ~GameMenu() override;

    // Ends a game that is open, and its music.
    void unloadGame();

private:
    void cmdPlayScramble_Click();
    void cmdQuickFlash_Click();
    void mnuUpbeat_Click();
    void mnuSoothing_Click();
    void mnuMusicOff_Click();
    void chooseMusic(const QAction *chosen);

    const Ui::frmMain &m_ui;
    QWidget *m_window;
    std::unique_ptr<frmTanglewit> m_frmTanglewit; // made for the first game
};
