// SPDX-License-Identifier: GPL-3.0-or-later
// A list as plain text in Windows-1252: one line for each entry, with word, definition and sentence
// separated by TAB and CR LF at the end. Nothing is escaped.
#pragma once

#include <QByteArray>

class cVocabList;

// Makes the last entry the current one.
[[nodiscard]] QByteArray textOfList(cVocabList &list);
