// SPDX-License-Identifier: GPL-3.0-or-later
// What the quiet line of the main window says.
#pragma once

#include "core/VocabRecord.h"

#include <QString>

namespace QuietTexts {

struct Line
{
    QString text;
    QString marked; // follows the text, in the accent colour
};

// The file that Save will write. Empty path: Save asks for a name.
struct SaveFile
{
    QString path;
    bool isInCaption = true; // the window's caption names this file; with an empty path, no file
};

// "48 words · not saved · Save writes animals.lwx". Where the caption names another file, its end
// is marked and tells the folder as well.
[[nodiscard]] Line ofList(int words, bool isChanged, const SaveFile &file);
// "In the list: 12 glacier - a slow river of ice"
[[nodiscard]] QString ofSameWord(int position, const VocabRecord &entry);
// "2 of 3 found. Click its row to change it."
[[nodiscard]] QString ofHit(int hit, int hits);
// "12 words added." after an import, or "12 words added, 3 not added: the list is full."
[[nodiscard]] QString ofImport(int added, int refused);
// After an import that read nothing.
[[nodiscard]] QString ofNoImport();
// "Written to animals.txt."
[[nodiscard]] QString ofTextFile(const QString &path);
// "Printed to Office printer."
[[nodiscard]] QString ofPrint(const QString &target);

} // namespace QuietTexts
