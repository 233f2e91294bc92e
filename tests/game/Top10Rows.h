// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: Top 10 tables, and their expected texts and bytes.
#pragma once

#include "game/Top10Table.h"

#include <QByteArray>
#include <QLocale>
#include <QStringList>

#include <bit>

using namespace Qt::StringLiterals;

// The date as a row shows it.
[[nodiscard]] inline QString dateText(QDate day)
{
    return QLocale::system().toString(day, QLocale::ShortFormat);
}

// A row as the file holds it.
[[nodiscard]] inline QByteArray fileRow(double days, const QByteArray &name, int points)
{
    QByteArray bytes;
    const auto append = [&](quint64 number, int size) {
        for (int i = 0; i < size; ++i)
            bytes.append(char((number >> (8 * i)) & 0xFF));
    };
    append(std::bit_cast<quint64>(days), 8);
    append(quint64(name.size()), 2);
    bytes.append(name);
    append(quint64(points & 0xFFFF), 2);
    return bytes;
}

// "date|name|points" of an entry.
[[nodiscard]] inline QString fieldsOf(const Top10Entry &entry)
{
    return QStringList{entry.EntryDate.toString(Qt::ISODate), entry.PlayerName,
                       entry.Points.toText()}
        .join(u'|');
}

[[nodiscard]] inline QStringList fieldsOf(const Top10Table &table)
{
    QStringList texts;
    for (const Top10Entry &entry : table)
        texts << fieldsOf(entry);
    return texts;
}

// "Player 1" with the first number of points on 1 January 2020, "Player 2" with the second on the
// 2nd, and so on. The other rows are unused rows of 1 February 2020.
[[nodiscard]] inline Top10Table tableOf(const QList<int> &points)
{
    Top10Table table;
    for (int i = 0; i < 10; ++i)
        table[std::size_t(i)] = i < points.size() ? Top10Entry{QDate(2020, 1, 1).addDays(i),
                                                               u"Player %1"_s.arg(i + 1), points[i]}
                                                  : Top10Entry{QDate(2020, 2, 1), {}, 0};
    return table;
}

// 100, 90, … 10 points.
[[nodiscard]] inline Top10Table fullTable()
{
    return tableOf({100, 90, 80, 70, 60, 50, 40, 30, 20, 10});
}
