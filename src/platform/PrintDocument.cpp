// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDocument.h"

#include "platform/PrintQueue.h"
#include "runtime/BinaryFile.h"
#include "runtime/RunTimeError.h"

#include <QCoreApplication>
#include <QPdfWriter>
#include <QPrinter>
#include <QTemporaryFile>

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

namespace {

void setUp(QPagedPaintDevice &device, const QPageLayout &layout)
{
    QPageLayout wholeSheet = layout;
    wholeSheet.setMode(QPageLayout::FullPageMode);
    device.setPageLayout(wholeSheet);
}

// Gathers what is written for a function and remembers what that throws: the writer of a PDF knows
// no exceptions, and goes on after a failure.
class Output final : public QIODevice
{
public:
    using Write = std::function<void(QByteArrayView)>;

    explicit Output(Write write) : m_write(std::move(write)) { open(QIODevice::WriteOnly); }

    // Throws where not everything could be written.
    void complete()
    {
        pass();
        if (m_failure)
            std::rethrow_exception(m_failure);
    }

    // The function is called no more.
    void drop() { m_write = {}; }

protected:
    qint64 readData(char * /*data*/, qint64 /*size*/) override { return -1; }
    qint64 writeData(const char *data, qint64 size) override
    {
        constexpr qsizetype enough = 1 << 16;
        m_gathered.append(data, size);
        if (m_gathered.size() >= enough)
            pass();
        return size;
    }

private:
    void pass()
    {
        try {
            if (m_write && !m_failure)
                m_write(m_gathered);
        } catch (...) {
            m_failure = std::current_exception();
        }
        m_gathered.clear();
    }

    Write m_write;
    QByteArray m_gathered;
    std::exception_ptr m_failure;
};

// What is written as a PDF file somewhere.
class WrittenDocument : public PrintDocument
{
public:
    // The painter must not outlive what it paints on. To end the painting writes the last sheet,
    // which nobody wants, and what the derived class writes with is gone.
    ~WrittenDocument() override
    {
        m_output.drop();
        if (hasSheets())
            static_cast<void>(endPainting());
    }

protected:
    WrittenDocument(Output::Write write, const PrintedPaper &paper)
        : m_output(std::move(write)), m_writer(&m_output)
    {
        m_writer.setResolution(paper.resolution);
        m_writer.setTitle(paper.title);
        m_writer.setCreator(QCoreApplication::applicationName());
        setUp(m_writer, paper.layout);
    }

    // Ends the document, or throws where not all of it could be written.
    void complete()
    {
        static_cast<void>(endPainting());
        m_output.complete();
    }
    [[nodiscard]] QPagedPaintDevice &device() override { return m_writer; }

private:
    Output m_output;
    QPdfWriter m_writer;
};

struct NewFile
{
    explicit NewFile(const QString &path) : file(path) {}

    BinaryFile::Replacement file;
};

class PdfDocument final : private NewFile, public WrittenDocument
{
public:
    PdfDocument(const QString &path, const PrintedPaper &paper)
        : NewFile(path), WrittenDocument([this](QByteArrayView bytes) { file.write(bytes); }, paper)
    {
    }

    void finish() override
    {
        complete();
        file.takePlace();
    }
};

struct OpenTemporaryFile
{
    OpenTemporaryFile() { file.open(); }

    QTemporaryFile file;
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
        : WrittenDocument([this](QByteArrayView bytes) { write(bytes); }, paper),
          m_job{printer.printerName(), paper.title,
                file.fileName(),       paper.layout.pageSize().key().toUtf8(),
                sides(printer),        printer.copyCount()}
    {
    }

    void finish() override
    {
        complete();
        if (!PrintQueue::submit(m_job))
            throw RunTimeError(RunTimeError::PrinterFault, m_job.queue);
    }

private:
    void write(QByteArrayView bytes)
    {
        if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush())
            throw RunTimeError(RunTimeError::PrinterFault, m_job.queue);
    }

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
