// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/QuietLine.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/WordEditor.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/TextMarks.h"
#include "runtime/Blanks.h"

#include <QFileInfo>

#include <algorithm>

using namespace Module1;

namespace {

QuietTexts::SaveFile saveFile()
{
    // A list without a file of its own keeps the name in the caption after a cancelled Open.
    if (gFileName.isEmpty())
        return {{}, !gOpenedFile.isEmpty()};
    const bool isOpenFile = gOpenedFile.isEmpty() || gFileName == gOpenedFile;
    return {gFileName, isOpenFile && QFileInfo(gFileName).fileName() == gFileTitle};
}

// Which of the entries with its word the hit is.
QString hitText(Integer hit)
{
    cVocabList &list = gVocabList();
    const std::vector<int> hits = list.positionsOf(list.entry(hit).Word);
    const auto before = std::lower_bound(hits.begin(), hits.end(), hit.toInt()) - hits.begin();
    return QuietTexts::ofHit(int(before) + 1, int(hits.size()));
}

} // namespace

QuietLine::QuietLine(const Ui::frmMain &ui, const WordEditor &editor) : m_ui(ui), m_editor(editor)
{
    connect(ui.txtWord, &QLineEdit::textChanged, this, guarded(this, &QuietLine::txtWord_Change));
    setHandlerEndHook([this] { refresh(); });
}

QuietLine::~QuietLine()
{
    setHandlerEndHook({});
}

void QuietLine::say(const QString &text)
{
    m_said = text;
    m_before.reset();
}

// Has nothing to do itself: the line is refreshed after each handler.
void QuietLine::txtWord_Change() {}

void QuietLine::refresh()
{
    const QuietTexts::Line now = line();
    m_ui.lblQuiet->setLine(now.text, now.marked);
    m_ui.txtWord->showLostCharacters(isTyped());
}

QuietTexts::Line QuietLine::line()
{
    if (const QString lost = isTyped() ? lostCharacters() : QString(); !lost.isEmpty())
        return {lost, {}};
    QuietTexts::Line line = lineOfMode();
    const std::pair now(m_editor.mode(), line.text + line.marked);
    if (!m_before)
        m_before = now;
    if (m_before != now)
        m_said.clear();
    if (!m_said.isEmpty())
        return {m_said, {}};
    return line;
}

QuietTexts::Line QuietLine::lineOfMode() const
{
    if (isHitInBox())
        return {hitText(m_editor.chosenEntry()), {}};
    if (const QString same = sameWord(); !same.isEmpty())
        return {same, {}};
    return QuietTexts::ofList(gVocabList().NumWords().toInt(), gChanged, saveFile());
}

// Whether the boxes hold an entry for the list.
bool QuietLine::isTyped() const
{
    const EditorMode mode = m_editor.mode();
    return mode == EditorMode::NewList || mode == EditorMode::NewWord ||
           mode == EditorMode::Editing;
}

// Not while the next word to look for is typed, or after it was not found.
bool QuietLine::isHitInBox() const
{
    const Integer hit = m_editor.chosenEntry();
    return m_editor.mode() == EditorMode::Found && hit != 0 &&
           withoutOuterBlanks(m_ui.txtWord->text()).toLower() ==
               gVocabList().entry(hit).Word.toLower();
}

// While a word is typed, the entry that has it already.
QString QuietLine::sameWord() const
{
    const QString word = m_ui.txtWord->text();
    if (!isTyped() || word.isEmpty())
        return {};
    cVocabList &list = gVocabList();
    for (const int position : list.positionsOf(word))
        if (position != m_editor.chosenEntry())
            return QuietTexts::ofSameWord(position, list.entry(position));
    return {};
}

QString QuietLine::lostCharacters() const
{
    return lostCharactersText(m_ui.txtWord->text() + m_ui.txtDefinition->text() +
                              m_ui.txtSentence->text());
}
