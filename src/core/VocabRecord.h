// SPDX-License-Identifier: GPL-3.0-or-later
// One entry of a word list.
#pragma once

#include <QString>

struct VocabRecord
{
    QString Word; // may contain blanks
    QString Definition;
    QString Sentence;
};
