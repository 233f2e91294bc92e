// SPDX-License-Identifier: GPL-3.0-or-later
// Prints paragraphs between the margins, with line and page breaks.
#pragma once

#include <QStringView>

class Printer;

// The margins of a page in inches.
struct PageFrame
{
    // Where a paragraph continues after a page break: at the top and left margins, or in the corner
    // of the printable area.
    enum class Break { ToMargins, ToCorner };

    double top = 0;
    double bottom = 0;
    double left = 0;
    double right = 0;
    Break pageBreak = Break::ToMargins;
};

// Begins a new page if a line would not fit into the printable area, whatever the margins.
void keepLineOnSheet(Printer &printer, const PageFrame &frame);

// Prints each paragraph from the left margin. Carriage return and line feed separate paragraphs.
void printParagraphs(Printer &printer, QStringView text, const PageFrame &frame);

// Prints one paragraph from the print position. A line is filled up to the right margin and broken
// at its last blank, which is not printed. A line without a blank is broken before the character
// that would cross the margin. Only the last line is trimmed; other lines keep leading and trailing
// blanks.
void printWrapped(Printer &printer, QStringView paragraph, const PageFrame &frame);
