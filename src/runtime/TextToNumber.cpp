// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/TextToNumber.h"

#include "runtime/Blanks.h"
#include "runtime/Rounding.h"

#include <QLocale>

#include <cmath>

double toNumber(const QString &text)
{
    bool isNumber = false;
    const double number = QLocale::c().toDouble(withoutOuterBlanks(text), &isNumber);
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
