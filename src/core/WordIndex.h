// SPDX-License-Identifier: GPL-3.0-or-later
// Finds the positions of a word without going through the list. Maps each word, in lower case, to
// its entries in the order of the list.
//
// Each entry gets a mark when it is appended. Marks increase along the list: the position of a mark
// is found by binary search, and deleting an entry changes no other mark.
#pragma once

#include "core/VocabRecord.h"

#include <QHash>
#include <QVarLengthArray>

#include <span>
#include <vector>

class WordIndex
{
public:
    // Positions are 1-based.
    void rebuild(std::span<const VocabRecord> entries);
    void clear();
    [[nodiscard]] bool isEmpty() const { return m_marks.empty(); }

    void append(const QString &word);
    void remove(int position, const QString &word);
    void replace(int position, const QString &oldWord, const QString &newWord);

    // The first position at or after `start` (1 or more) whose word equals `word`, both in lower
    // case. 0 if there is none.
    [[nodiscard]] int find(const QString &word, int start) const;
    // The positions of all entries whose word equals `word`, both in lower case.
    [[nodiscard]] std::vector<int> findAll(const QString &word) const;

private:
    using Mark = quint32;
    using Marks = QVarLengthArray<Mark, 2>;

    [[nodiscard]] int positionOf(Mark mark) const;
    void insertMark(const QString &word, Mark mark);
    void removeMark(const QString &word, Mark mark);

    std::vector<Mark> m_marks; // of each position, ascending
    QHash<QString, Marks> m_entries;
    Mark m_nextMark = 0;
};
