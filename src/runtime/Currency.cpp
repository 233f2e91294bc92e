// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Currency.h"

#include "runtime/Rounding.h"
#include "runtime/TextToNumber.h"

#include <QLocale>

#include <cmath>

Currency::Currency(double value)
{
    const double scaled = std::nearbyint(value * Scale);
    if (!(std::abs(scaled) <= LargestScaled))
        throw RunTimeError(RunTimeError::Overflow);
    m_scaled = static_cast<std::int64_t>(scaled);
}

// A double would miss halves: the one nearest to 0.00015 is smaller, but 0.0002 is right.
Currency Currency::fromText(const QString &text)
{
    constexpr int decimals = 4;
    return fromScaled(toUnits(text, decimals));
}

Integer Currency::toInteger() const
{
    return roundedHalfToEven(toDouble());
}

QString Currency::toText() const
{
    const double hundredths = std::nearbyint(static_cast<double>(m_scaled) / 100);
    // Adding 0 takes the sign off -0.
    return QLocale(QLocale::English).toString(hundredths / 100 + 0.0, 'f', 2);
}
