// SPDX-License-Identifier: GPL-3.0-or-later
// File > Import: lists and DIF files, and the dialog about words that exist already.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/Blanks.h"
#include "soak/DifFile.h"
#include "soak/Refusals.h"
#include "soak/Soak.h"
#include "support/TestFiles.h"

#include <QDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

int currentPosition()
{
    return Module1::gVocabList().CurrentWord().toInt();
}

// The page from the entry that was the current one before the import, or that of the next new word.
void expectPageAfter(Soak &soak, int position)
{
    if (soak.model.mode == Model::Mode::NewWord)
        soak.expectPageOfNewWord();
    else
        soak.expectPage(position <= soak.model.count() ? position : 1);
}

// One import from its first word to its last message. The model follows it up to the next word that
// exists already, and goes on from there after the answer.
class ImportRun final : public std::enable_shared_from_this<ImportRun>
{
public:
    enum class Kind { List, Dif };

    ImportRun(Soak &soak, Kind kind, std::vector<Entry> words)
        : m_soak(soak), m_kind(kind), m_words(std::move(words))
    {
        m_soak.model.addThis = m_soak.model.addAll = false;
    }

    // The error at the end of a damaged file; 0 if there is none.
    void endWithError(int number) { m_error = number; }

    void expectRest()
    {
        Model &model = m_soak.model;
        while (m_next < m_words.size() && !m_stopped) {
            const Entry &word = m_words[m_next++];
            model.imported = word;
            m_current = model.addAll ? 0 : model.find(word.word, 1);
            if (m_current != 0 && !model.skipAll)
                return expectQuestion();
            takeOrSkip(m_current == 0);
        }
        expectEnd();
    }

private:
    // A new word is added without a question, and after a Yes in a DIF file once more.
    void takeOrSkip(bool isNew)
    {
        const Model &model = m_soak.model;
        const bool wanted = model.addThis || model.addAll;
        if (isNew && (m_kind == Kind::Dif ? !model.addAll : true))
            add();
        if (wanted && (m_kind == Kind::Dif || !isNew))
            add();
    }

    void add()
    {
        m_soak.model.changed = true;
        ++m_added;
        if (m_soak.model.count() < cVocabList::MaxWords)
            m_soak.model.add(m_soak.model.imported);
        else
            m_refusals.expectOne(m_soak);
    }

    void expectQuestion()
    {
        m_soak.answers().useForm("dlgWordExist",
                                 [run = shared_from_this()](QDialog &form) { run->answer(form); });
    }

    void answer(QDialog &form)
    {
        Model &model = m_soak.model;
        model.addThis = model.addAll = false;
        compare(form, u"Word in current wordlist: "_s);
        for (int times = m_soak.roll(4); times > 0; --times)
            editExisting(form);
        Soak::waitFor(form);
        const char *button = m_soak.oneOf(Answers);
        m_soak.note(QLatin1String(button));
        take(QLatin1String(button));
        if (QLatin1String(button) != Close && QLatin1String(button) != u"cmdNo"_s)
            m_soak.expectPage(1); // the main window is updated
        takeOrSkip(false);
        expectRest();
        if (QLatin1String(button) != Close)
            Controls::click(Controls::find<QPushButton>(form, button));
        else if (m_soak.chance(50))
            form.close();
        else
            Soak::press(form, Qt::Key_Escape);
    }

    void take(QLatin1String button)
    {
        Model &model = m_soak.model;
        if (button == u"cmdYes"_s)
            model.addThis = true;
        else if (button == u"cmdYesToAll"_s)
            model.addAll = true;
        else if (button == u"cmdNoToAll"_s)
            model.skipAll = true;
        else if (button == u"cmdAbort"_s)
            m_stopped = true;
    }

    void editExisting(QDialog &form)
    {
        Soak::waitFor(form);
        const char *name = m_soak.oneOf(Edits);
        auto &button = Controls::find<QPushButton>(form, name);
        if (!button.isEnabled())
            return;
        m_soak.note(QLatin1String(name));
        if (QLatin1String(name) == u"cmdFindNext"_s)
            findNext(form);
        else if (QLatin1String(name) == u"cmdDelete"_s)
            deleteExisting(form);
        else if (QLatin1String(name) == u"cmdUpdate"_s)
            update(form);
        else
            Controls::click(button);
    }

    void findNext(QDialog &form)
    {
        const int hit = m_soak.model.find(m_soak.model.imported.word, m_current + 1);
        if (m_current == Integer::Max)
            m_soak.expectRunTimeError(6);
        else if (hit == 0)
            m_soak.expectMsgBox(u"Search ended. No more words found."_s);
        else
            m_current = hit;
        Controls::click(Controls::find<QPushButton>(form, "cmdFindNext"));
        if (hit != 0)
            compare(form, u"Current word: "_s);
    }

    void deleteExisting(QDialog &form)
    {
        const auto answer = m_soak.chance(60) ? QMessageBox::Yes : QMessageBox::No;
        m_soak.expectMsgBox(
            u"Are you sure you want to delete '%1' ?"_s.arg(m_soak.model.imported.word), answer);
        if (answer == QMessageBox::Yes) {
            m_soak.model.remove(m_current);
            m_current = m_current < 2 ? 1 : m_current - 1;
            m_deleted = true;
        }
        Controls::click(Controls::find<QPushButton>(form, "cmdDelete"));
    }

