// SPDX-License-Identifier: GPL-3.0-or-later
// Adds the words of one import or export to a list. If the list is full, it shows its message for
// the first three words that it refuses, and one message at the end for all others.
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
    // How many words were added, and how many the full list refused.
    [[nodiscard]] int added() const { return m_added; }
    [[nodiscard]] int refused() const { return m_refused; }
    // Shows how many words were refused without a message, if any.
    void tellOfTheRest();

private:
    void tell(const std::function<void()> &message) const;

    cVocabList &m_list;
    std::function<void()> m_paused;
    int m_added = 0;
    int m_refused = 0;
    int m_toTell = 0; // of the refused ones
};
