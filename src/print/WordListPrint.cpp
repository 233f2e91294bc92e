// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/WordListPrint.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/Printer.h"
#include "print/PrintNumbers.h"

#include <QScopeGuard>

#include <cstdlib>

WordListPrint WordListPrint::chosen()
{
    using namespace Module1;
    WordListPrint job;
    job.frame = {TopMargin.toDouble(), BottomMargin.toDouble(), LeftMargin.toDouble(),
                 RightMargin.toDouble(), PageFrame::Break::ToMargins};
    // The range may have been set for a longer list.
    job.first = positionInList(FromWord, gVocabList().NumWords());
    job.last = positionInList(ToWord, gVocabList().NumWords());
    if (FromWord <= ToWord)
        job.header = PrintItemNumber ? Header::NumberApart : Header::WordOnly;
    return job;
}

WordListPrint WordListPrint::wholeList()
{
    WordListPrint job;
    job.frame = {1, 1, 1, 1, PageFrame::Break::ToCorner};
    job.first = 1;
    job.last = Module1::gVocabList().NumWords();
    job.passes = Passes::AtCornerAfterTheFirst;
    return job;
}

int WordListPrint::entries() const
{
    return std::abs(last.toInt() - first.toInt()) + 1;
}

Integer WordListPrint::position(int index) const
{
    return first <= last ? first.toInt() + index : first.toInt() - index;
}

void WordListPrint::startPass(Printer &printer, Integer pass) const
{
    printer.Font = {QStringLiteral("Times New Roman"), 10};
    if (passes == Passes::AtCornerAfterTheFirst && pass > 0)
        return;
    printer.CurrentX = frame.left;
    printer.CurrentY = frame.top;
}

void WordListPrint::printEntry(Printer &printer, Integer position, const VocabRecord &entry) const
{
    const QString number = QStringLiteral(" %1. ").arg(position.toInt());
    const QString word = entry.Word + QStringLiteral(":  ");
    printer.FontBold = true;
    printer.FontItalic = false;
    printer.CurrentX = frame.left;
    keepLineOnSheet(printer, frame);
    if (header == Header::NumberApart)
        printer.Print(number, Printer::LineEnd::SameLine);
    printer.Print(header == Header::NumberWithin ? number + word : word);
    printer.FontBold = false;
    printParagraphs(printer, entry.Definition, frame);
    printer.FontItalic = true;
    printParagraphs(printer, entry.Sentence, frame);
    keepLineOnSheet(printer, frame);
    printer.Print({});
}

bool WordListPrint::print(Printer &printer, cVocabList &list, const GoOn &goOn) const
{
    auto drop = qScopeGuard([&printer] { printer.KillDoc(); });
    const int total = entries() * printer.Copies.toInt();
    int done = 0;
    for (Integer pass = 0; pass < printer.Copies; ++pass) {
        startPass(printer, pass);
        for (int index = 0; index < entries(); ++index) {
            list.CurrentWord(position(index));
            printEntry(printer, list.CurrentWord(),
                       {list.Word(), list.Definition(), list.Sentence()});
            if (!goOn(++done, total))
                return false;
        }
        printer.NewPage();
    }
    drop.dismiss();
    printer.EndDoc();
    return true;
}
