// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Blanking.h"
#include "game/Scramble.h"
#include "game/TypeSizes.h"
#include "game/frmTanglewit.h"
#include "game/ui_frmTanglewit.h"

#include <QScrollBar>

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
    if (event == After::TimeOut) {
        m_game.beginCountdown();
        showGame();
    }
    showWord(event);
}

// Makes the word at gOrderIndex the current word and shows it. If it is too short to be scrambled,
// it can be answered, but the texts of the word before stay.
void frmTanglewit::showWord(After event)
{
    cVocabList &list = gVocabList();
    list.CurrentWord(gWordOrder(gOrderIndex));
    const QString word = list.Word();
    if (isTooShortToScramble(word))
        return;
    showText(*m_ui->lblScrambledWord, list.ScrambledWord(), wordTypeSize(word.size()));
    showText(*m_ui->lblClue, list.Definition(), definitionTypeSize(list.Definition().size()));
    MaskSentence();
    // After a time-out the next sentence is shown unblanked.
    if (event == After::TimeOut)
        m_ui->lblSentence->setText(list.Sentence());
    for (QScrollArea *area : {m_ui->clueArea, m_ui->sentenceArea})
        area->verticalScrollBar()->setValue(0);
    m_ui->tileRack->prepare(word.size());
    m_ui->txtUserAnswer->clear();
}

void frmTanglewit::MaskSentence()
{
    const QString sentence = gVocabList().Sentence();
    showText(*m_ui->lblSentence, blankedSentence(sentence, gVocabList().Word()),
             sentenceTypeSize(sentence.size()));
}
