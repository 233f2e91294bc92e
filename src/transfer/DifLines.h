// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a Data Interchange Format file, which is read by line position alone:
//
//   5     0,V  vectors; data is read where V is 1 or more
//   8     0,T  values of a row that carry data: 2 = word and definition, 3 = word and sentence,
//              else the word alone
//   14 on      rows, each opened by BOT; a value is a type line and a value line; EOD ends
//
// All other lines are not looked at.
#pragma once

#include "runtime/Array.h"
#include "runtime/Integer.h"

#include <QByteArray>
#include <QString>

#include <optional>

// Windows-1252. A line ends at CR or CR LF; where the first 64 KiB of the file have no CR, it ends
// at LF. A line of more than 16 MiB and what follows it are left out.
[[nodiscard]] Array<QString> difLines(QByteArrayView bytes);

// How much of a file an import looks at, given its start. Nothing where that is not enough to
// tell, in a whole file: all of it.
[[nodiscard]] std::optional<qsizetype> difEnd(QByteArrayView start);

// V and T of their count lines; nothing behind the first comma counts as 0. Throw RunTimeError
// TypeMismatch or Overflow.
[[nodiscard]] double difVectors(const QString &line);
[[nodiscard]] Integer difTuples(const QString &line);
// How many of a row's values are read: 1 or 2.
[[nodiscard]] int difValuesRead(Integer tuples);

// What follows the first comma of a count line; nothing there counts as "0".
[[nodiscard]] QString difCount(const QString &line);

// A value line without its quotes. Throws RunTimeError InvalidProcedureCall where it is shorter
// than those.
[[nodiscard]] QString difValue(const QString &line);
