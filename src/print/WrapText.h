// SPDX-License-Identifier: GPL-3.0-or-later
// Paragraphs set between the margins of a sheet, with their line and page breaks.
#pragma once

#include <QStringView>

class Printer;

// Where text may stand on a sheet, in inches.
struct PageFrame
{
    // ToMargins: a paragraph that comes to a new sheet goes on at its top and left margins.
    // ToCorner: it goes on in the sheet's corner, without a top margin.
    enum class Break { ToMargins, ToCorner };

    double top = 0;
    double bottom = 0;
    double left = 0;
    double right = 0;
    Break pageBreak = Break::ToMargins;
};

// Moves to a new sheet where a line would not fit on what is left of this one, margins or not.
void keepLineOnSheet(Printer &printer, const PageFrame &frame);

// Each paragraph of a text, ended by a carriage return and a line feed, from the left margin on.
void printParagraphs(Printer &printer, QStringView text, const PageFrame &frame);

// One paragraph from the print position on. A line reaches at least up to the right margin and is
// broken at its last blank, which is printed on neither line; other leading and trailing blanks
// stay, but for those of the last line. What has no blank is broken where it would cross the
// right margin.
void printWrapped(Printer &printer, QStringView paragraph, const PageFrame &frame);
