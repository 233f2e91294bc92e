// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10File.h"

#include "runtime/BinaryFile.h"
#include "runtime/ByteReader.h"

#include <QtEndian>

#include <limits>

namespace {

const QDate DayZero(1899, 12, 30);

QDate dateOfDayCount(double days)
{
    constexpr double earliest = -657434; // 1 January 100
    constexpr double latest = 2958465;   // 31 December 9999
    // The fraction is the time of day, also for negative numbers.
    if (!(days > earliest - 1 && days < latest + 1))
        return {};
    return DayZero.addDays(static_cast<qint64>(days));
}

double dayCountOf(QDate date)
{
    return date.isValid() ? static_cast<double>(DayZero.daysTo(date))
                          : std::numeric_limits<double>::quiet_NaN();
}

// Whether the start of a file holds all ten records.
bool holdsTable(QByteArrayView start)
{
    ByteReader reader(start);
    for (std::size_t row = 0; row < Top10Table().size(); ++row) {
        static_cast<void>(reader.number<double>());
        static_cast<void>(reader.textBytes());
        static_cast<void>(reader.number<qint16>());
    }
    return !reader.ranOut();
}

template <class Number> void putNumber(QByteArray &bytes, Number number)
{
    const qsizetype end = bytes.size();
    bytes.resize(end + qsizetype(sizeof number));
    qToLittleEndian(number, bytes.data() + end);
}

} // namespace

Top10Table Top10File::decode(QByteArrayView bytes, const Top10Table &defaults)
{
    Top10Table table = defaults;
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

Top10Table Top10File::read(const QString &path, const Top10Table &defaults)
{
    return decode(BinaryFile::read(path, holdsTable), defaults);
}

QByteArray Top10File::encode(const Top10Table &table)
{
    QByteArray bytes;
    for (const Top10Entry &entry : table) {
        const QByteArray name = toWindows1252(entry.PlayerName);
        if (name.size() > std::numeric_limits<quint16>::max())
            throw RunTimeError(RunTimeError::Overflow,
                               QStringLiteral("A player's name is longer than 65535 characters"));
        putNumber(bytes, dayCountOf(entry.EntryDate));
        putNumber(bytes, static_cast<quint16>(name.size()));
        bytes += name;
        putNumber(bytes, static_cast<qint16>(entry.Points.toInt()));
    }
    return bytes;
}

void Top10File::write(const QString &path, const Top10Table &table)
{
    BinaryFile::overwrite(path, encode(table));
}
