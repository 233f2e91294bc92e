// SPDX-License-Identifier: GPL-3.0-or-later
// Adds the words of one import or export to a list. A full list tells of the first three words that
// it refuses; of all others one message tells at the end.
#pragma once

#include <QString>

#include <functional>

class cVocabList;

class WordAdder
{
public:
    // The list must outlive the object. `paused` is called before and after each message.
    explicit WordAdder(cVocabList &list, std::function<void()> paused = {});

    void add(const QString &word, const QString &definition, const QString &sentence);
    // Tells how many more words have been refused, if there are more.
    void tellOfTheRest();

private:
    void tell(const std::function<void()> &message) const;

    cVocabList &m_list;
    std::function<void()> m_paused;
    int m_refused = 0;
};
