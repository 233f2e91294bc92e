// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10File.h"

#include "runtime/BinaryFile.h"
#include "runtime/ByteReader.h"

namespace {

constexpr qint64 longestFile = qint64(10) * (8 + 2 + 65535 + 2);

QDate dateOfDayCount(double days)
{
    constexpr double earliest = -657434; // 1 January 100
    constexpr double latest = 2958465;   // 31 December 9999
    // The day is the whole part, on both sides of zero.
    if (!(days > earliest - 1 && days < latest + 1))
        return {};
    return QDate(1899, 12, 30).addDays(static_cast<qint64>(days));
}

} // namespace

Top10File::Table Top10File::emptyTable(QDate day)
{
    Table table;
    table.fill({day, {}, 0});
    return table;
}

Top10File::Table Top10File::decode(QByteArrayView bytes, const Table &defaults)
{
    Table table = defaults;
    ByteReader reader(bytes);
    for (Top10Entry &entry : table) {
        if (reader.atEnd())
            break;
        entry.EntryDate = dateOfDayCount(reader.number<double>());
        entry.PlayerName = reader.text();
        entry.Points = reader.number<qint16>();
    }
    return table;
}

Top10File::Table Top10File::read(const QString &path, const Table &defaults)
{
    return decode(BinaryFile::read(path, longestFile), defaults);
}
