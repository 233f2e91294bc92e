// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the ten best scores: where a new score belongs, and how a row reads. Rows are 1 to
// 10, best first; a row without points is unused.
#pragma once

#include "core/Module1.h"

using Top10Table = decltype(Module1::gTop10);

// Ten unused rows of that day.
[[nodiscard]] Top10Table emptyTop10(QDate day);

// The row that the score takes, below its equals; 0 = it does not enter the table, as a score of 0
// never does.
[[nodiscard]] Integer rowOfScore(const Top10Table &table, Integer score);
// Puts the score, still without a name, into the row. The rows from there on move down and the
// last is dropped; where row 1 is unused, all ten rows are first made unused rows of that day.
void enterScore(Top10Table &table, Integer row, Integer score, QDate day);
// No names and no points; the dates stay.
void resetScores(Top10Table &table);

// The date in the system's short form, the points and the name. Empty for an unused row.
[[nodiscard]] QString rowText(const Top10Entry &entry);
// As above while the name is being typed.
[[nodiscard]] QString unnamedRowText(const Top10Entry &entry);
