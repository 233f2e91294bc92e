// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintQueue.h"

#include <QLibrary>
#include <QPrinter>
#include <QTemporaryFile>

#include <array>
#include <cups/cups.h>

namespace {

// Loaded at the first print job. Linking with the library, which brings libraries for encryption
// and networks with it, would lengthen each start by about 4 ms, a tenth.
decltype(&cupsPrintFile) printFile()
{
    static const auto function = reinterpret_cast<decltype(&cupsPrintFile)>(
        QLibrary::resolve(QStringLiteral("cups"), 2, "cupsPrintFile"));
    return function;
}

QByteArray sides(const QPrinter &printer)
{
    if (printer.duplex() == QPrinter::DuplexNone)
        return CUPS_SIDES_ONE_SIDED;
    const bool landscape = printer.pageLayout().orientation() == QPageLayout::Landscape;
    const bool shortEdge = printer.duplex() == QPrinter::DuplexShortSide ||
                           (printer.duplex() == QPrinter::DuplexAuto && landscape);
    return shortEdge ? CUPS_SIDES_TWO_SIDED_LANDSCAPE : CUPS_SIDES_TWO_SIDED_PORTRAIT;
}

} // namespace

bool PrintQueue::submit(const QPrinter &printer, const QByteArray &pdf)
{
    QTemporaryFile file;
    if (!file.open() || file.write(pdf) != pdf.size() || !file.flush())
        return false;
    std::array<QByteArray, 3> names{CUPS_COPIES, CUPS_MEDIA, CUPS_SIDES};
    std::array<QByteArray, 3> values{QByteArray::number(printer.copyCount()),
                                     printer.pageLayout().pageSize().key().toUtf8(),
                                     sides(printer)};
    std::array<cups_option_t, 3> options{};
    for (std::size_t i = 0; i < options.size(); ++i)
        options[i] = {names[i].data(), values[i].data()};
    // A name may end with an instance, a set of options for the same queue: "queue/instance".
    const QString queue = printer.printerName().section(QLatin1Char('/'), 0, 0);
    return printFile() != nullptr &&
           printFile()(queue.toUtf8(), QFile::encodeName(file.fileName()),
                       printer.docName().toUtf8(), static_cast<int>(options.size()),
                       options.data()) != 0;
}
