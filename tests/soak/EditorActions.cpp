// SPDX-License-Identifier: GPL-3.0-or-later
// The entry area: boxes, buttons and keys.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/Blanks.h"
#include "soak/Soak.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

using Mode = Model::Mode;

constexpr const char *Boxes[] = {"txtWord", "txtDefinition", "txtSentence"};

template <const char *Name> bool isUsable(Soak &soak)
{
    return soak.isUsable(Name);
}

constexpr char NewWordButton[] = "cmdNewWord";
constexpr char AddButton[] = "cmdAdd";
constexpr char AbortButton[] = "cmdAbort";
constexpr char DeleteButton[] = "cmdDelete";
constexpr char SearchButton[] = "cmdSearch";
constexpr char WordBox[] = "txtWord";
constexpr char DefinitionBox[] = "txtDefinition";

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

void becomeIdle(Model &model)
{
    model.mode = Mode::Idle;
    model.shown = 0;
}

void newWord(Soak &soak)
{
    soak.expectPageOfNewWord();
    soak.main().click(NewWordButton);
    soak.model.mode = Mode::NewWord;
    soak.model.shown = 0;
    soak.model.newWord = true;
    soak.model.wordSelected = false;
}

void typeInto(Soak &soak, const char *box, const QString &text)
{
    soak.note(u"%1: %2"_s.arg(QLatin1String(box), text));
    soak.fill(soak.main().control<QWidget>(box), text);
}

void typeWord(Soak &soak)
{
    typeInto(soak, WordBox, soak.word());
}

void typeTexts(Soak &soak)
{
    for (const char *box : {"txtDefinition", "txtSentence"})
        typeInto(soak, box, soak.text());
}

void pressEditingKeys(Soak &soak)
{
    auto &box = soak.main().control<QWidget>(soak.oneOf(Boxes));
    if (!box.isEnabled())
        return;
    box.setFocus();
    struct Stroke
    {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
    };
    static const std::vector<Stroke> strokes{
        {Qt::Key_Z, Qt::ControlModifier},
        {Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier},
        {Qt::Key_A, Qt::ControlModifier},
        {Qt::Key_X, Qt::ControlModifier},
        {Qt::Key_C, Qt::ControlModifier},
        {Qt::Key_Backspace, Qt::NoModifier},
        {Qt::Key_Backspace, Qt::ControlModifier},
        {Qt::Key_Delete, Qt::NoModifier},
        {Qt::Key_Home, Qt::NoModifier},
        {Qt::Key_End, Qt::ShiftModifier},
        {Qt::Key_Up, Qt::NoModifier},
        {Qt::Key_PageDown, Qt::NoModifier},
        {Qt::Key_K, Qt::ControlModifier},
    };
    for (int times = 1 + soak.roll(6); times > 0; --times) {
        const Stroke stroke = soak.oneOf(strokes);
        soak.note(u"%1: %2"_s.arg(box.objectName(),
                                  QKeySequence(stroke.key | stroke.modifiers).toString()));
        Soak::press(box, stroke.key, stroke.modifiers);
    }
}

void moveFocus(Soak &soak)
{
    if (QWidget *focus = QApplication::focusWidget())
        Soak::press(*focus, soak.chance(70) ? Qt::Key_Tab : Qt::Key_Backtab);
}

// The texts in the boxes.
Entry typedEntry(Soak &soak)
{
    MainWindow &main = soak.main();
    return {main.text("txtWord"), main.text("txtDefinition"), main.text("txtSentence")};
}

void expectUpdate(Soak &soak, const Entry &typed)
{
    Model &model = soak.model;
    model.edit(model.shown, {withoutOuterBlanks(typed.word), withoutOuterBlanks(typed.definition),
                             withoutOuterBlanks(typed.sentence)});
    model.changed = true;
    model.wordSelected = false;
    becomeIdle(model);
}

void expectAddition(Soak &soak, const Entry &typed)
{
    Model &model = soak.model;
    if (model.find(typed.word, 1) != 0) {
        const auto answer = soak.chance(50) ? QMessageBox::Yes : QMessageBox::No;
        soak.expectMsgBox(u"Word already exist.  Add word anyway?"_s, answer);
        if (answer == QMessageBox::No)
            return;
    }
    model.add(typed);
    model.changed = true;
    model.mode = Mode::NewWord;
}

