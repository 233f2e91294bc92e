// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameLines.h"

namespace {

QString counted(int number, const QString &thing)
{
    return QString::number(number) + QLatin1Char(' ') + thing +
           (number == 1 ? QString() : QStringLiteral("s"));
}

Integer pointsOf(const Top10Table &table, Integer row)
{
    return table[static_cast<std::size_t>(row.toInt() - 1)].Points;
}

} // namespace

QString GameLines::worth(Integer points)
{
    return counted(points.toInt(), QStringLiteral("point"));
}

QString GameLines::levelHits(const GameState &game)
{
    if (game.Level == GameState::LastLevel)
        return QStringLiteral("Last level");
    return QStringLiteral("%1 of %2")
        .arg(game.LevelHits.toInt())
        .arg(counted(GameState::HitsPerLevel, QStringLiteral("hit")));
}

QString GameLines::best(const Top10Table &table)
{
    const Integer best = pointsOf(table, 1);
    return best > 0 ? QStringLiteral("Best %1").arg(best.toInt()) : QStringLiteral("No best yet");
}

QString GameLines::best(const Top10Table &table, Integer score)
{
    const Integer row = rowOfScore(table, score);
    if (row == 1)
        return QStringLiteral("A new best");
    const Integer above = row == 0 ? Integer(int(table.size())) : row - 1;
    if (pointsOf(table, above) == Integer::Max)
        return best(table);
    const Integer next = pointsOf(table, above) + 1;
    return QStringLiteral("%1 · %2 to place %3")
        .arg(best(table), counted(next.toInt() - score.toInt(), QStringLiteral("point")))
        .arg(rowOfScore(table, next).toInt());
}

QString GameLines::wordsLeft(Integer index, Integer size)
{
    const Integer left = size - index;
    return left == 0 ? QStringLiteral("Last word before a shuffle")
                     : counted(left.toInt(), QStringLiteral("word")) + QStringLiteral(" to come");
}
