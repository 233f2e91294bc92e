// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Note.h"

namespace {

QString pointsText(Integer score)
{
    return score.toText() + (score == 1 ? QStringLiteral(" point") : QStringLiteral(" points"));
}

QString placeText(Integer row)
{
    switch (row.toInt()) {
    case 1:
        return QStringLiteral("First place");
    case 2:
        return QStringLiteral("Second place");
    case 3:
        return QStringLiteral("Third place");
    default:
        return QStringLiteral("Place ") + row.toText();
    }
}

} // namespace

QString noteAtTheEnd(const Top10Table &table, Integer row, Integer score)
{
    if (score == 0)
        return {};
    if (row != 0)
        return QStringLiteral("%1 with %2!").arg(placeText(row), pointsText(score));
    return QStringLiteral("You made %1. Place %2 takes %3.")
        .arg(pointsText(score))
        .arg(table.size())
        .arg(table.back().Points.toInt() + 1);
}

QString noteInTheView(Integer score)
{
    return score == 0 ? QString()
                      : QStringLiteral("Close ends this game's points; Esc goes back to the game");
}
