// SPDX-License-Identifier: GPL-3.0-or-later
// A list as plain text, Windows-1252: one entry a line, its word, definition and sentence apart
// by TAB, each line ended by CR LF. Nothing is escaped.
#pragma once

#include <QByteArray>

class cVocabList;

// The current position ends on the last entry.
[[nodiscard]] QByteArray textOfList(cVocabList &list);
