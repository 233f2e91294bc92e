// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the Top 10 table.
//
// Ten records, best first, without header or padding; bytes after the tenth are ignored. Each:
//
//   offset  size
//   0       8     EntryDate   IEEE-754 double: days since 30 December 1899
//   8       2     n           length of PlayerName in bytes, unsigned
//   10      n     PlayerName  Windows-1252
//   10 + n  2     Points      signed
//
// Numbers are little-endian.
#pragma once

#include "game/Top10Table.h"

#include <QByteArray>

namespace Top10File {

// The rows in the bytes; rows that are missing at the end are those of `defaults`. In a row that is
// cut off, missing numbers are 0 and the name is what there is of it. A day count outside the years
// 100 to 9999 becomes an invalid date.
[[nodiscard]] Top10Table decode(QByteArrayView bytes, const Top10Table &defaults);

// The table in the file at `path`. A missing file is created empty. Throws what BinaryFile::read
// throws.
[[nodiscard]] Top10Table read(const QString &path, const Top10Table &defaults);

// An invalid date is written as NaN. Throws RunTimeError Overflow for a name of more than 65535
// characters.
[[nodiscard]] QByteArray encode(const Top10Table &table);

// Writes over the file from its first byte. Throws what encode and BinaryFile::overwrite throw.
void write(const QString &path, const Top10Table &table);

} // namespace Top10File
