// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/TextToNumber.h"

#include "runtime/Blanks.h"

#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>

namespace {

struct Decimal
{
    QString text; // without outer blanks
    bool isNegative = false;
    QString digits;     // before and behind the point
    qint64 pointAt = 0; // as many digits are before it; may lie outside them
};

// An exponent that does not fit 64 bits becomes one of the same sign. It is so large that no digits
// of the number make up for it.
qint64 exponentOf(const QString &text)
{
    constexpr qint64 beyondAll = 1'000'000'000'000;
    if (text.isEmpty())
        return 0;
    bool fits = false;
    const qint64 exponent = text.toLongLong(&fits);
    if (!fits)
        return text.startsWith(QLatin1Char('-')) ? -beyondAll : beyondAll;
    return std::clamp(exponent, -beyondAll, beyondAll);
}

// The library would also take groups of digits, other blanks and the digits of other scripts.
Decimal decimalOf(const QString &text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("([+-]?)([0-9]*+)\\.?+([0-9]*+)(?:[eE]([+-]?[0-9]++))?")));
    const QString inner = withoutOuterBlanks(text);
    const QRegularExpressionMatch match = pattern.match(inner);
    const QString whole = match.captured(2);
    const QString digits = whole + match.captured(3);
    if (!match.hasMatch() || digits.isEmpty())
        throw RunTimeError(RunTimeError::TypeMismatch);
    return {inner, match.captured(1) == QLatin1Char('-'), digits,
            whole.size() + exponentOf(match.captured(4))};
}

bool isZero(const QString &digits)
{
    return digits.count(QLatin1Char('0')) == digits.size();
}

// The digits before the given place, rounded by those after it, halves to even.
QString roundedDigits(const QString &digits, qint64 place)
{
    QString kept = digits.left(std::max<qint64>(place, 0));
    if (place < 0 || place >= digits.size())
        return kept;
    const QString rest = digits.mid(place);
    const bool restIsHalf = rest.front() == QLatin1Char('5') && isZero(rest.mid(1));
    const bool lastIsOdd = !kept.isEmpty() && kept.back().digitValue() % 2 != 0;
    if (restIsHalf ? !lastIsOdd : rest.front() < QLatin1Char('5'))
        return kept;
    qsizetype i = kept.size();
    while (i > 0 && kept[i - 1] == QLatin1Char('9'))
        kept[--i] = QLatin1Char('0');
    if (i == 0)
        kept.prepend(QLatin1Char('1'));
    else
        kept[i - 1] = QChar(kept[i - 1].unicode() + 1);
    return kept;
}

} // namespace

double toNumber(const QString &text)
{
    bool isInRange = false;
    const double number = QLocale::c().toDouble(decimalOf(text).text, &isInRange);
    if (std::isinf(number))
        throw RunTimeError(RunTimeError::Overflow);
    return isInRange ? number : 0;
}

Integer toInteger(const QString &text)
{
    return toUnits(text, 0);
}

std::int64_t toUnits(const QString &text, int decimals)
{
    const Decimal decimal = decimalOf(text);
    if (isZero(decimal.digits))
        return 0;
    const qint64 place = decimal.pointAt + decimals;
    QString units = roundedDigits(decimal.digits, place);
    if (units.isEmpty())
        return 0;
    if (place > decimal.digits.size()) {
        constexpr qint64 moreThanFit = 20;
        units += QString(std::min(place - decimal.digits.size(), moreThanFit), QLatin1Char('0'));
    }
    bool fits = false;
    const std::int64_t value =
        ((decimal.isNegative ? QStringLiteral("-") : QString()) + units).toLongLong(&fits);
    if (!fits)
        throw RunTimeError(RunTimeError::Overflow);
    return value;
}
