// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/Scramble.h"
#include "game/TypedWord.h"
#include "game/dlgGameOver.h"
#include "game/dlgIncorrectAnswer.h"
#include "game/frmTanglewit.h"
#include "game/ui_frmTanglewit.h"
#include "platform/MsgBox.h"
#include "runtime/Blanks.h"
#include "runtime/TextToNumber.h"

#include <QApplication>

using namespace Module1;

namespace {

Integer lengthOfWord()
{
    return toInteger(gVocabList().length());
}

} // namespace

void frmTanglewit::Timer1_Timer()
{
    // The countdown is paused while a dialog is open, and for a word that is not shown.
    const QString word = gVocabList().Word();
    if (QApplication::activeModalWidget() || isTooShortToScramble(word) ||
        isTooLongToScramble(word))
        return;
    const Integer letters = lengthOfWord();
    const bool isTimeOut = m_game.tick(letters);
    m_board->show(m_game);
    if (isTimeOut)
        timeOut();
    else
        m_board->showWorth(m_game.points(letters));
}

void frmTanglewit::timeOut()
{
    m_board->showTimeOut();
    miss(QStringLiteral("(Timer Expired)"));
    m_game.coverLetters();
    m_board->show(m_game);
    if (m_game.isOver())
        gameOver();
    else
        showNextWord(After::TimeOut);
}

void frmTanglewit::cmdEnter_Click()
{
    if (isTooShortToScramble(gVocabList().Word()))
        return;
    const QString answer = m_ui->txtUserAnswer->text();
    if (answer.isEmpty()) {
        m_ui->txtUserAnswer->setFocus();
        return;
    }
    m_Timer1.stop();
    if (isWord(answer, gVocabList().Word())) {
        hit();
    } else {
        m_game.loseLife();
        m_board->show(m_game);
        m_board->showMiss(withoutOuterBlanks(answer));
        miss(withoutOuterBlanks(answer));
    }
    m_game.beginCountdown();
    m_game.coverLetters();
    m_board->show(m_game);
    m_Timer1.start();
    showNextWord(After::Answer);
    m_ui->txtUserAnswer->setFocus();
    if (m_game.isOver())
        gameOver();
}

void frmTanglewit::hit()
{
    const Integer points = m_game.points(lengthOfWord());
    gScore += points;
    const bool levelHasRisen = m_game.countHit();
    m_board->show(m_game);
    m_board->showHit(points);
    if (!levelHasRisen)
        return;
    m_music.changeLevel(m_game.Level);
    m_board->playNewLevel();
    MsgBox(QStringLiteral("Level ") + m_game.Level.toText());
    m_board->clearHits();
}

void frmTanglewit::miss(const QString &answer)
{
    const QString line = gVocabList().Word() + QStringLiteral(" :: ") + answer;
    dlgIncorrectAnswer(*m_ui->lblFeedback).exec();
    m_board->addMiss(line);
}

void frmTanglewit::gameOver()
{
    m_Timer1.stop();
    dlgGameOver(m_music, this).exec();
    m_board->show(GameBoard::Mode::Over);
}
