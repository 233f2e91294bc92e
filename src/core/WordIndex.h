// SPDX-License-Identifier: GPL-3.0-or-later
// Finds a word's positions in a list without walking it: lower-cased word to entries, in the
// order of the list.
//
// Each entry gets a mark when it is appended. Marks only grow along the list, so a position is
// found from its mark by bisection and a deletion leaves all other marks as they are.
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

    // The first position from `start` (1 or more) on whose word equals `word` once both are
    // lower-cased; 0 for none.
    [[nodiscard]] int find(const QString &word, int start) const;

private:
    using Mark = quint32;
    using Marks = QVarLengthArray<Mark, 2>;

    void insertMark(const QString &word, Mark mark);
    void removeMark(const QString &word, Mark mark);

    std::vector<Mark> m_marks; // of each position, ascending
    QHash<QString, Marks> m_entries;
    Mark m_nextMark = 0;
};
