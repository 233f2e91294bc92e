// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Currency.h"

#include "runtime/Rounding.h"
#include "runtime/TextToNumber.h"

#include <QLocale>
#include <QtNumeric>

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
    return fromScaled(toUnits(text, Decimals));
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
    std::int64_t product = 0;
    if (qMulOverflow(a.m_scaled, std::int64_t(b.toInt()), &product))
        throw RunTimeError(RunTimeError::Overflow);
    return Currency::fromScaled(product);
}
