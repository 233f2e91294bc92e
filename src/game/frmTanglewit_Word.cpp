// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Blanking.h"
#include "game/TypeSizes.h"
#include "game/frmTanglewit.h"
#include "game/ui_frmTanglewit.h"

#include <QScopeGuard>
#include <QScrollBar>

using namespace Module1;

namespace {

// A word of one or two letters has no scramble, and looking for one would never end. Any longer
// word has one in far fewer attempts.
QString scrambledWord()
{
    constexpr int mostAttempts = 10000;
    gVocabList().setScrambleHook([attempts = 0]() mutable { return ++attempts < mostAttempts; });
    const auto noHook = qScopeGuard([] { gVocabList().setScrambleHook({}); });
    return gVocabList().ScrambledWord();
}

void setType(QWidget &label, TypeSize size)
{
    QFont type = label.font();
    type.setPointSize(size.points);
    type.setBold(size.bold);
    label.setFont(type);
}

} // namespace

void frmTanglewit::Shuffle()
{
    gWordOrder = drawWordOrder(gOrderSize, gVocabList().NumWords());
    gWordOrder.resize(gVocabList().NumWords().toInt());
}

bool frmTanglewit::ShowFirstWord()
{
    Shuffle();
    gOrderIndex = 1;
    if (!showWord())
        return false;
    MaskSentence();
    return true;
}

// The word at gOrderIndex, its sentence left out.
bool frmTanglewit::showWord()
{
    gVocabList().CurrentWord(gWordOrder(gOrderIndex));
    setTypeSizes();
    const QString scrambled = scrambledWord();
    if (scrambled.isEmpty())
        return false;
    m_ui->tileRack->prepare(gVocabList().Word().size());
    m_ui->lblScrambledWord->setText(scrambled);
    m_ui->lblClue->setText(gVocabList().Definition());
    // Whatever was scrolled before, a text is read from its beginning.
    for (QScrollArea *area : {m_ui->clueArea, m_ui->sentenceArea})
        area->verticalScrollBar()->setValue(0);
    return true;
}

bool frmTanglewit::showNextWord(bool maskSentence)
{
    ++gOrderIndex;
    if (gOrderIndex > gOrderSize) {
        if (!ShowFirstWord())
            return false;
        showPlaying();
        return true;
    }
    if (!showWord())
        return false;
    if (maskSentence)
        MaskSentence();
    else
        m_ui->lblSentence->setText(gVocabList().Sentence());
    return true;
}

void frmTanglewit::MaskSentence()
{
    m_ui->lblSentence->setText(blankedSentence(gVocabList().Sentence(), gVocabList().Word()));
}

void frmTanglewit::setTypeSizes()
{
    const cVocabList &list = gVocabList();
    setType(*m_ui->lblScrambledWord, wordTypeSize(list.Word().size()));
    setType(*m_ui->lblClue, definitionTypeSize(list.Definition().size()));
    setType(*m_ui->lblSentence, sentenceTypeSize(list.Sentence().size()));
}

// In the place of a clue.
void frmTanglewit::showPrompt(const QString &prompt)
{
    setType(*m_ui->lblClue, definitionTypeSize(prompt.size()));
    m_ui->lblClue->setText(prompt);
}

// A letter beyond the last tile counts, too, though nothing shows it.
void frmTanglewit::uncoverNextLetter()
{
    m_ui->tileRack->uncover(m_game.NextLetter, gVocabList().Word());
    ++m_game.NextLetter;
}
