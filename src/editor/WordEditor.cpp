// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/WordEditor.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/MsgBox.h"
#include "runtime/Blanks.h"

using namespace Module1;

namespace {

bool isEntry(Integer position)
{
    return position >= 1 && position <= gVocabList().NumWords();
}

} // namespace

WordEditor::WordEditor(Ui::frmMain &ui) : m_area(ui), m_page(*ui.MSFlexGrid1, *ui.VScroll1)
{
    onClick(ui.cmdNewWord, this, &WordEditor::cmdNewWord_Click);
    onClick(ui.cmdAdd, this, &WordEditor::cmdAdd_Click);
    onClick(ui.cmdAbort, this, &WordEditor::cmdAbort_Click);
    onClick(ui.cmdDelete, this, &WordEditor::cmdDelete_Click);
    onClick(ui.cmdSearch, this, &WordEditor::cmdSearch_Click);
    connect(ui.MSFlexGrid1, &MSFlexGrid::Click, this,
            guarded(this, &WordEditor::MSFlexGrid1_Click));
}

void WordEditor::place(const MainLayout &layout, int entryHeight)
{
    m_page.place(layout);
    m_area.place(layout, entryHeight);
}

bool WordEditor::press(const QKeyEvent &event, QWidget *focus) const
{
    return m_area.press(event, focus);
}

void WordEditor::showEmptyList(EditorMode mode)
{
    clearBoxes();
    m_page.showNoEntries();
    m_area.show(mode);
}

void WordEditor::showFirstPage()
{
    gLastItem = 1;
    m_page.FillGrid(1);
    m_page.scrollTo(1);
    gVocabList().CurrentWord(1);
}

void WordEditor::refillPage()
{
    m_page.FillGrid(m_page.FirstShownItem());
}

void WordEditor::showImported(Integer positionBefore)
{
    // The next new word comes after the imported ones.
    if (m_area.mode() == EditorMode::NewWord)
        showNewWordRow();
    else
        m_page.FillGrid(firstAfterImport(positionBefore.toInt(), m_page.FirstShownItem().toInt(),
                                         gVocabList().NumWords().toInt()));
    gVocabList().CurrentWord(1);
    m_page.returnToChosen();
}

void WordEditor::letEntryGo()
{
    if (!m_page.isChosen())
        return;
    m_page.UnhighlightRow();
    cmdAbort_Click();
}

void WordEditor::cmdNewWord_Click()
{
    // After File > New the boxes may hold the first word already.
    if (m_area.mode() != EditorMode::NewList)
        clearBoxes();
    gWordSelected = false;
    gNewWord = true;
    m_area.show(EditorMode::NewWord);
    showNewWordRow();
}

void WordEditor::cmdAdd_Click()
{
    if (gNewWord && gVocabList().isFull()) {
        MsgBox(cVocabList::maxWordsText());
        return;
    }
    if (m_area.word().isEmpty())
        m_area.giveFocus(EntryFocus::Word);
    else if (gWordSelected)
        updateWord();
    else if (gNewWord)
        addWord();
    if (gChanged)
        Q_EMIT changed();
}

void WordEditor::updateWord()
{
    m_page.returnToChosen();
    const VocabRecord entry = m_area.entry();
    gVocabList().Edit(withoutOuterBlanks(entry.Word), withoutOuterBlanks(entry.Definition),
                      withoutOuterBlanks(entry.Sentence));
    gChanged = true;
    clearBoxes();
    gWordSelected = false;
    m_area.show(EditorMode::Idle, EntryFocus::NewWord);
    refillPage();
}

// Unlike an update, an addition keeps outer blanks.
void WordEditor::addWord()
{
    cVocabList &list = gVocabList();
    const VocabRecord entry = m_area.entry();
    if (list.Exist(entry.Word, 1) &&
        MsgBox(QStringLiteral("Word already exist.  Add word anyway?"), MsgBoxButtons::YesNo,
               MsgBoxEsc::MeansNo, MsgBoxDefault::No) == MsgBoxAnswer::No) {
        m_area.giveFocus(EntryFocus::Word);
        return;
    }
    list.AddVocab(entry.Word, entry.Definition, entry.Sentence);
    gChanged = true;

    const Integer count = list.NumWords();
    const Integer top = placeOfNewWord(count.toInt()).first;
    m_page.scrollTo(count);
    m_page.FillGrid(top);
    m_page.NumberRows(top);
    clearBoxes();
    m_area.show(EditorMode::NewWord);
    m_page.MarkNewRow();
}

