// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintJob.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/MsgBox.h"
#include "platform/ProgressShown.h"
#include "platform/SystemPrinter.h"
#include "print/WordListPrint.h"
#include "runtime/RunTimeError.h"

using namespace Module1;

PrintEnd printWordList(QWidget *window, SystemPrinter &printer, const WordListPrint &job)
{
    if (gVocabList().NumWords() < 1) {
        MsgBox(QStringLiteral("Not printed: Your current wordlist is empty."));
        return PrintEnd::EmptyList;
    }
    const QString title = gFileTitle.isEmpty() ? QStringLiteral("Untitled") : gFileTitle;
    if (!printer.StartDoc(window, title))
        return PrintEnd::Cancelled;
    ProgressShown progress(window, ProgressShown::Cancel::Offered);
    const bool isPrinted = job.print(printer, gVocabList(), [&progress](int done, int total) {
        progress.show(done, total);
        return !progress.wasCancelled();
    });
    return isPrinted ? PrintEnd::HandedOver : PrintEnd::Cancelled;
}

void tellPrinterError(const SystemPrinter &printer, const std::function<void()> &action)
{
    try {
        action();
    } catch (const RunTimeError &error) {
        if (error.number() != RunTimeError::PrinterFault)
            throw;
        MsgBox(printer.DeviceName() + QStringLiteral(" has encountered an error"));
    }
}

void tellPrinterErrorOnly(const SystemPrinter &printer, const std::function<void()> &action)
{
    try {
        tellPrinterError(printer, action);
    } catch (const RunTimeError &) {
        return;
    }
}
