// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordAdder.h"

#include "core/cVocabList.h"
#include "platform/MsgBox.h"

#include <utility>

namespace {

constexpr int ToldOneByOne = 3;

QString restText(int words)
{
    return words == 1 ? QStringLiteral("1 more word has not been added.")
                      : QStringLiteral("%1 more words have not been added.").arg(words);
}

} // namespace

WordAdder::WordAdder(cVocabList &list, std::function<void()> paused)
    : m_list(list), m_paused(std::move(paused))
{
}

void WordAdder::add(const QString &word, const QString &definition, const QString &sentence)
{
    const auto addToList = [&] { m_list.AddVocab(word, definition, sentence); };
    if (!m_list.isFull()) {
        addToList();
        ++m_added;
        return;
    }
    ++m_refused;
    if (++m_toTell <= ToldOneByOne)
        tell(addToList);
}

void WordAdder::tellOfTheRest()
{
    const int words = std::exchange(m_toTell, 0) - ToldOneByOne;
    if (words > 0)
        tell([words] { MsgBox(restText(words)); });
}

void WordAdder::tell(const std::function<void()> &message) const
{
    if (m_paused)
        m_paused();
    message();
    if (m_paused)
        m_paused();
}
