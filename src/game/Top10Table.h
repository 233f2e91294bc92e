// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the ten best scores: the place of a new score and the texts of the rows. Rows are 1
// to 10, best first; a row with 0 points is unused.
#pragma once

#include "core/Module1.h"

using Top10Table = decltype(Module1::gTop10);

// Ten unused rows with this date.
[[nodiscard]] Top10Table emptyTop10(QDate day);

// The row that the score takes, below its equals; 0 = it does not enter the table, as a score of 0
// never does.
[[nodiscard]] Integer rowOfScore(const Top10Table &table, Integer score);
// Puts the score, still without a name, into the row. The rows from there on move down and the
// last is dropped. If row 1 is unused, all ten rows are first replaced by unused ones of that day.
void enterScore(Top10Table &table, Integer row, Integer score, QDate day);
// Removes names and points; the dates stay.
void resetScores(Top10Table &table);

// The date in the system's short form.
[[nodiscard]] QString rowDate(const Top10Entry &entry);
// The date, the points and the name. Empty for an unused row.
[[nodiscard]] QString rowText(const Top10Entry &entry);
// The text of the row whose name is being typed.
[[nodiscard]] QString unnamedRowText(const Top10Entry &entry);
