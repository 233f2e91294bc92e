// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TextDifference.h"

#include <algorithm>
#include <span>
#include <vector>

namespace {

using Words = std::span<const QStringView>;

// Words and the blanks between them in turn; together they are the text.
std::vector<QStringView> wordsOf(QStringView text)
{
    std::vector<QStringView> words;
    for (const auto *begin = text.begin(); begin != text.end();) {
        const bool isBlank = begin->isSpace();
        const auto *const end = std::find_if(
            begin, text.end(), [isBlank](QChar next) { return next.isSpace() != isBlank; });
        words.emplace_back(begin, end);
        begin = end;
    }
    return words;
}

std::size_t sameAtStart(Words one, Words other)
{
    return std::size_t(std::mismatch(one.begin(), one.end(), other.begin(), other.end()).first -
                       one.begin());
}

std::size_t sameAtEnd(Words one, Words other)
{
    return std::size_t(std::mismatch(one.rbegin(), one.rend(), other.rbegin(), other.rend()).first -
                       one.rbegin());
}

// Ranges with nothing but blanks between them become one.
void mark(QList<TextRange> &ranges, QStringView text, QStringView word)
{
    const int start = int(word.begin() - text.begin());
    const int end = start + int(word.size());
    const int lastEnd = ranges.isEmpty() ? 0 : ranges.last().start + ranges.last().length;
    if (!ranges.isEmpty() && text.sliced(lastEnd, start - lastEnd).trimmed().isEmpty())
        ranges.last().length = end - ranges.last().start;
    else
        ranges += {start, end - start};
}

// The blanks around a word that differs are not marked.
void trim(QList<TextRange> &ranges, QStringView text)
{
    for (TextRange &range : ranges)
        if (const QStringView words = text.sliced(range.start, range.length).trimmed();
            !words.isEmpty())
            range = {int(words.begin() - text.begin()), int(words.size())};
}

// How many characters of both are the same from each pair of words on, for the best choice of
// pairs.
class Common
{
public:
    Common(Words one, Words other)
        : m_width(other.size() + 1), m_lengths((one.size() + 1) * m_width)
    {
        for (std::size_t i = one.size(); i-- > 0;)
            for (std::size_t j = other.size(); j-- > 0;)
                at(i, j) = one[i] == other[j] ? from(i + 1, j + 1) + int(one[i].size())
                                              : std::max(from(i + 1, j), from(i, j + 1));
    }

    [[nodiscard]] int from(std::size_t i, std::size_t j) const
    {
        return m_lengths[i * m_width + j];
    }

private:
    [[nodiscard]] int &at(std::size_t i, std::size_t j) { return m_lengths[i * m_width + j]; }

    std::size_t m_width;
    std::vector<int> m_lengths;
};

} // namespace

TextDifference differenceOf(QStringView one, QStringView other)
{
    constexpr std::size_t most = 500; // words that are compared with each other
    const std::vector<QStringView> allOfOne = wordsOf(one);
    const std::vector<QStringView> allOfOther = wordsOf(other);
    Words words = allOfOne;
    Words others = allOfOther;
    const std::size_t start = sameAtStart(words, others);
    words = words.subspan(start);
    others = others.subspan(start);
    const std::size_t end = sameAtEnd(words, others);
    words = words.first(words.size() - end);
    others = others.first(others.size() - end);

    TextDifference difference;
    std::size_t i = 0;
    std::size_t j = 0;
    if (words.size() <= most && others.size() <= most) {
        const Common common(words, others);
        while (i < words.size() && j < others.size()) {
            if (words[i] == others[j]) {
                ++i;
                ++j;
            } else if (common.from(i + 1, j) >= common.from(i, j + 1)) {
                mark(difference.ofOne, one, words[i++]);
            } else {
                mark(difference.ofOther, other, others[j++]);
            }
        }
    }
    while (i < words.size())
        mark(difference.ofOne, one, words[i++]);
    while (j < others.size())
        mark(difference.ofOther, other, others[j++]);
    trim(difference.ofOne, one);
    trim(difference.ofOther, other);
    return difference;
}
