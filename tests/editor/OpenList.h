// SPDX-License-Identifier: GPL-3.0-or-later
// The list open in the main window as the tests of the file commands see it.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "support/ListBytes.h"
#include "support/TestFiles.h"

#include <QPushButton>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;

const QString EndLesson = u"End current lesson?"_s;
const QString SaveChanges = u"Do you want to save changes?"_s;
const QString CaptionStart = u"LexiBrook- The Tanglewit: "_s;

using Entries = QList<QStringList>; // word, definition and sentence each

// "name 1", "definition 1 of name", "sentence 1 of name", …
inline Entries someEntries(int count, const QString &name)
{
    Entries entries;
    for (int i = 1; i <= count; ++i)
        entries += {u"%1 %2"_s.arg(name).arg(i), u"definition %2 of %1"_s.arg(name).arg(i),
                    u"sentence %2 of %1"_s.arg(name).arg(i)};
    return entries;
}

inline Entries openEntries()
{
    cVocabList &list = Module1::gVocabList();
    const Integer current = list.CurrentWord();
    Entries entries;
    const int count = list.NumWords().toInt(); // may be the largest Integer
    for (int i = 1; i <= count; ++i) {
        list.CurrentWord(i);
        entries += {list.Word(), list.Definition(), list.Sentence()};
    }
    list.CurrentWord(current);
    return entries;
}

// What must stay the same when a command changes nothing.
struct OpenList
{
    explicit OpenList(MainWindow &main)
        : fileName(Module1::gFileName), fileTitle(Module1::gFileTitle),
          openedFile(Module1::gOpenedFile), caption(main.window().windowTitle()),
          changed(Module1::gChanged), mayBeSaved(main.action("mnuSave").isEnabled()),
          position(Module1::gVocabList().CurrentWord().toInt()), scrolledTo(main.bar().value()),
          entries(openEntries())
    {
        for (int row = 0; row < main.grid().rowCount(); ++row)
            page += main.row(row);
    }
    bool operator==(const OpenList &) const = default;

    QString fileName;
    QString fileTitle;
    QString openedFile;
    QString caption;
    bool changed;
    bool mayBeSaved;
    int position;
    int scrolledTo;
    Entries entries;
    QList<QStringList> page;
};

// Opens a list file in a window whose list is unchanged.
inline void openList(MainWindow &main, const QString &path, Caller caller = Caller::current())
{
    main.answers.expectMsgBox(EndLesson, QMessageBox::Ok, {}, caller);
    main.answers.chooseFile(path, {}, caller);
    main.choose("mnuOpen", caller);
}

// Types a new entry and ends the entry mode.
inline void addEntry(MainWindow &main, const QString &word, Caller caller = Caller::current())
{
    main.click("cmdNewWord", caller);
    main.typeEntry(word, u"a definition"_s, u"A sentence."_s, caller);
    main.click("cmdAdd", caller);
    main.click("cmdAbort", caller);
}

inline QStringList addedEntry(const QString &word)
{
    return {word, u"a definition"_s, u"A sentence."_s};
}
