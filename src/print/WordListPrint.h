// SPDX-License-Identifier: GPL-3.0-or-later
// A print job of the word list: which entries it prints in which order, and how they look.
#pragma once

#include "core/VocabRecord.h"
#include "print/WrapText.h"
#include "runtime/Integer.h"

#include <functional>

class cVocabList;

struct WordListPrint
{
    // NumberApart prints number and word as two texts, NumberWithin as one.
    enum class Header { WordOnly, NumberApart, NumberWithin };
    // Where a pass through the range begins on its page: at the margins, or (all but the first
    // pass) in the corner of the printable area.
    enum class Passes { AtMargins, AtCornerAfterTheFirst };

    PageFrame frame;
    Integer first; // list positions; if `last` is below `first`, the range runs downwards
    Integer last;
    Header header = Header::NumberWithin;
    Passes passes = Passes::AtMargins;

    // From the print settings in Module1.
    [[nodiscard]] static WordListPrint chosen();
    // The whole list with margins of one inch.
    [[nodiscard]] static WordListPrint wholeList();

    [[nodiscard]] int entries() const; // of one pass
    [[nodiscard]] Integer position(int index) const;

    void startPass(Printer &printer, Integer pass) const;
    void printEntry(Printer &printer, Integer position, const VocabRecord &entry) const;

    // Called after each entry. False cancels the job.
    using GoOn = std::function<bool(int done, int total)>;
    // Prints the range Copies times and ends the document. Each printed entry becomes the list's
    // current one. A job that is cancelled or fails drops the document. False if cancelled.
    bool print(Printer &printer, cVocabList &list, const GoOn &goOn) const;
};
