// SPDX-License-Identifier: GPL-3.0-or-later
// Adds the words of one import or export to a list. A full list tells of each word that it refuses:
// here it does so for the first three, and of all others one message tells at the end.
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
    // Tells how many words have been refused without a word about them; nothing where there are
    // none.
    void tellOfTheRest();

private:
    void tell(const std::function<void()> &message) const;

    cVocabList &m_list;
    std::function<void()> m_paused;
    int m_refused = 0;
};
