// SPDX-License-Identifier: GPL-3.0-or-later
// The game: the player types each word of the list from its scrambled letters, its definition and
// its blanked example sentence before a countdown ends. There are ten levels and five lives.
#pragma once

#include "game/GameBoard.h"
#include "game/GameState.h"
#include "game/Music.h"
#include "platform/Form.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class frmTanglewit;
}

class frmTanglewit final : public Form<QWidget>
{
    Q_OBJECT

public:
    // mainWindow: the parent of the good-bye dialog.
    frmTanglewit(MusicMenu menu, QWidget *mainWindow);
    ~frmTanglewit() override;

    // Draws a new order of the list's words.
    void Shuffle();

Q_SIGNALS:
    // The game is left; the main window should be shown. Emitted more than once.
    void left();

protected:
    void Form_Load() override;
    void Form_Unload() override;
    void Form_Terminate() override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    enum class After { Start, Answer, TimeOut };

    // frmTanglewit.cpp: the window and its buttons
    void connectHandlers();
    void newGame();
    void cmdStart_Click();
    void cmdRestart_Click();
    void cmdQuit_Click();
    void cmdShow_Click();
    void cmdHide_Click();
    void cmdViewTop10_Click();
    void VScroll1_Change();
    void ResetBoard();

    // frmTanglewit_Round.cpp: the countdown and the answers
    void Timer1_Timer();
    void cmdEnter_Click();
    void hit();
    void miss(const QString &answer);
    void timeOut();
    void gameOver();

    // frmTanglewit_Word.cpp: the word on show
    void ShowFirstWord();
    void showNextWord(After event);
    void showWord(After event);
    void MaskSentence();

    std::unique_ptr<Ui::frmTanglewit> m_ui;
    std::unique_ptr<GameBoard> m_board;
    QTimer m_Timer1;
    GameState m_game;
    Music m_music;
    QWidget *m_mainWindow;
    bool m_isQuitting = false; // the good-bye dialog will follow and stop the music
};