void expectAdd(Soak &soak)
{
    Model &model = soak.model;
    const Entry typed = typedEntry(soak);
    if (model.newWord && model.count() >= cVocabList::MaxWords) {
        soak.expectMsgBox(cVocabList::maxWordsText());
        return;
    }
    if (!typed.word.isEmpty() && model.wordSelected)
        expectUpdate(soak, typed);
    else if (!typed.word.isEmpty() && model.newWord)
        expectAddition(soak, typed);
    model.canSave = model.canSave || model.changed;
}

void pressEnter(Soak &soak)
{
    auto &box = soak.main().control<QWidget>(soak.oneOf(Boxes));
    box.setFocus();
    Soak::press(box, Qt::Key_Return);
}

void add(Soak &soak)
{
    expectAdd(soak);
    if (soak.chance(40))
        soak.main().click(AddButton);
    else
        pressEnter(soak);
}

bool isNewList(Soak &soak)
{
    return isEditorShown(soak) && soak.model.mode == Mode::NewList;
}

void enterInNewList(Soak &soak)
{
    expectAdd(soak);
    pressEnter(soak);
}

void abortEntry(Soak &soak)
{
    becomeIdle(soak.model);
    if (soak.chance(50))
        soak.main().click(AbortButton);
    else
        Soak::press(soak.main().window(), Qt::Key_Escape);
}

void expectDelete(Soak &soak)
{
    Model &model = soak.model;
    const int position =
        model.shown != 0 ? model.shown : Module1::gVocabList().CurrentWord().toInt();
    const bool isEntry = position >= 1 && position <= model.count();
    if (!isEntry || soak.main().text(WordBox) != model.entry(position).word) {
        soak.expectMsgBox(u"Please select a word to delete or execute a search first."_s);
        return;
    }
    const auto answer = soak.chance(70) ? QMessageBox::Yes : QMessageBox::No;
    soak.expectMsgBox(u"Are you sure you want to delete '%1' ?"_s.arg(model.entry(position).word),
                      answer);
    if (answer == QMessageBox::No)
        return;
    model.remove(position);
    model.changed = model.canSave = true;
    model.newWord = model.wordSelected = false;
    becomeIdle(model);
}

void deleteByButton(Soak &soak)
{
    expectDelete(soak);
    soak.main().click(DeleteButton);
}

void deleteByMenu(Soak &soak)
{
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Cannot delete: Your current wordlist is empty."_s);
    else
        expectDelete(soak);
    soak.main().choose("mnuDeleteWord");
}

void search(Soak &soak)
{
    Model &model = soak.model;
    model.mode = Mode::Search;
    const QString typed = soak.main().text(WordBox);
    const QString wanted = withoutOuterBlanks(typed);
    const int hit = typed.isEmpty() ? 0 : model.search(wanted);
    const bool isShown = hit != 0 && !model.overflowsOnPage(hit);
    if (hit != 0)
        model.shown = isShown ? hit : 0;
    else if (!typed.isEmpty())
        soak.expectMsgBox(wanted + u" is not in the list."_s);
    if (hit != 0)
        soak.expectPage(hit);
    soak.main().click(SearchButton);
    if (isShown && soak.main().text(DefinitionBox) != model.entry(hit).definition)
        failTest(u"the boxes do not show entry %1"_s.arg(hit));
}

} // namespace

std::vector<Action> editorActions()
{
    return {
        {"New Word", 20, isUsable<NewWordButton>, newWord},
        {"type a word", 60, isUsable<WordBox>, typeWord},
        {"type texts", 20, isUsable<DefinitionBox>, typeTexts},
        {"editing keys", 15, isUsable<WordBox>, pressEditingKeys},
        {"Tab", 5, isEditorShown, moveFocus},
        {"Add or Update", 80, isUsable<AddButton>, add},
        {"Enter in a new list", 30, isNewList, enterInNewList},
        {"Abort", 10, isUsable<AbortButton>, abortEntry},
        {"Delete", 15, isUsable<DeleteButton>, deleteByButton},
        {"Edit > Delete Word", 3, isEditorShown, deleteByMenu},
        {"Search", 25, isUsable<SearchButton>, search},
    };
}
