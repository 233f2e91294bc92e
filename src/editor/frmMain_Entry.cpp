// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/WordPage.h"
#include "editor/ui_frmMain.h"
#include "platform/MsgBox.h"
#include "runtime/Blanks.h"

using namespace Module1;

void frmMain::cmdNewWord_Click()
{
    // After File > New the boxes may hold the first word already.
    if (m_mode != Mode::NewList)
        ClearEntryBoxes();
    gWordSelected = false;
    gNewWord = true;
    showMode(Mode::NewWord);
    m_ui->txtWord->setFocus();
    showNewWordRow();
}

void frmMain::cmdAdd_Click()
{
    if (gNewWord && gVocabList().isFull()) {
        MsgBox(cVocabList::maxWordsText());
        return;
    }
    if (m_ui->txtWord->text().isEmpty())
        m_ui->txtWord->setFocus();
    else if (gWordSelected)
        updateWord();
    else if (gNewWord)
        addWord();
    if (gChanged)
        m_ui->mnuSave->setEnabled(true);
}

void frmMain::updateWord()
{
    m_page->returnToChosen();
    gVocabList().Edit(withoutOuterBlanks(m_ui->txtWord->text()),
                      withoutOuterBlanks(m_ui->txtDefinition->text()),
                      withoutOuterBlanks(m_ui->txtSentence->text()));
    gChanged = true;
    ClearEntryBoxes();
    gWordSelected = false;
    showMode(Mode::Idle);
    m_ui->cmdNewWord->setFocus();
    m_page->FillGrid(m_page->FirstShownItem());
}

// Unlike an update, an addition keeps outer blanks.
void frmMain::addWord()
{
    cVocabList &list = gVocabList();
    const QString word = m_ui->txtWord->text();
    if (list.Exist(word, 1) &&
        MsgBox(QStringLiteral("Word already exist.  Add word anyway?"), MsgBoxButtons::YesNo,
               MsgBoxEsc::MeansNo, MsgBoxDefault::No) == MsgBoxAnswer::No) {
        m_ui->txtWord->setFocus();
        return;
    }
    list.AddVocab(word, m_ui->txtDefinition->text(), m_ui->txtSentence->text());
    gChanged = true;
    showMode(Mode::NewWord);

    const Integer count = list.NumWords();
    const Integer top = placeOfNewWord(count.toInt()).first;
    m_page->scrollTo(count);
    m_page->FillGrid(top);
    m_page->NumberRows(top);
    ClearEntryBoxes();
    m_ui->txtWord->setFocus();
    m_page->MarkNewRow();
}

void frmMain::cmdAbort_Click()
{
    showMode(Mode::Idle);
    ClearEntryBoxes();
    m_ui->MSFlexGrid1->setFocus();
}

void frmMain::cmdDelete_Click()
{
    cVocabList &list = gVocabList();
    const Integer top = m_page->FirstShownItem();
    m_page->returnToChosen();
    if (!isCurrentWordAnEntry() || m_ui->txtWord->text() != list.Word()) {
        MsgBox(QStringLiteral("Please select a word to delete or execute a search first."));
        return;
    }
    if (MsgBox(QStringLiteral("Are you sure you want to delete '") + list.Word() +
                   QStringLiteral("' ?"),
               MsgBoxButtons::YesNo, MsgBoxEsc::MeansNo) == MsgBoxAnswer::No)
        return;
    list.DeleteVocab();
    gChanged = true;
    ClearEntryBoxes();
    gNewWord = gWordSelected = false;
    m_ui->mnuSave->setEnabled(true);
    showMode(Mode::Idle);
    m_ui->MSFlexGrid1->setFocus();
    const Integer count = list.NumWords();
    if (count == 0) {
        m_page->showNoEntries();
        return;
    }
    const Integer first = firstAfterDelete(top.toInt(), count.toInt());
    if (first != top)
        m_page->scrollTo(first);
    else
        m_page->FillGrid(first);
    m_page->NumberRows(first);
}