void WordEditor::cmdAbort_Click()
{
    m_area.show(EditorMode::Idle);
    clearBoxes();
}

void WordEditor::cmdDelete_Click()
{
    cVocabList &list = gVocabList();
    const Integer top = m_page.FirstShownItem();
    m_page.returnToChosen();
    if (!isEntry(list.CurrentWord()) || m_area.word() != list.Word()) {
        MsgBox(QStringLiteral("Please select a word to delete or execute a search first."));
        return;
    }
    if (MsgBox(QStringLiteral("Are you sure you want to delete '") + list.Word() +
                   QStringLiteral("' ?"),
               MsgBoxButtons::YesNo, MsgBoxEsc::MeansNo) == MsgBoxAnswer::No)
        return;
    list.DeleteVocab();
    gChanged = true;
    clearBoxes();
    gNewWord = gWordSelected = false;
    Q_EMIT changed();
    m_area.show(EditorMode::Idle);

    const Integer count = list.NumWords();
    if (count == 0) {
        m_page.showNoEntries();
        return;
    }
    const Integer first = firstAfterDelete(top.toInt(), count.toInt());
    if (first != top)
        m_page.scrollTo(first);
    else
        m_page.FillGrid(first);
    m_page.NumberRows(first);
}

void WordEditor::mnuDeleteWord_Click()
{
    if (gVocabList().NumWords() == 0)
        MsgBox(QStringLiteral("Cannot delete: Your current wordlist is empty."));
    else
        cmdDelete_Click();
}

void WordEditor::cmdSearch_Click()
{
    m_area.show(m_area.mode() == EditorMode::Found ? EditorMode::Found : EditorMode::Search);
    if (m_area.word().isEmpty()) {
        m_page.UnhighlightRow();
        return;
    }
    cVocabList &list = gVocabList();
    const QString wanted = withoutOuterBlanks(m_area.word());
    Integer hit = list.SearchWord(wanted);
    if (hit == 0)
        hit = list.SearchWord(wanted); // after a miss the search starts at the first entry
    if (hit == 0)
        MsgBox(wanted + QStringLiteral(" is not in the list."));
    else
        showHit(hit);
    m_area.selectWord(); // the next word to look for can be typed
}

void WordEditor::showHit(Integer hit)
{
    m_page.UnhighlightRow();
    m_page.choose(0); // the hit's row is marked, no other one
    const GridPlace place = placeOfHit(hit.toInt(), gVocabList().NumWords().toInt());
    m_page.scrollTo(place.first);
    m_page.markRow(place.row);
    gVocabList().CurrentWord(hit);
    showEntry();
    m_area.show(EditorMode::Found);
}

void WordEditor::MSFlexGrid1_Click(int row, int column)
{
    const Integer item = m_page.itemIn(row);
    if (!isEntry(item))
        return;
    gVocabList().CurrentWord(item);
    m_page.makeCurrent(row);
    gWordSelected = true;
    gNewWord = false;
    showEntry();
    m_area.show(EditorMode::Editing, boxOfColumn(column));
    m_page.UnhighlightRow();
    m_page.markRow(row);
}

void WordEditor::showNewWordRow()
{
    const int count = gVocabList().NumWords().toInt();
    if (count > 0)
        m_page.scrollTo(placeOfNewWord(count).first);
    m_page.MarkNewRow();
}

void WordEditor::showEntry()
{
    const cVocabList &list = gVocabList();
    m_area.showEntry({list.Word(), list.Definition(), list.Sentence()});
    m_page.choose(list.CurrentWord());
}

void WordEditor::clearBoxes()
{
    m_page.choose(0);
    m_area.ClearEntryBoxes();
}
