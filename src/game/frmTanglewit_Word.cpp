// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Blanking.h"
#include "game/Scramble.h"
#include "game/TypeSizes.h"
#include "game/frmTanglewit.h"
#include "game/ui_frmTanglewit.h"
#include "runtime/TextToNumber.h"

using namespace Module1;

void frmTanglewit::Shuffle()
{
    gWordOrder = drawWordOrder(gOrderSize, gVocabList().NumWords());
    gWordOrder.resize(gVocabList().NumWords().toInt());
}

void frmTanglewit::ShowFirstWord()
{
    Shuffle();
    gOrderIndex = 1;
    showWord(After::Start);
}

// After the last word of the order a new pass begins as at the start of the game. If it begins
// after a time-out, the countdown stays at 0 until the next tick.
void frmTanglewit::showNextWord(After event)
{
    ++gOrderIndex;
    if (gOrderIndex > gOrderSize) {
        ShowFirstWord();
        return;
    }
    showWord(event);
    if (event == After::TimeOut) {
        m_game.beginCountdown();
        m_board->show(m_game);
    }
}

// Makes the word at gOrderIndex the current word and shows it. If it is too short to be scrambled,
// the game stands still.
void frmTanglewit::showWord(After event)
{
    cVocabList &list = gVocabList();
    list.CurrentWord(gWordOrder(gOrderIndex));
    if (isTooShortToScramble(list.Word())) {
        m_board->showTooShort();
        return;
    }
    if (m_game.isOver() && isErrorToScramble(list.Word()))
        return; // the game is over before the error is reported
    m_board->showWord();
    m_board->showWorth(m_game.points(toInteger(list.length())));
    MaskSentence();
    // After a time-out the next sentence is shown unblanked.
    if (event == After::TimeOut)
        m_ui->lblSentence->setText(list.Sentence());
}

void frmTanglewit::MaskSentence()
{
    const QString sentence = gVocabList().Sentence();
    showText(*m_ui->lblSentence, blankedSentence(sentence, gVocabList().Word()),
             sentenceTypeSize(sentence.size()));
}
