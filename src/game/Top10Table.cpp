// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Table.h"

#include <QLocale>

#include <algorithm>

namespace {

QString dateAndPoints(const Top10Entry &entry)
{
    return QLocale::system().toString(entry.EntryDate, QLocale::ShortFormat) +
           QStringLiteral("   ") + entry.Points.toText();
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
    if (table.front().Points == 0)
        return 1;
    const Top10Table::const_iterator row =
        std::find_if(table.begin(), table.end(),
                     [score](const Top10Entry &entry) { return entry.Points < score; });
    return row == table.end() ? Integer(0) : Integer(row - table.begin() + 1);
}

void enterScore(Top10Table &table, Integer row, Integer score, QDate day)
{
    if (table.front().Points == 0)
        table = emptyTop10(day);
    const Top10Table::iterator place = table.begin() + (row.toInt() - 1);
    std::move_backward(place, table.end() - 1, table.end());
    *place = {day, {}, score};
}

void resetScores(Top10Table &table)
{
    for (Top10Entry &entry : table)
        entry = {entry.EntryDate, {}, 0};
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
