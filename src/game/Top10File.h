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

#include "game/Top10Table.h"

#include <QByteArray>

namespace Top10File {

// The rows that the bytes hold over those of `defaults`: a row that begins beyond the end stays
// as it is there, a field that is cut off is zero or what is left of the text. A day count that
// is no date gives an invalid date.
[[nodiscard]] Top10Table decode(QByteArrayView bytes, const Top10Table &defaults);

// The table of the file at `path`, which is made empty where it is missing. Throws what
// BinaryFile::read throws.
[[nodiscard]] Top10Table read(const QString &path, const Top10Table &defaults);

// A date that is none becomes a day count that is no number. Throws RunTimeError Overflow for a
// name of more than 65535 characters.
[[nodiscard]] QByteArray encode(const Top10Table &table);

// Writes over the file from its first byte. Throws what encode and BinaryFile::overwrite throw.
void write(const QString &path, const Top10Table &table);

} // namespace Top10File
