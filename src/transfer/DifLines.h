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

// Windows-1252. A line ends at CR or CR LF; in a file without any CR it ends at LF.
[[nodiscard]] Array<QString> difLines(QByteArrayView bytes);

// What follows the first comma of a count line; nothing there counts as "0".
[[nodiscard]] QString difCount(const QString &line);

// A value line without its quotes. Throws RunTimeError InvalidProcedureCall where it is shorter
// than those.
[[nodiscard]] QString difValue(const QString &line);
