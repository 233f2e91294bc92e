// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a Data Interchange Format file. Only the number of a line says what it means:
//
//   5     0,V  vectors; data is read where V is 1 or more
//   8     0,T  values of a row that carry data: 2 = word and definition, 3 = word and sentence,
//              else the word alone
//   14 on      rows, each opened by BOT; a value is a type line and a value line; EOD ends
//
// All other lines are ignored.
#pragma once

#include "runtime/Array.h"
#include "runtime/Integer.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The text is Windows-1252. A line ends with CR or CR LF; if there is no CR in the first 64 KiB of
// the file, with LF. A line of more than 16 MiB is ignored, together with all that follows it.
[[nodiscard]] Array<QString> difLines(QByteArrayView bytes);

// How many bytes of a file an import needs, found from the start of the file. Nothing if that start
// is too short to tell; if it is the whole file, all of it is needed.
[[nodiscard]] std::optional<qsizetype> difEnd(QByteArrayView start);

// V and T from their lines; no text after the first comma counts as 0. Throw RunTimeError
// TypeMismatch or Overflow.
[[nodiscard]] double difVectors(const QString &line);
[[nodiscard]] Integer difTuples(const QString &line);
// How many of a row's values are read: 1 or 2.
[[nodiscard]] int difValuesRead(Integer tuples);

// The text after the first comma of a count line, or "0" if there is none.
[[nodiscard]] QString difCount(const QString &line);

// A value line without its quotes. Throws RunTimeError InvalidProcedureCall if it has fewer than
// two characters.
[[nodiscard]] QString difValue(const QString &line);
