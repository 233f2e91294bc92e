// SPDX-License-Identifier: GPL-3.0-or-later
// The file of the Top 10 table.
//
// Ten records, best first, without header or padding; bytes behind the tenth mean nothing. Each:
//
//   offset  size
//   0       8     EntryDate   IEEE-754 double: days since 30 December 1899
//   8       2     n           length of PlayerName in bytes, unsigned
//   10      n     PlayerName  Windows-1252
//   10 + n  2     Points      signed
//
// Numbers are little-endian.
#pragma once

#include "core/Module1.h"

#include <QByteArray>

namespace Top10File {

using Table = std::array<Top10Entry, 10>;

// Ten unused rows of that day.
[[nodiscard]] Table emptyTable(QDate day);

// The rows that the bytes hold over those of `defaults`: a row that begins beyond the end stays
// as it is there, a field that is cut off is zero or what is left of the text. A day count that
// is no date gives an invalid date.
[[nodiscard]] Table decode(QByteArrayView bytes, const Table &defaults);

// The table of the file at `path`, which is made empty where it is missing. Throws what
// BinaryFile::read throws.
[[nodiscard]] Table read(const QString &path, const Table &defaults);

} // namespace Top10File
