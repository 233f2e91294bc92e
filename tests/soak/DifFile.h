// SPDX-License-Identifier: GPL-3.0-or-later
// A DIF file, good or damaged, and what an import makes of it.
#pragma once

#include "soak/Soak.h"

struct DifFile
{
    QByteArray bytes;
    std::vector<Entry> words; // as they come in
    int error = 0;            // that reading it ends with
    bool isRefused = false;   // before its first word
};

// `before`: the texts of the word that was imported last, which stay where a row has none.
[[nodiscard]] DifFile someDifFile(Soak &soak, Entry before);
