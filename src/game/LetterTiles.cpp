// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/LetterTiles.h"

#include "runtime/Rounding.h"

Integer tileOffset(Integer letters)
{
    const Integer free = LetterTiles - letters;
    return free > 0 ? roundedHalfToEven(free.toInt() / 2.0) : Integer(0);
}

Integer revealEvery(Integer letters)
{
    if (letters == 0)
        return Integer::Max;
    return roundedHalfToEven(30.0 / letters.toInt() + 2);
}
