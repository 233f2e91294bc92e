// SPDX-License-Identifier: GPL-3.0-or-later
// What tests of the list have in common: filling it, looking at it, its files.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/ErrorNumber.h"
#include "runtime/Windows1252.h"
#include "support/TestFiles.h"

#include <QStringList>
#include <QtEndian>

using namespace Qt::StringLiterals;

inline void addWords(cVocabList &list, const QStringList &words)
{
    for (const QString &word : words)
        list.AddVocab(word, word + u" def"_s, word + u" sen"_s);
}

// All entries in order; the current position stays.
[[nodiscard]] inline QStringList wordsOf(cVocabList &list)
{
    const Integer current = list.CurrentWord();
    QStringList words;
    for (int i = 1; i <= list.NumWords().toInt(); ++i) {
        list.CurrentWord(i);
        words << list.Word();
    }
    list.CurrentWord(current);
    return words;
}

// "word|definition|sentence" of an entry or of a slot behind the entries.
[[nodiscard]] inline QString entryText(cVocabList &list, int position)
{
    const Integer current = list.CurrentWord();
    list.CurrentWord(position);
    QString text = QStringList{list.Word(), list.Definition(), list.Sentence()}.join(u'|');
    list.CurrentWord(current);
    return text;
}

// Whether the storage has a slot of this number other than position 0.
[[nodiscard]] inline bool hasSlot(cVocabList &list, int position)
{
    const Integer current = list.CurrentWord();
    list.CurrentWord(position);
    const bool exists = errorNumberOf([&] { return list.length(); }) == NoRunTimeError;
    list.CurrentWord(current);
    return exists;
}

// A text of a list file.
[[nodiscard]] inline QByteArray fileText(const QByteArray &text)
{
    return QByteArray{}
        .append(char(text.size() & 0xFF))
        .append(char(text.size() >> 8))
        .append(text);
}

[[nodiscard]] inline QByteArray fileRecord(const QByteArray &word, const QByteArray &definition,
                                           const QByteArray &sentence)
{
    return fileText(word) + fileText(definition) + fileText(sentence);
}

// The record of a word that addWords() added.
[[nodiscard]] inline QByteArray fileRecord(const QByteArray &word)
{
    return fileRecord(word, word + " def", word + " sen");
}

[[nodiscard]] inline QByteArray fileCount(int count)
{
    return QByteArray{}.append(char(count & 0xFF)).append(char((count >> 8) & 0xFF));
}
