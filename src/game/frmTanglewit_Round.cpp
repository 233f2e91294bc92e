// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/TypedWord.h"
#include "game/dlgGameOver.h"
#include "game/dlgIncorrectAnswer.h"
#include "game/frmTanglewit.h"
#include "game/ui_frmTanglewit.h"
#include "platform/MsgBox.h"
#include "runtime/Blanks.h"
#include "runtime/TextToNumber.h"

#include <QApplication>
#include <QScopeGuard>

using namespace Module1;

namespace {

Integer lengthOfWord()
{
    return toInteger(gVocabList().length());
}

void addLine(QListWidget &list, const QString &line)
{
    list.addItem(line);
    list.scrollToBottom();
}

} // namespace

void frmTanglewit::Timer1_Timer()
{
    // The countdown stands still behind a dialog.
    if (QApplication::activeModalWidget())
        return;
    // A word whose length is too large for a number is reported once, not each second.
    auto end = qScopeGuard([this] { m_Timer1.stop(); });
    const GameState::Tick tick = m_game.tick(lengthOfWord());
    end.dismiss();
    showCountDown();
    if (tick.revealsLetter) {
        uncoverNextLetter();
        m_game.TicksSinceReveal = 0;
    }
    if (tick.isTimeOut)
        timeOut();
}

void frmTanglewit::timeOut()
{
    --m_game.NumLifes;
    showGame();
    while (m_game.NextLetter <= lengthOfWord())
        uncoverNextLetter();
    dlgIncorrectAnswer(this).exec();
    addLine(*m_ui->lstMisses, gVocabList().Word() + QStringLiteral(" :: (Timer Expired)"));
    m_game.coverLetters();
    m_ui->tileRack->coverAll();
    if (m_game.NumLifes < 1) {
        gameOver();
        return;
    }
    // Here the sentence stays as it stands.
    const bool newPass = gOrderIndex >= gOrderSize;
    if (!showNextWord(false))
        return;
    // A new pass leaves the countdown at 0: its first tick starts it.
    if (!newPass) {
        m_game.CountDown = m_game.TimeLimit;
        showCountDown();
    }
    m_ui->txtUserAnswer->clear();
}

void frmTanglewit::cmdEnter_Click()
{
    if (m_ui->txtUserAnswer->text().isEmpty()) {
        focusAnswer();
        return;
    }
    m_Timer1.stop();
    const QString answer = m_ui->txtUserAnswer->text();
    if (isWord(answer, gVocabList().Word()))
        hit();
    else
        miss(withoutOuterBlanks(answer));
    m_game.CountDown = m_game.TimeLimit;
    showCountDown();
    m_Timer1.start();
    const bool wordIsShown = showNextWord(true);
    if (wordIsShown) {
        m_ui->txtUserAnswer->clear();
        m_ui->txtUserAnswer->setEnabled(true);
        m_ui->txtUserAnswer->setFocus();
    }
    // Also before a word that cannot be scrambled the game ends with its last life.
    if (m_game.NumLifes < 1)
        gameOver();
    m_ui->tileRack->coverAll();
    m_game.coverLetters();
}

void frmTanglewit::hit()
{
    gScore += m_game.points(lengthOfWord());
    const bool levelIsDone = m_game.countHit();
    showGame();
    m_ui->frmHits->setTitle(QStringLiteral("Hits: ") + m_game.HitCount.toText());
    addLine(*m_ui->lstHits, gVocabList().Word());
    if (levelIsDone)
        raiseLevel();
}

void frmTanglewit::miss(const QString &answer)
{
    --m_game.NumLifes;
    const QString line = gVocabList().Word() + QStringLiteral(" :: ") + answer;
    showGame();
    dlgIncorrectAnswer(this).exec();
    addLine(*m_ui->lstMisses, line);
}

void frmTanglewit::raiseLevel()
{
    m_game.raiseLevel();
    m_music.changeLevel(m_game.Level);
    m_ui->lblLevel->setText(m_game.Level.toText());
    MsgBox(QStringLiteral("Level ") + m_game.Level.toText());
    m_ui->lstHits->clear();
}

void frmTanglewit::gameOver()
{
    m_Timer1.stop();
    dlgGameOver(m_music, this).exec();
    showOver();
}
