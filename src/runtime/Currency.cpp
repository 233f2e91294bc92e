// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Currency.h"

#include "runtime/Blanks.h"
#include "runtime/Rounding.h"
#include "runtime/TextToNumber.h"

#include <QLocale>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace {

constexpr int Decimals = 4;

// Divides, rounding to the nearest, halves to the even quotient. The divisor is positive.
std::int64_t dividedHalfToEven(std::int64_t number, std::int64_t divisor)
{
    const std::int64_t quotient = number / divisor;
    const std::int64_t rest = std::abs(number % divisor);
    const std::int64_t towards = number < 0 ? -1 : 1;
    const std::int64_t above = rest - (divisor - rest);
    return above > 0 || (above == 0 && quotient % 2 != 0) ? quotient + towards : quotient;
}

// The digits before the given place, rounded by those after it, halves to even.
QString roundedDigits(const QString &digits, qsizetype place)
{
    QString kept = digits.left(std::max<qsizetype>(place, 0));
    if (place < 0 || place >= digits.size())
        return kept;
    const QString rest = digits.mid(place);
    const bool restIsHalf =
        rest.front() == QLatin1Char('5') && rest.count(QLatin1Char('0')) == rest.size() - 1;
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

Currency::Currency(double value)
{
    if (!std::isfinite(value))
        throw RunTimeError(RunTimeError::TypeMismatch);
    const double whole = wholeHalfToEven(value * Scale);
    constexpr double Beyond = 9223372036854775808.0;
    if (whole < -Beyond || whole >= Beyond)
        throw RunTimeError(RunTimeError::Overflow);
    m_scaled = static_cast<std::int64_t>(whole);
}

Currency Currency::fromText(const QString &text)
{
    // Only the digits are exact: a double has not as many as the range.
    if (toNumber(text) == 0)
        return {};
    QString digits = withoutOuterBlanks(text).toLower();
    qsizetype exponent = 0;
    if (const qsizetype e = digits.indexOf(QLatin1Char('e')); e >= 0) {
        exponent = digits.mid(e + 1).toInt();
        digits.truncate(e);
    }
    const bool negative = digits.startsWith(QLatin1Char('-'));
    if (negative || digits.startsWith(QLatin1Char('+')))
        digits.remove(0, 1);
    const qsizetype point = digits.indexOf(QLatin1Char('.'));
    const qsizetype wholeDigits = point < 0 ? digits.size() : point;
    digits.remove(QLatin1Char('.'));
    const qsizetype place = wholeDigits + exponent + Decimals;
    QString scaled = roundedDigits(digits, place);
    if (place > digits.size()) {
        constexpr qsizetype MoreThanFit = 20;
        scaled += QString(std::min(place - digits.size(), MoreThanFit), QLatin1Char('0'));
    }
    if (scaled.isEmpty())
        return {};
    bool fits = false;
    const std::int64_t value =
        ((negative ? QStringLiteral("-") : QString()) + scaled).toLongLong(&fits);
    if (!fits)
        throw RunTimeError(RunTimeError::Overflow);
    return fromScaled(value);
}

Integer Currency::toInteger() const
{
    return dividedHalfToEven(m_scaled, Scale);
}

QString Currency::toText() const
{
    const std::int64_t hundredths = dividedHalfToEven(m_scaled, Scale / 100);
    const std::int64_t rest = std::abs(hundredths % 100);
    const QString whole = QLocale(QLocale::English).toString(std::abs(hundredths / 100));
    return QStringLiteral("%1%2.%3")
        .arg(hundredths < 0 ? QStringLiteral("-") : QString(), whole)
        .arg(rest, 2, 10, QLatin1Char('0'));
}

Currency operator*(Currency a, Integer b)
{
    const std::int64_t factor = b.toInt();
    if (factor != 0 && (a.m_scaled > std::numeric_limits<std::int64_t>::max() / std::abs(factor) ||
                        a.m_scaled < std::numeric_limits<std::int64_t>::min() / std::abs(factor)))
        throw RunTimeError(RunTimeError::Overflow);
    return Currency::fromScaled(a.m_scaled * factor);
}
