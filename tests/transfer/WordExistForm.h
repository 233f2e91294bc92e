// SPDX-License-Identifier: GPL-3.0-or-later
// The dialog about an existing word, opened as an import does.
#pragma once

#include "core/FreshState.h"
#include "platform/EntryTextBox.h"
#include "support/FormTest.h"
#include "transfer/ImportTools.h"
#include "transfer/dlgWordExist.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

// What the open dialog shows.
struct WordExistForm
{
    explicit WordExistForm(QDialog &dialog) : form(dialog) {}

    [[nodiscard]] QPushButton &button(const char *name, Caller caller = Caller::current()) const
    {
        return Controls::find<QPushButton>(form, name, caller);
    }
    void click(const char *name, Caller caller = Caller::current()) const
    {
        Controls::click(button(name, caller), caller);
    }
    void close() const { form.close(); }

    // The existing entry's boxes: word, definition, sentence.
    [[nodiscard]] QStringList existing() const { return texts("txtCur"); }
    [[nodiscard]] QStringList incoming() const { return texts("txtImport"); }
    [[nodiscard]] QString frame() const
    {
        return Controls::find<QGroupBox>(form, "frmCurWord").title();
    }
    [[nodiscard]] QString question() const
    {
        return Controls::find<QLabel>(form, "lblWordExist").text();
    }

    // "locked" or "unlocked" for the three boxes, then the captions of those buttons for editing
    // that are enabled: "Allow Modify", "Update changes", "Delete".
    [[nodiscard]] QStringList state(Caller caller = Caller::current()) const
    {
        const bool word = Controls::find<QLineEdit>(form, "txtCurWord").isReadOnly();
        const bool definition = Controls::find<EntryTextBox>(form, "txtCurDef").isReadOnly();
        const bool sentence = Controls::find<EntryTextBox>(form, "txtCurSen").isReadOnly();
        if (word != definition || word != sentence)
            failTest(u"the boxes are locked in part"_s, caller);
        QStringList state{word ? u"locked"_s : u"unlocked"_s};
        for (const char *name : {"cmdAllowModify", "cmdUpdate", "cmdDelete"})
            if (button(name).isEnabled())
                state += button(name).text();
        return state;
    }

    void type(const char *box, const QString &text, Caller caller = Caller::current()) const
    {
        Controls::type(Controls::find<QWidget>(form, box, caller), text, caller);
    }

    QDialog &form;

private:
    [[nodiscard]] QStringList texts(const char *prefix) const
    {
        const auto name = [prefix](const char *end) { return QByteArray(prefix) + end; };
        return {Controls::find<QLineEdit>(form, name("Word")).text(),
                Controls::find<EntryTextBox>(form, name("Def")).text(),
                Controls::find<EntryTextBox>(form, name("Sen")).text()};
    }
};

// state() while an entry is shown, with locked and with unlocked boxes.
inline QStringList shownLocked()
{
    return {u"locked"_s, u"Allow Modify"_s, u"Delete"_s};
}
inline QStringList shownUnlocked()
{
    return {u"unlocked"_s, u"Update changes"_s, u"Delete"_s};
}

class WordExistQuestion final
{
public:
    // The incoming entry, whose word the open list must hold.
    explicit WordExistQuestion(const QString &incoming)
    {
        const QStringList texts = ImportTools::parts(incoming);
        Module1::gImportWord = texts[0];
        Module1::gImportDef = texts[1];
        Module1::gImportSen = texts[2];
    }

    // Shows the dialog for the first entry with the word, as an import does. `use` must close it.
    // Returns how often the dialog has emitted refresh().
    int ask(DialogAnswers &answers, const std::function<void(const WordExistForm &)> &use,
            Caller caller = Caller::current())
    {
        if (!Module1::gVocabList().Exist(Module1::gImportWord, 1))
            failTest(u"the open list has no such word"_s, caller);
        answers.useForm(
            "dlgWordExist", [use](QDialog &dialog) { use(WordExistForm(dialog)); }, caller);
        dlgWordExist dialog;
        dialog.showConflict(2, 5);
        int refreshed = 0;
        QObject::connect(&dialog, &dlgWordExist::refresh, &dialog, [&, caller] {
            ++refreshed;
            if (dialog.isVisible())
                failTest(u"refreshed before the dialog is gone"_s, caller);
        });
        dialog.exec();
        return refreshed;
    }
};
