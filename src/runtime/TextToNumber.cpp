// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/TextToNumber.h"

#include "runtime/Blanks.h"

#include <QLocale>

#include <cmath>

namespace {

double roundedHalfToEven(double number)
{
    const double floor = std::floor(number);
    const double rest = number - floor;
    const bool floorIsEven = std::fmod(floor, 2) == 0;
    return rest < 0.5 || (rest == 0.5 && floorIsEven) ? floor : floor + 1;
}

} // namespace

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
    const double whole = roundedHalfToEven(toNumber(text));
    if (whole < Integer::Min || whole > Integer::Max)
        throw RunTimeError(RunTimeError::Overflow);
    return static_cast<int>(whole);
}
