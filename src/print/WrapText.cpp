// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/WrapText.h"

#include "platform/Printer.h"
#include "runtime/Blanks.h"

#include <algorithm>

namespace {

// How many characters from the start fit into the width. Measures only a few lines of a long text.
qsizetype charactersWithin(const Printer &printer, QStringView text, double width)
{
    qsizetype fitting = 0;
    qsizetype tooMany = text.size() + 1;
    for (qsizetype step = 128; fitting < text.size() && tooMany > text.size(); step *= 2) {
        const qsizetype tried = std::min(fitting + step, text.size());
        (printer.TextWidth(text.first(tried)) <= width ? fitting : tooMany) = tried;
    }
    while (tooMany - fitting > 1) {
        const qsizetype tried = fitting + (tooMany - fitting) / 2;
        (printer.TextWidth(text.first(tried)) <= width ? fitting : tooMany) = tried;
    }
    return fitting;
}

struct LineBreak
{
    qsizetype end;  // of the line
    qsizetype next; // where the next line begins
};

// `fitting` characters fit into the width, one more does not.
LineBreak lineBreak(const Printer &printer, QStringView text, qsizetype fitting, double width)
{
    qsizetype filled = fitting + 1;
    while (filled > 1 && printer.TextWidth(text.first(filled - 1)) >= width)
        --filled;
    const qsizetype blank = text.first(filled).lastIndexOf(QLatin1Char(' '));
    if (blank >= 0)
        return {blank, blank + 1};
    qsizetype end = std::max<qsizetype>(fitting, 1);
    const bool cutsPair =
        end < text.size() && text[end - 1].isHighSurrogate() && text[end].isLowSurrogate();
    if (cutsPair) // both surrogates of a character stay on one line
        end += end > 1 ? -1 : 1;
    return {end, end};
}

void breakPage(Printer &printer, const PageFrame &frame)
{
    if (frame.pageBreak == PageFrame::Break::ToMargins)
        printer.NewPage();
    printer.CurrentY = frame.top;
    printer.CurrentX = frame.left;
    if (frame.pageBreak == PageFrame::Break::ToCorner)
        printer.NewPage();
}

void printLine(Printer &printer, const QString &line, const PageFrame &frame)
{
    if (printer.CurrentY > printer.ScaleHeight() - frame.bottom)
        breakPage(printer, frame);
    keepLineOnSheet(printer, frame);
    printer.Print(line);
}

} // namespace

void keepLineOnSheet(Printer &printer, const PageFrame &frame)
{
    const double lastTop = printer.ScaleHeight() - printer.TextHeight();
    if (printer.CurrentY <= lastTop)
        return;
    printer.NewPage();
    printer.CurrentX = frame.left;
    // The sheet may be shorter than the top margin.
    printer.CurrentY = std::min(frame.top, std::max(lastTop, 0.0));
}

void printParagraphs(Printer &printer, QStringView text, const PageFrame &frame)
{
    while (!text.isEmpty()) {
        const qsizetype lineFeed = text.indexOf(QLatin1Char('\n'));
        // The character before the line feed is taken for a carriage return.
        const QStringView paragraph =
            lineFeed < 0 ? text : text.first(std::max<qsizetype>(lineFeed - 1, 0));
        text = lineFeed < 0 ? QStringView() : text.sliced(lineFeed + 1);
        printer.CurrentX = frame.left;
        printWrapped(printer, paragraph, frame);
    }
}

void printWrapped(Printer &printer, QStringView paragraph, const PageFrame &frame)
{
    const double width = printer.ScaleWidth() - (frame.left + frame.right);
    for (;;) {
        const qsizetype fitting = charactersWithin(printer, paragraph, width);
        if (fitting == paragraph.size())
            break;
        const LineBreak at = lineBreak(printer, paragraph, fitting, width);
        printLine(printer, paragraph.first(at.end).toString(), frame);
        printer.CurrentX = frame.left;
        paragraph = paragraph.sliced(at.next);
    }
    printLine(printer, withoutOuterBlanks(paragraph.toString()), frame);
}
