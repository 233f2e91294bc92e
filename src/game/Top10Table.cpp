// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Table.h"

#include <QLocale>

#include <algorithm>

namespace {

QString dateAndPoints(const Top10Entry &entry)
{
    return rowDate(entry) + QStringLiteral("   ") + entry.Points.toText();
}

} // namespace

Top10Table emptyTop10(QDate day)
{
    Top10Table table;
    table.fill({day, {}, 0});
    return table;
}

Integer rowOfScore(const Top10Table &table, Integer score)
{
    if (score == 0)
        return 0;
    if (table.front().Points == 0)
        return 1;
    Integer row = 1;
    for (const Top10Entry &entry : table) {
        if (entry.Points < score)
            return row;
        ++row;
    }
    return 0;
}

void enterScore(Top10Table &table, Integer row, Integer score, QDate day)
{
    if (table.front().Points == 0)
        table = emptyTop10(day);
    const int above = row.toInt() - 1;
    std::move_backward(table.begin() + above, table.end() - 1, table.end());
    table[static_cast<std::size_t>(above)] = {day, {}, score};
}

void resetScores(Top10Table &table)
{
    for (Top10Entry &entry : table)
        entry = {entry.EntryDate, {}, 0};
}

QString rowDate(const Top10Entry &entry)
{
    return QLocale::system().toString(entry.EntryDate, QLocale::ShortFormat);
}

QString rowText(const Top10Entry &entry)
{
    if (entry.Points == 0)
        return {};
    return dateAndPoints(entry) + QStringLiteral(" :   ") + entry.PlayerName;
}

QString unnamedRowText(const Top10Entry &entry)
{
    return dateAndPoints(entry) + QStringLiteral(" : ");
}
