// SPDX-License-Identifier: GPL-3.0-or-later
// A second, simple implementation of the word list, to compare the real one with: slots with
// numbers, and every look-up goes from slot to slot.
#pragma once

#include "core/ListTools.h"

#include <map>

class ReferenceList
{
public:
    int count = 0;
    int current = 0;
    int searchPos = 0;
    std::map<int, VocabRecord> slots; // slot number to its texts

    void AddVocab(const VocabRecord &record)
    {
        ++count;
        current = count;
        searchPos = 0;
        if (count == 1)
            slots.clear();
        resize(count);
        slots.at(count) = record;
    }

    void ClearList()
    {
        slots = {{0, {}}, {1, {}}};
        count = 0;
        current = 1;
        searchPos = 0;
    }

    void DeleteVocab()
    {
        if (current == 0)
            return;
        for (int i = current; i <= count - 1; ++i)
            slot(i) = slot(i + 1);
        if (count < 1)
            return;
        resize(count);
        --count;
        current = current < 2 ? 1 : current - 1;
    }

    void Edit(const VocabRecord &record)
    {
        slot(current) = record; // throws before anything changes
        searchPos = 0;
    }

    void OpenFile(const std::vector<VocabRecord> &records)
    {
        current = 1;
        searchPos = 0;
        count = int(records.size());
        slots.clear();
        resize(std::max(count, 1));
        for (int i = 1; i <= count; ++i)
            slots.at(i) = records[std::size_t(i - 1)];
    }

    bool Exist(const QString &word, int startpos)
    {
        for (int i = startpos; i <= count; ++i)
            if (slot(i).Word.toLower() == word.toLower()) {
                current = i;
                return true;
            }
        return false;
    }

    int SearchWord(const QString &word)
    {
        for (int i = searchPos + 1; i <= count; ++i)
            if (slot(i).Word.toLower() == word.toLower()) {
                searchPos = i;
                current = i;
                return i;
            }
        searchPos = 0;
        return 0;
    }

    VocabRecord &slot(int position)
    {
        const auto found = slots.find(position);
        if (found == slots.end())
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
        return found->second;
    }

    // The bytes of the file after a save.
    [[nodiscard]] QByteArray fileBytes() const
    {
        QByteArray bytes = number16(count);
        for (const auto &[number, record] : slots)
            bytes += recordBytes(toWindows1252(record.Word), toWindows1252(record.Definition),
                                 toWindows1252(record.Sentence));
        return bytes;
    }

private:
    // Keeps the slots 1 to last with their texts and adds the missing ones.
    void resize(int last)
    {
        slots.erase(slots.begin(), slots.lower_bound(1));
        slots.erase(slots.upper_bound(last), slots.end());
        for (int i = 1; i <= last; ++i)
            slots[i];
    }
};
