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
    // The countdown is paused while a dialog is open.
    if (QApplication::activeModalWidget())
        return;
    // A word that is too long for an Integer is reported once, not each second.
    auto stop = qScopeGuard([this] { m_Timer1.stop(); });
    const Integer letters = lengthOfWord();
    stop.dismiss();
    const bool isTimeOut = m_game.tick(letters);
    showGame();
    if (isTimeOut)
        timeOut();
}

void frmTanglewit::timeOut()
{
    miss(QStringLiteral("(Timer Expired)"));
    m_game.coverLetters();
    showGame();
    if (m_game.isOver())
        gameOver();
    else
        showNextWord(After::TimeOut);
}

void frmTanglewit::cmdEnter_Click()
{
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
        showGame();
        miss(withoutOuterBlanks(answer));
    }
    m_game.beginCountdown();
    m_game.coverLetters();
    showGame();
    m_Timer1.start();
    showNextWord(After::Answer);
    m_ui->txtUserAnswer->setFocus();
    if (m_game.isOver())
        gameOver();
}

void frmTanglewit::hit()
{
    gScore += m_game.points(lengthOfWord());
    const bool levelHasRisen = m_game.countHit();
    showGame();
    addLine(*m_ui->lstHits, gVocabList().Word());
    if (!levelHasRisen)
        return;
    m_music.changeLevel(m_game.Level);
    MsgBox(QStringLiteral("Level ") + m_game.Level.toText());
    m_ui->lstHits->clear();
}

void frmTanglewit::miss(const QString &answer)
{
    const QString line = gVocabList().Word() + QStringLiteral(" :: ") + answer;
    dlgIncorrectAnswer(this).exec();
    addLine(*m_ui->lstMisses, line);
}

void frmTanglewit::gameOver()
{
    m_Timer1.stop();
    dlgGameOver(m_music, this).exec();
    showMode(Mode::Over);
}
