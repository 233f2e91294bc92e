// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/WordIndex.h"

#include <algorithm>

void WordIndex::rebuild(std::span<const VocabRecord> entries)
{
    clear();
    m_marks.reserve(entries.size());
    m_entries.reserve(qsizetype(entries.size()));
    for (const VocabRecord &entry : entries)
        append(entry.Word);
}

void WordIndex::clear()
{
    m_marks = std::vector<Mark>(); // clear() would keep the memory
    m_entries.clear();
    m_nextMark = 0;
}

void WordIndex::append(const QString &word)
{
    insertMark(word, m_nextMark);
    m_marks.push_back(m_nextMark++);
}

void WordIndex::remove(int position, const QString &word)
{
    const auto mark = m_marks.begin() + position - 1;
    removeMark(word, *mark);
    m_marks.erase(mark);
}

void WordIndex::replace(int position, const QString &oldWord, const QString &newWord)
{
    const Mark mark = m_marks[static_cast<std::size_t>(position - 1)];
    removeMark(oldWord, mark);
    insertMark(newWord, mark);
}

int WordIndex::find(const QString &word, int start) const
{
    const auto entry = m_entries.constFind(word.toLower());
    if (entry == m_entries.cend() || start > int(m_marks.size()))
        return 0;
    const Mark startMark = m_marks[static_cast<std::size_t>(start - 1)];
    const auto *const mark = std::lower_bound(entry->begin(), entry->end(), startMark);
    if (mark == entry->end())
        return 0;
    return positionOf(*mark);
}

std::vector<int> WordIndex::findAll(const QString &word) const
{
    std::vector<int> positions;
    for (const Mark mark : m_entries.value(word.toLower()))
        positions.push_back(positionOf(mark));
    return positions;
}

int WordIndex::positionOf(Mark mark) const
{
    return 1 + int(std::lower_bound(m_marks.begin(), m_marks.end(), mark) - m_marks.begin());
}

void WordIndex::insertMark(const QString &word, Mark mark)
{
    Marks &marks = m_entries[word.toLower()];
    marks.insert(std::lower_bound(marks.begin(), marks.end(), mark), mark);
}

void WordIndex::removeMark(const QString &word, Mark mark)
{
    const auto entry = m_entries.find(word.toLower());
    entry->erase(std::lower_bound(entry->begin(), entry->end(), mark));
    if (entry->isEmpty())
        m_entries.erase(entry);
}
