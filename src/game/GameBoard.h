// SPDX-License-Identifier: GPL-3.0-or-later
// What the game's window shows: the state of the game, the word, and what became of an answer.
#pragma once

#include "game/GameState.h"
#include "platform/DefaultButton.h"

#include <QObject>

class QWidget;

namespace Ui {
class frmTanglewit;
}

class GameBoard final : public QObject
{
    Q_OBJECT

public:
    // Ready: Start can be pressed. Playing: the answer can be entered. Over: neither.
    enum class Mode { Ready, Playing, Over };

    // The window must outlive the board.
    GameBoard(Ui::frmTanglewit &ui, QWidget &window);

    // Gives ring and rack the sizes that suit the height of the window, in pixels.
    void fit(int windowHeight);
    // True if the key was Enter, which presses the default button.
    bool press(const QKeyEvent &event, QWidget *focus) const
    {
        return m_defaultButton.press(event, focus);
    }

    // In Playing the answer box is enabled, and the level switch disabled, once a word is shown.
    void show(Mode mode);
    void showWordSwitch(bool wordIsShown);
    void showPrompt(const QString &prompt);
    // Score, level, lives, countdown and uncovered letters.
    void show(const GameState &game);
    // What a right answer would earn now.
    void showWorth(Integer points);
    // Shows the list's current word, scrambled, and its definition, without the sentence.
    void showWord();
    // Shows that the current word cannot be scrambled.
    void showTooShort();

    // What became of the current word. Motions beside the play point it out.
    void showHit(Integer points);
    void showMiss(const QString &answer);
    void showTimeOut();
    void addMiss(const QString &line);
    void clearHits();
    // Empties both lists and what became of the last word.
    void clearLists();
    void playNewLevel();

private:
    void showWordsLeft();
    void showFeedback(const QString &plain, const QString &html);
    void endMotions();
    void playPoints(Integer points);
    void playLanding();
    void playShaking();

    Ui::frmTanglewit &m_ui;
    QWidget &m_window;
    DefaultButton m_defaultButton;
};
