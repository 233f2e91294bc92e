// SPDX-License-Identifier: GPL-3.0-or-later
// The messages about words that a full list refuses in one import or export.
#pragma once

#include "core/cVocabList.h"
#include "soak/Soak.h"

using namespace Qt::StringLiterals;

class Refusals final
{
public:
    // Each of the first three words has a message of its own.
    void expectOne(Soak &soak)
    {
        if (++m_words <= WithOwnMessage)
            soak.expectMsgBox(cVocabList::maxWordsText());
    }

    void expectRest(Soak &soak) const
    {
        const int rest = m_words - WithOwnMessage;
        if (rest > 0)
            soak.expectMsgBox(rest == 1 ? u"1 more word has not been added."_s
                                        : u"%1 more words have not been added."_s.arg(rest));
    }

private:
    static constexpr int WithOwnMessage = 3;

    int m_words = 0;
};
