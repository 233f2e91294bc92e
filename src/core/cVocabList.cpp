// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/cVocabList.h"

#include "core/ListFile.h"
#include "core/Module1.h"
#include "runtime/BinaryFile.h"
#include "runtime/Notice.h"

#include <algorithm>
#include <utility>

namespace {

// A text in the storage can be a view of m_fileCharacters, which a change of the list deletes.
QString copyOf(const QString &text)
{
    return QStringView(text).toString();
}

} // namespace

QString cVocabList::maxWordsText()
{
    return QStringLiteral("Cannot add any more words. Maximum number of words= %1").arg(MaxWords);
}

void cVocabList::AddVocab(const QString &NewWord, const QString &NewDef, const QString &NewSen)
{
    if (isFull()) {
        notice(maxWordsText());
        return;
    }
    if (m_count == 0)
        m_slots.clear();
    m_firstSlot = 1;
    m_slots.resize(static_cast<std::size_t>(m_count.toInt()));
    m_slots.push_back({NewWord, NewDef, NewSen});
    // Empty means not built yet.
    if (!m_index.isEmpty())
        m_index.append(NewWord);
    ++m_count;
    m_current = m_count;
    m_searchPos = 0;
    tell(Change::OfEntries);
}

void cVocabList::ClearList()
{
    m_slots = std::vector<VocabRecord>(2);
    m_fileCharacters.clear();
    m_firstSlot = 0;
    m_count = 0;
    m_current = 1;
    m_searchPos = 0;
    m_index.clear();
    tell(Change::Replaced);
}

void cVocabList::DeleteVocab()
{
    if (m_current == 0)
        return;
    if (m_current < m_count)
        static_cast<void>(slot(m_current)); // a position below the storage fails before any change
    if (m_count < 1)
        return;
    const int position = std::min(m_current, m_count).toInt();
    if (!m_index.isEmpty())
        m_index.remove(position, slot(position).Word);
    const auto count = static_cast<std::size_t>(m_count.toInt());
    if (m_current < m_count) {
        const auto gap = m_slots.begin() + position - 1;
        std::move(gap + 1, m_slots.begin() + m_count.toInt(), gap);
        // The former last entry stays in its slot as well.
        m_slots[count - 1] = m_slots[count - 2];
    }
    m_slots.resize(count);
    --m_count;
    m_current = m_current < 2 ? Integer(1) : m_current - 1;
    tell(Change::OfEntries);
}

void cVocabList::Edit(const QString &NewWord, const QString &NewDef, const QString &NewSen)
{
    VocabRecord &entry = slot(m_current);
    m_searchPos = 0;
    if (!m_index.isEmpty() && isEntry(m_current))
        m_index.replace(m_current.toInt(), entry.Word, NewWord);
    entry = {NewWord, NewDef, NewSen};
    tell(Change::OfEntries);
}

void cVocabList::SaveFile()
{
    if (m_count != 0) {
        BinaryFile::overwrite(Module1::gFileName, ListFile::encode(m_count, m_slots));
        Module1::gChanged = false;
    }
    tell(Change::Saved);
}

QByteArray cVocabList::fileBytes() const
{
    return ListFile::encode(m_count, entries(), ListFile::LongTexts::AreCut);
}

void cVocabList::tell(Change change) const
{
    if (m_changeHook)
        m_changeHook(change);
}

bool cVocabList::OpenFile()
{
    if (!Module1::gFileName.isEmpty()) {
        ListFile::RecordsEnd end(Integer::Max);
        const auto isEnough = [&end](QByteArrayView start) { return end.isIn(start); };
        ListFile::Content content =
            ListFile::decode(BinaryFile::read(Module1::gFileName, isEnough), Integer::Max);
        m_index.clear();
        m_count = content.records.size();
        m_slots = std::move(content.records);
        m_fileCharacters = std::move(content.characters);
        m_fileIsWhole = content.isWhole;
        m_slots.resize(std::max<std::size_t>(m_slots.size(), 1));
        m_firstSlot = 1;
    }
    m_current = 1;
    m_searchPos = 0;
    const bool isRead = !Module1::gFileName.isEmpty();
    if (isRead)
        tell(Change::Replaced);
    Module1::gChanged = false;
    return isRead;
}

bool cVocabList::Exist(const QString &NewWord, Integer startpos)
{
    Integer start = startpos;
    if (start < 1 && start <= m_count) {
        // Only the slot that ClearList leaves before the first entry can be below 1.
        if (slot(start).Word.toLower() == NewWord.toLower()) {
            m_current = start;
            return true;
        }
        ++start;
    }
    const Integer hit = find(NewWord, start);
    if (hit == 0)
        return false;
    m_current = hit;
    return true;
}

Integer cVocabList::SearchWord(const QString &FindWord)
{
    // There is no position after the last of 32,767 entries.
    const Integer hit = m_searchPos < m_count ? find(FindWord, m_searchPos + 1) : Integer(0);
    m_searchPos = hit;
    if (hit != 0)
        m_current = hit;
    return hit;
}

QString cVocabList::Word() const
{
    return m_current == 0 ? QString() : copyOf(slot(m_current).Word);
}

QString cVocabList::Definition() const
{
    return m_current == 0 ? QString() : copyOf(slot(m_current).Definition);
}

QString cVocabList::Sentence() const
{
    return m_current == 0 ? QString() : copyOf(slot(m_current).Sentence);
}

QString cVocabList::length() const
{
    return QString::number(slot(m_current).Word.size());
}

VocabRecord &cVocabList::slot(Integer position)
{
    return const_cast<VocabRecord &>(std::as_const(*this).slot(position));
}

const VocabRecord &cVocabList::slot(Integer position) const
{
    const int index = position.toInt() - m_firstSlot;
    if (index < 0 || index >= int(m_slots.size()))
        throw RunTimeError(RunTimeError::SubscriptOutOfRange);
    return m_slots[static_cast<std::size_t>(index)];
}

std::span<const VocabRecord> cVocabList::entries() const
{
    return std::span(m_slots).subspan(static_cast<std::size_t>(m_count == 0 ? 0 : 1 - m_firstSlot),
                                      static_cast<std::size_t>(m_count.toInt()));
}

void cVocabList::prepareLookup()
{
    if (m_index.isEmpty())
        m_index.rebuild(entries());
}

std::vector<int> cVocabList::positionsOf(const QString &word)
{
    prepareLookup();
    return m_index.findAll(word);
}

Integer cVocabList::find(const QString &word, Integer start)
{
    prepareLookup();
    return m_index.find(word, start.toInt());
}

bool cVocabList::isEntry(Integer position) const
{
    return position >= 1 && position <= m_count;
}
