// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/cVocabList.h"

#include "runtime/Notice.h"
#include "runtime/RandomNumbers.h"

#include <optional>

namespace {

// Positions of a word, 1-based, in random order.
using Permutation = std::vector<Integer>;

// Positions that were drawn before are drawn again until all are different.
Permutation drawPermutation(Integer size)
{
    Permutation permutation;
    permutation.reserve(static_cast<std::size_t>(size.toInt()));
    std::vector<bool> drawn(static_cast<std::size_t>(size.toInt()) + 1);
    drawn[0] = true; // no position
    while (permutation.size() + 1 < drawn.size()) {
        const auto position =
            static_cast<std::size_t>(size.toInt() * double(RandomNumbers::next()) + 1);
        if (position == 0)
            notice(QStringLiteral("Result=0"));
        if (drawn[position])
            continue;
        drawn[position] = true;
        permutation.emplace_back(position);
    }
    return permutation;
}

// Whether no three neighbours are three consecutive positions. Fewer than three positions are
// never accepted.
bool isAccepted(const Permutation &permutation)
{
    bool accepted = false;
    for (std::size_t k = 0; k + 2 < permutation.size(); ++k) {
        accepted = permutation[k].toInt() + 1 != permutation[k + 1].toInt() ||
                   permutation[k + 1].toInt() + 1 != permutation[k + 2].toInt();
        if (!accepted)
            break;
    }
    return accepted;
}

} // namespace

QString cVocabList::ScrambledWord()
{
    Scramble();
    return m_scrambled;
}

void cVocabList::Scramble()
{
    m_scrambled.clear();
    const QString word = slot(m_current).Word;
    const Integer size = word.size();
    if (size == 0)
        throw RunTimeError(RunTimeError::SubscriptOutOfRange);
    Permutation permutation;
    do {
        RandomNumbers::reseedFromClock();
        permutation = drawPermutation(size);
    } while (!isAccepted(permutation));
    for (const Integer position : permutation)
        m_scrambled += word[position.toInt() - 1];
}
