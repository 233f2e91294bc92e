// SPDX-License-Identifier: GPL-3.0-or-later
// Helpers for tests of the list: fill it, read its entries, make the bytes of its file.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "runtime/ErrorNumber.h"
#include "runtime/Windows1252.h"
#include "support/ListBytes.h"
#include "support/TestFiles.h"

#include <QStringList>

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

// "word|definition|sentence" of an entry, or of a slot after the last entry.
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

// The record of a word that addWords() added, in a list file.
[[nodiscard]] inline QByteArray addedRecord(const QByteArray &word)
{
    return recordBytes(word, word + " def", word + " sen");
}
