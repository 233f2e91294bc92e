// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDocument.h"

#include "platform/PrintQueue.h"
#include "runtime/FileError.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>
#include <QTemporaryFile>

#include <algorithm>
#include <cerrno>

namespace {

void setUp(QPagedPaintDevice &device, const QPageLayout &layout)
{
    QPageLayout wholeSheet = layout;
    wholeSheet.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(wholeSheet);
}

// A file of which nothing is left out unnoticed: after the first failure nothing more is written,
// and what failed is not forgotten.
class FaultlessFile final : public QIODevice
{
public:
    explicit FaultlessFile(QFileDevice &file) : m_file(file) { open(QIODevice::WriteOnly); }

    // What is still to be written goes to the file. False where not everything is there.
    [[nodiscard]] bool complete()
    {
        errno = 0;
        if (!m_failed && !m_file.flush())
            fail();
        return !m_failed;
    }
    [[noreturn]] void throwError(const QString &path) const { throwFileError(m_reason, path); }

protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        errno = 0;
        if (!m_failed && m_file.write(data, size) != size)
            fail();
        return m_failed ? -1 : size;
    }

private:
    void fail()
    {
        m_failed = true;
        // A write that stops short gives no reason; the next one does.
        if (errno == 0)
            m_file.flush();
        m_reason = errno;
    }

    QFileDevice &m_file;
    bool m_failed = false;
    int m_reason = 0;
};

// What is written as a PDF file somewhere.
class WrittenDocument : public PrintDocument
{
public:
    // The painter must not outlive what it paints on.
    ~WrittenDocument() override
    {
        if (hasSheets())
            static_cast<void>(endPainting());
    }

protected:
    WrittenDocument(QFileDevice &file, const PrintedPaper &paper) : m_file(file), m_writer(&m_file)
    {
        m_writer.setResolution(paper.resolution);
        m_writer.setTitle(paper.title);
        m_writer.setCreator(QCoreApplication::applicationName());
        setUp(m_writer, paper.layout);
    }

    // Ends the document. False where not all of it is in the file.
    [[nodiscard]] bool complete() { return endPainting() && m_file.complete(); }
    [[nodiscard]] const FaultlessFile &output() const { return m_file; }
    [[nodiscard]] QPagedPaintDevice &device() override { return m_writer; }

private:
    FaultlessFile m_file;
    QPdfWriter m_writer;
};

struct OpenSaveFile
{
    explicit OpenSaveFile(const QString &path) : file(path)
    {
        checkPlaceOfFile(path);
        errno = 0;
        if (!file.open(QIODevice::WriteOnly))
            throwFileError(errno != 0 ? errno : EACCES, path);
    }

    QSaveFile file;
};

class PdfDocument final : private OpenSaveFile, public WrittenDocument
{
public:
    PdfDocument(const QString &path, const PrintedPaper &paper)
        : OpenSaveFile(path), WrittenDocument(file, paper)
    {
    }

    void finish() override
    {
        if (!complete())
            output().throwError(file.fileName());
        errno = 0;
        if (!file.commit())
            throwFileError(errno, file.fileName());
    }
};

struct OpenTemporaryFile
{
    OpenTemporaryFile() { opened = file.open(); }

    QTemporaryFile file;
    bool opened = false;
};

QByteArray sides(const QPrinter &printer)
{
    if (printer.duplex() == QPrinter::DuplexNone)
        return "one-sided";
    const bool landscape = printer.pageLayout().orientation() == QPageLayout::Landscape;
    const bool shortEdge = printer.duplex() == QPrinter::DuplexShortSide ||
                           (printer.duplex() == QPrinter::DuplexAuto && landscape);
    return shortEdge ? "two-sided-short-edge" : "two-sided-long-edge";
}

class QueuedDocument final : private OpenTemporaryFile, public WrittenDocument
{
public:
    QueuedDocument(const QPrinter &printer, const PrintedPaper &paper)
        : WrittenDocument(file, paper), m_job{printer.printerName(),
                                              paper.title,
                                              file.fileName(),
                                              paper.layout.pageSize().key().toUtf8(),
                                              sides(printer),
                                              printer.copyCount()}
    {
    }

    void finish() override
    {
        if (!opened || !complete() || !PrintQueue::submit(m_job))
            throw RunTimeError(RunTimeError::PrinterFault, m_job.queue);
    }

private:
    PrintQueue::Job m_job;
};

// Drawn on the printer itself, by systems whose queues do not take files.
class DrawnDocument final : public PrintDocument
{
public:
    DrawnDocument(QPrinter &printer, const PrintedPaper &paper) : m_printer(printer)
    {
        setUp(m_printer, paper.layout);
        m_printer.setDocName(paper.title);
    }

    ~DrawnDocument() override
    {
        if (hasSheets())
            m_printer.abort();
    }

    void finish() override
    {
        if (!endPainting() || m_printer.printerState() == QPrinter::Error)
            throw RunTimeError(RunTimeError::PrinterFault, m_printer.printerName());
    }

protected:
    [[nodiscard]] QPagedPaintDevice &device() override { return m_printer; }

private:
    QPrinter &m_printer;
};

} // namespace

QPainter *PrintDocument::nextSheet()
{
    const bool begun = hasSheets() ? device().newPage() : m_painter.begin(&device());
    if (!begun)
        return nullptr;
    const QPointF corner = printableArea(device().pageLayout()).topLeft();
    m_painter.resetTransform();
    m_painter.translate(corner * m_painter.device()->logicalDpiX());
    return &m_painter;
}

QSizeF sheetSize(const QPageLayout &layout)
{
    return layout.fullRect(QPageLayout::Inch).size();
}

QRectF printableArea(const QPageLayout &layout)
{
    QPageLayout inches = layout;
    inches.setUnits(QPageLayout::Inch);
    QMarginsF borders = inches.minimumMargins();
    // The toolkit gives the borders of the upright sheet, which a queue may turn either way.
    if (layout.orientation() == QPageLayout::Landscape && PrintQueue::takesFiles()) {
        const double sides = std::max(borders.top(), borders.bottom());
        const double ends = std::max(borders.left(), borders.right());
        borders = QMarginsF(sides, ends, sides, ends);
    }
    return inches.fullRect().marginsRemoved(borders);
}

std::unique_ptr<PrintDocument> pdfDocument(const QString &path, const PrintedPaper &paper)
{
    return std::make_unique<PdfDocument>(path, paper);
}

std::unique_ptr<PrintDocument> printerDocument(QPrinter &printer, const PrintedPaper &paper)
{
    if (PrintQueue::takesFiles())
        return std::make_unique<QueuedDocument>(printer, paper);
    return std::make_unique<DrawnDocument>(printer, paper);
}
