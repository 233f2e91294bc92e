// SPDX-License-Identifier: GPL-3.0-or-later
// A word list in memory: an ordered sequence of entries, 1-based, with a current position, a
// resumable search and the scramble of the current word.
//
// No member checks a position against the number of entries: reading or editing outside the
// storage throws RunTimeError SubscriptOutOfRange. A member that throws leaves the list as it was.
#pragma once

#include "core/VocabRecord.h"
#include "core/WordIndex.h"
#include "runtime/Integer.h"

#include <functional>
#include <span>
#include <utility>
#include <vector>

class cVocabList
{
public:
    // Limits adding: the largest round number with which a position + 23 and the count + 1 stay
    // inside 16 bits. A file may hold more entries, up to Integer::Max.
    static constexpr int MaxWords = 32000;
    [[nodiscard]] bool isFull() const { return m_count >= MaxWords; }
    // The message when a full list refuses a word.
    [[nodiscard]] static QString maxWordsText();

    // Appends the texts as they are given and makes the new entry the current one. A full
    // list gives a notice and changes nothing.
    void AddVocab(const QString &NewWord, const QString &NewDef, const QString &NewSen);
    void ClearList();
    // Removes the current entry; the one before it becomes current.
    void DeleteVocab();
    // Overwrites the current entry.
    void Edit(const QString &NewWord, const QString &NewDef, const QString &NewSen);

    // Writes gFileName in the layout of ListFile and clears gChanged; an empty list writes
    // nothing. Throws what ListFile::encode and BinaryFile::overwrite throw.
    void SaveFile();
    // Replaces the list by the content of gFileName and clears gChanged. False without a name.
    // Throws what BinaryFile::read and ListFile::decode throw.
    bool OpenFile();
    // False if the file opened last has fewer records than its count says; such a file is no list.
    [[nodiscard]] bool fileIsWhole() const { return m_fileIsWhole; }

    void CurrentWord(Integer CurWord) { m_current = CurWord; }
    [[nodiscard]] Integer CurrentWord() const { return m_current; }

    // Whether an entry at or after `startpos` has this word, in any case. The entry found becomes
    // current. Position 0 exists only right after ClearList.
    bool Exist(const QString &NewWord, Integer startpos = 0);
    [[nodiscard]] Integer NumWords() const { return m_count; }
    // Finds the next entry with the word after the last hit and makes it current. 0 if there is
    // none; the next search then starts at the first entry.
    Integer SearchWord(const QString &FindWord);

    // The positions of all entries with the word, in any case. The current entry stays.
    [[nodiscard]] std::vector<int> positionsOf(const QString &word);

    // Builds the index of words now instead of at the first look-up: some milliseconds for 32,000
    // entries.
    void prepareLookup();

    // A random order of the current word's characters in which no three that follow one another
    // in the word do so here. For a word of one or two characters there is none, and the function
    // never returns.
    QString ScrambledWord();

    // Empty if the current position is 0.
    [[nodiscard]] QString Word() const;
    [[nodiscard]] QString Definition() const;
    [[nodiscard]] QString Sentence() const;
    // Reads an entry without making it current. Its texts are valid until the list changes.
    [[nodiscard]] const VocabRecord &entry(Integer position) const { return slot(position); }
    // The number of characters of the current word, as text.
    [[nodiscard]] QString length() const;

    // The content of a new list file with these entries. Texts that are too long for it are cut.
    [[nodiscard]] QByteArray fileBytes() const;

    enum class Change { OfEntries, Saved, Replaced }; // replaced by a file's list or an empty one
    // Called after each change. After Replaced, gChanged still belongs to the list before. None by
    // default.
    void setChangeHook(std::function<void(Change)> changed) { m_changeHook = std::move(changed); }

private:
    void Scramble();
    void tell(Change change) const;

    [[nodiscard]] VocabRecord &slot(Integer position);
    [[nodiscard]] const VocabRecord &slot(Integer position) const;
    [[nodiscard]] std::span<const VocabRecord> entries() const;
    [[nodiscard]] Integer find(const QString &word, Integer start);
    [[nodiscard]] bool isEntry(Integer position) const;

    // Slot i of the storage is element i - m_firstSlot. There may be more slots than entries.
    std::vector<VocabRecord> m_slots;
    QString m_fileCharacters; // the texts read from a file are views of it
    bool m_fileIsWhole = true;
    int m_firstSlot = 1;
    Integer m_count;
    Integer m_current;
    Integer m_searchPos; // of the last hit; 0 = none
    QString m_scrambled;
    std::function<void(Change)> m_changeHook;
    WordIndex m_index; // of all entries, or empty until a word is looked up
};
