// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/TextToNumber.h"

#include "runtime/Blanks.h"
#include "runtime/Rounding.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace {

// The library would also take groups of digits, other blanks and the digits of other scripts.
bool isOfANumber(QChar c)
{
    return (c >= QLatin1Char('0') && c <= QLatin1Char('9')) || QLatin1String("+-.eE").contains(c);
}

} // namespace

double toNumber(const QString &text)
{
    const QString digits = withoutOuterBlanks(text);
    if (!std::all_of(digits.begin(), digits.end(), isOfANumber))
        throw RunTimeError(RunTimeError::TypeMismatch);
    bool isNumber = false;
    const double number = QLocale::c().toDouble(digits, &isNumber);
    if (!isNumber && std::isinf(number))
        throw RunTimeError(RunTimeError::Overflow);
    if (!isNumber || !std::isfinite(number))
        throw RunTimeError(RunTimeError::TypeMismatch);
    return number;
}

Integer toInteger(const QString &text)
{
    return roundedHalfToEven(toNumber(text));
}
