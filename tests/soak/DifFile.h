// SPDX-License-Identifier: GPL-3.0-or-later
// A DIF file, good or damaged, and the result of importing it.
#pragma once

#include "soak/Soak.h"

struct DifFile
{
    QByteArray bytes;
    std::vector<Entry> words; // in the order of the import
    int error = 0;            // number of the error at the end; 0 if there is none
    bool isRefused = false;   // the error comes before the first word
};

// `before`: the entry that was imported last. A text that a row lacks is taken from it.
[[nodiscard]] DifFile someDifFile(Soak &soak, Entry before);
