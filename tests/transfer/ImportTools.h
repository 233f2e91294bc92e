// SPDX-License-Identifier: GPL-3.0-or-later
// Makes files to import without the program's own code, reads the entries of the open list, and
// answers the question about words that exist already.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/ListBytes.h"
#include "support/TestFiles.h"

#include <QDialog>
#include <QPushButton>
#include <QTest>

using namespace Qt::StringLiterals;

// An entry is written "word|definition|sentence"; what is missing at the end is empty.
namespace ImportTools {

inline QStringList parts(const QString &entry)
{
    QStringList texts = entry.split(u'|');
    while (texts.size() < 3)
        texts += QString();
    return texts;
}

inline QString entryOf(const QStringList &texts)
{
    QString entry = texts.join(u'|');
    while (entry.endsWith(u'|'))
        entry.chop(1);
    return entry;
}

inline QByteArray listFile(const QStringList &entries)
{
    QList<QStringList> all;
    for (const QString &entry : entries)
        all += parts(entry);
    return listBytes(all);
}

// The lines of a DIF file. The values of a row are separated by '|'.
inline QByteArrayList difLinesOf(const QStringList &rows, const QByteArray &tuples = "0,2",
                                 const QByteArray &vectors = "0,1")
{
    QByteArrayList lines{"TABLE", "0,1",  "\"\"", "VECTORS", vectors, "\"\"", "TUPLES",
                         tuples,  "\"\"", "DATA", "0,0",     "\"\"",  "-1,0"};
    for (const QString &row : rows) {
        lines += "BOT";
        const QStringList values = row.split(u'|');
        for (const QString &value : values)
            lines += {"1,0", '"' + value.toLatin1() + '"'};
        lines += "-1,0";
    }
    return lines << "EOD";
}

inline QByteArray joined(const QByteArrayList &lines, const QByteArray &lineEnd = "\r\n")
{
    return lines.isEmpty() ? QByteArray() : lines.join(lineEnd) + lineEnd;
}

// The entries of the open list.
inline QStringList openEntries()
{
    cVocabList &list = Module1::gVocabList();
    const Integer current = list.CurrentWord();
    QStringList entries;
    for (Integer i = 1; i <= list.NumWords(); ++i) {
        list.CurrentWord(i);
        entries += entryOf({list.Word(), list.Definition(), list.Sentence()});
    }
    list.CurrentWord(current);
    return entries;
}

inline void setOpenEntries(const QStringList &entries)
{
    cVocabList &list = Module1::gVocabList();
    list.ClearList();
    for (const QString &entry : entries) {
        const QStringList texts = parts(entry);
        list.AddVocab(texts[0], texts[1], texts[2]);
    }
}

// An answer is the name of its button, or Close.
inline const char *const Close = "close";

inline void giveAnswer(QDialog &form, const QString &answer, Caller caller = Caller::current())
{
    if (answer == QLatin1String(Close))
        form.close();
    else
        Controls::click(Controls::find<QPushButton>(form, qPrintable(answer), caller), caller);
}

// Expects the question about an existing word. `look` is called before the answer.
inline void expectQuestion(DialogAnswers &answers, const QString &answer,
                           std::function<void(QDialog &)> look = {},
                           Caller caller = Caller::current())
{
    answers.useForm(
        "dlgWordExist",
        [answer, caller, look = std::move(look)](QDialog &form) {
            if (look)
                look(form);
            giveAnswer(form, answer, caller);
        },
        caller);
}

// The four flags as letters: T(his), A(ll), S(kip all), E(nd). A small letter means not set.
inline QString flags()
{
    const auto letter = [](bool set, char name) {
        return QLatin1Char(set ? name : static_cast<char>(name - 'A' + 'a'));
    };
    return QString(letter(Module1::gAddThis, 'T')) + letter(Module1::gAddAll, 'A') +
           letter(Module1::gSkipAll, 'S') + letter(Module1::gStopImport, 'E');
}

} // namespace ImportTools