    void update(QDialog &form)
    {
        auto &box = Controls::find<QLineEdit>(form, "txtCurWord");
        if (m_soak.chance(50))
            m_soak.fill(box, m_soak.word());
        const auto answer = m_soak.chance(60) ? QMessageBox::Ok : QMessageBox::Cancel;
        m_soak.expectMsgBox(u"Are you sure you want to change the content of this word?"_s, answer);
        if (answer == QMessageBox::Ok) {
            const Entry &old = m_soak.model.entry(m_current);
            m_soak.model.edit(m_current,
                              {withoutOuterBlanks(box.text()), withoutOuterBlanks(old.definition),
                               withoutOuterBlanks(old.sentence)});
            m_soak.model.changed = true;
        }
        Controls::click(Controls::find<QPushButton>(form, "cmdUpdate"));
    }

    void compare(QDialog &form, const QString &title) const
    {
        const auto &model = m_soak.model;
        const QString shown = Controls::find<QGroupBox>(form, "frmCurWord").title();
        if (shown != title + QString::number(m_current) ||
            Controls::find<QLineEdit>(form, "txtCurWord").text() != model.entry(m_current).word ||
            Controls::find<QLineEdit>(form, "txtImportWord").text() != model.imported.word)
            failTest(u"the dialog shows \"%1\" for entry %2"_s.arg(shown).arg(m_current));
    }

    void expectEnd()
    {
        Model &model = m_soak.model;
        if (model.shown != 0 && m_deleted) {
            model.mode = Model::Mode::Idle;
            model.shown = 0;
        }
        m_refusals.expectRest(m_soak);
        if (m_error != 0 && !m_stopped) {
            m_soak.expectRunTimeError(m_error);
        } else if (m_kind == Kind::List) {
            model.canSave = model.canSave || model.changed;
            m_soak.expectMsgBox(u"%1 words imported"_s.arg(m_added));
            model.addThis = model.addAll = false;
        } else {
            m_soak.expectMsgBox(u"%1 words added"_s.arg(m_added));
            model.addThis = model.addAll = model.skipAll = false;
        }
        expectPageAfter(m_soak, m_currentBefore);
    }

    static constexpr QLatin1String Close{"close"};
    static constexpr const char *Answers[] = {"cmdYes",     "cmdNo",    "cmdYesToAll",
                                              "cmdNoToAll", "cmdAbort", "close"};
    static constexpr const char *Edits[] = {"cmdFindNext", "cmdAllowModify", "cmdUpdate",
                                            "cmdDelete"};

    Soak &m_soak;
    Kind m_kind;
    std::vector<Entry> m_words;
    Refusals m_refusals;
    int m_currentBefore = currentPosition();
    int m_error = 0;
    std::size_t m_next = 0;
    int m_current = 0; // the entry that the dialog shows
    int m_added = 0;
    bool m_stopped = false;
    bool m_deleted = false;
};

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

// The message that refuses the whole list; empty if it is imported.
QString refusalOfList(const Model &model, int words)
{
    constexpr int most = cVocabList::MaxWords;
    if (model.count() > most)
        return u"Cannot import any more words. Maximum number of words=%1"_s.arg(most);
    if (model.count() + words > most)
        return u"Cannot import words because this will exceed maximum number of words. "
               "Maximum number of words=%1"_s.arg(most);
    return {};
}

// Whether the list has so many words that the model would be slow.
bool isTooLong(const Model &model, const std::vector<Entry> &list)
{
    constexpr int most = 1000;
    return int(list.size()) > most && refusalOfList(model, int(list.size())).isEmpty();
}

// The import of a list, up to its first word.
void expectListImport(Soak &soak, std::vector<Entry> list)
{
    soak.model.changed = false;
    const QString refusal = refusalOfList(soak.model, int(list.size()));
    if (!refusal.isEmpty()) {
        soak.expectMsgBox(refusal);
        return expectPageAfter(soak, currentPosition());
    }
    std::erase_if(list, [](const Entry &entry) { return entry.word.isEmpty(); });
    std::make_shared<ImportRun>(soak, ImportRun::Kind::List, std::move(list))->expectRest();
}

void importList(Soak &soak)
{
    Model &model = soak.model;
    const QString path = soak.oneOf(soak.files(u".lwx"_s));
    soak.note(path);
    auto list = Model::listOf(model.read(path));
    if (list && isTooLong(model, *list))
        return;
    soak.answers().chooseFile(path);
    model.addThis = model.addAll = model.skipAll = false;
    int error = Model::readError(path);
    if (error == 0 && !list)
        error = 9;
    if (error != 0) {
        soak.expectRunTimeError(error);
        expectPageAfter(soak, currentPosition());
    } else {
        expectListImport(soak, std::move(*list));
    }
    soak.main().choose("mnuImport");
}

void importDif(Soak &soak)
{
    const DifFile dif = someDifFile(soak, soak.model.imported);
    const QString path = soak.path(u"words.dif"_s);
    writeFile(path, dif.bytes);
    QStringList words;
    for (const Entry &entry : dif.words)
        words += entry.word;
    soak.note(u"%1, error %2"_s.arg(words.join(u'|')).arg(dif.error));
    soak.answers().chooseFile(path);
    if (dif.isRefused) {
        soak.expectRunTimeError(dif.error);
        expectPageAfter(soak, currentPosition());
    } else {
        const auto run = std::make_shared<ImportRun>(soak, ImportRun::Kind::Dif, dif.words);
        run->endWithError(dif.error);
        run->expectRest();
    }
    soak.main().choose("mnuImport");
}

void importNothing(Soak &soak)
{
    if (soak.chance(50)) {
        soak.answers().cancelFileDialog();
    } else {
        soak.answers().chooseFile(soak.inLists(u"old.txt"_s)); // a file that cannot be imported
        expectPageAfter(soak, currentPosition());
    }
    soak.main().choose("mnuImport");
}

} // namespace

std::vector<Action> importActions()
{
    return {
        {"import a list", 10, isEditorShown, importList},
        {"import a DIF file", 10, isEditorShown, importDif},
        {"import nothing", 3, isEditorShown, importNothing},
    };
}