void frmMain::mnuDeleteWord_Click()
{
    if (gVocabList().NumWords() == 0)
        MsgBox(QStringLiteral("Cannot delete: Your current wordlist is empty."));
    else
        cmdDelete_Click();
}

void frmMain::cmdSearch_Click()
{
    showMode(Mode::Search);
    m_ui->txtWord->setFocus();
    if (m_ui->txtWord->text().isEmpty()) {
        m_page->UnhighlightRow();
        return;
    }
    cVocabList &list = gVocabList();
    const QString wanted = withoutOuterBlanks(m_ui->txtWord->text());
    Integer hit = list.SearchWord(wanted);
    if (hit == 0)
        hit = list.SearchWord(wanted); // a miss starts over, so this one finds the first match
    if (hit == 0)
        MsgBox(wanted + QStringLiteral(" is not in the list."));
    else
        showHit(hit);
    m_ui->txtWord->selectAll(); // the next word to look for can be typed
}

void frmMain::showHit(Integer hit)
{
    m_page->UnhighlightRow();
    m_page->choose(0); // the hit's row is marked, no other one
    const GridPlace place = placeOfHit(hit.toInt(), gVocabList().NumWords().toInt());
    m_page->scrollTo(place.first);
    m_page->markRow(place.row);
    gVocabList().CurrentWord(hit);
    showEntry();
    m_ui->cmdDelete->setEnabled(true);
}

void frmMain::txtDefinition_Change()
{
    m_ui->FrameDef->setTitle(
        QStringLiteral("Definition: %1").arg(m_ui->txtDefinition->text().size()));
}

void frmMain::txtSentence_Change()
{
    m_ui->FrameSen->setTitle(QStringLiteral("Sentence: %1").arg(m_ui->txtSentence->text().size()));
}

void frmMain::showEntry()
{
    const cVocabList &list = gVocabList();
    m_ui->txtWord->setText(list.Word());
    m_ui->txtDefinition->setText(list.Definition());
    m_ui->txtSentence->setText(list.Sentence());
    m_page->choose(list.CurrentWord());
}

void frmMain::ClearEntryBoxes()
{
    m_page->choose(0);
    m_ui->txtWord->setText({}); // clear() could be undone
    m_ui->txtDefinition->setText({});
    m_ui->txtSentence->setText({});
}

void frmMain::DisableEntryBoxes()
{
    for (QWidget *box :
         {static_cast<QWidget *>(m_ui->txtWord), static_cast<QWidget *>(m_ui->txtDefinition),
          static_cast<QWidget *>(m_ui->txtSentence)})
        box->setEnabled(false);
}

void frmMain::EnableEntryBoxes()
{
    for (QWidget *box :
         {static_cast<QWidget *>(m_ui->txtWord), static_cast<QWidget *>(m_ui->txtDefinition),
          static_cast<QWidget *>(m_ui->txtSentence)})
        box->setEnabled(true);
}

void frmMain::letShownEntryGo()
{
    if (!m_page->isChosen())
        return;
    m_page->UnhighlightRow();
    cmdAbort_Click();
}

bool frmMain::isCurrentWordAnEntry() const
{
    const Integer position = gVocabList().CurrentWord();
    return position >= 1 && position <= gVocabList().NumWords();
}

void frmMain::MSFlexGrid1_Click(int row, int column)
{
    const int item = m_page->itemIn(row);
    if (item < 1 || item > gVocabList().NumWords().toInt())
        return;
    gVocabList().CurrentWord(item);
    m_ui->MSFlexGrid1->setCurrent(row, 1);
    gWordSelected = true;
    gNewWord = false;
    showEntry();
    showMode(Mode::Editing);
    switch (column) {
    case 2:
        m_ui->txtDefinition->setFocus();
        break;
    case 3:
        m_ui->txtSentence->setFocus();
        break;
    default:
        m_ui->txtWord->setFocus();
    }
    m_page->UnhighlightRow();
    m_page->markRow(row);
}

void frmMain::showNewWordRow()
{
    const int count = gVocabList().NumWords().toInt();
    if (count > 0)
        m_page->scrollTo(placeOfNewWord(count).first);
    m_page->MarkNewRow();
}
