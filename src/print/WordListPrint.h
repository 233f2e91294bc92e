// SPDX-License-Identifier: GPL-3.0-or-later
// The printed word list: which entries are printed in which order, and what each looks like.
#pragma once

#include "core/VocabRecord.h"
#include "print/WrapText.h"
#include "runtime/Integer.h"

#include <functional>

class cVocabList;

struct WordListPrint
{
    // NumberApart: the number, then the word behind it. NumberWithin: both in one text.
    enum class Header { WordOnly, NumberApart, NumberWithin };
    // Where a pass through the range begins: each at the top margin of its page, or the first one
    // only, and the others in the corner of theirs.
    enum class Passes { AtMargins, AtCornerAfterTheFirst };

    PageFrame frame;
    Integer first; // list positions; below `first`, `last` makes the range run downwards
    Integer last;
    Header header = Header::NumberWithin;
    Passes passes = Passes::AtMargins;

    // As the print settings of Module1 say.
    [[nodiscard]] static WordListPrint chosen();
    // The whole list with margins of an inch.
    [[nodiscard]] static WordListPrint wholeList();

    [[nodiscard]] int entries() const; // of one pass
    [[nodiscard]] Integer position(int index) const;

    void startPass(Printer &printer, Integer pass) const;
    void printEntry(Printer &printer, Integer position, const VocabRecord &entry) const;

    // Told how many entries of how many are printed; false cancels.
    using GoOn = std::function<bool(int done, int total)>;
    // Prints the range Copies times and ends the document; each entry becomes the list's current
    // one. Cancelled or failed, the document is dropped. Returns whether it was completed.
    bool print(Printer &printer, cVocabList &list, const GoOn &goOn) const;
};
