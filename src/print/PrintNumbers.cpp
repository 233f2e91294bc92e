// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintNumbers.h"

#include "runtime/Blanks.h"
#include "runtime/TextToNumber.h"

#include <algorithm>

namespace {

// The converted text. A number out of the range of its type becomes `smallest` or `largest`.
template <class Number, class Convert>
std::optional<Number> converted(const QString &text, Number smallest, Number largest,
                                Convert convert)
{
    try {
        return convert(text);
    } catch (const RunTimeError &error) {
        if (error.number() != RunTimeError::Overflow)
            return std::nullopt;
    }
    return withoutOuterBlanks(text).startsWith(QLatin1Char('-')) ? smallest : largest;
}

} // namespace

std::optional<Currency> marginFromText(const QString &text)
{
    return converted(text, Currency::smallest(), Currency::largest(), Currency::fromText);
}

std::optional<Integer> positionFromText(const QString &text)
{
    return converted(text, Integer(Integer::Min), Integer(Integer::Max), toInteger);
}

Integer positionInList(Integer position, Integer NumWords)
{
    return std::max(std::min(position, NumWords), Integer(1));
}
