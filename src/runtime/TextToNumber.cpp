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
    QString digits;     // those before and after the point
    qint64 pointAt = 0; // number of digits before the point; may be negative or too large
};

// Qt's conversions also accept group separators, other white space and digits of other scripts.
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
    // No text has so many digits that they could compensate for such an exponent.
    constexpr double beyondAll = 1e12;
    const double exponent = std::clamp(match.captured(4).toDouble(), -beyondAll, beyondAll);
    return {inner, match.captured(1) == QLatin1Char('-'), digits,
            whole.size() + static_cast<qint64>(exponent)};
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
    constexpr qint64 moreDigitsThanFit = 20;
    constexpr std::int64_t tooLarge = 1'000'000'000'000'000'000;
    const Decimal decimal = decimalOf(text);
    const qint64 place = decimal.pointAt + decimals;
    if (place < 0)
        return 0;
    const qint64 wholeDigits = std::min(place, decimal.digits.size() + moreDigitsThanFit);
    const QString whole = decimal.digits.left(wholeDigits).leftJustified(wholeDigits, u'0');
    bool fits = true;
    std::int64_t units = whole.isEmpty() ? 0 : whole.toLongLong(&fits);
    if (!fits || units >= tooLarge)
        throw RunTimeError(RunTimeError::Overflow);
    // Two texts of the same number of digits compare like their numbers.
    const QString rest = decimal.digits.mid(wholeDigits);
    const QString half = QStringLiteral("5").leftJustified(rest.size(), u'0');
    if (rest > half || (rest == half && units % 2 != 0))
        ++units;
    return decimal.isNegative ? -units : units;
}
