// SPDX-License-Identifier: GPL-3.0-or-later
// One document on its way out. It arrives as a whole: nothing of it is in the queue or in its
// place on the disk before finish, and nothing ever where that fails or is not called.
#pragma once

#include <QPageLayout>
#include <QPainter>

#include <memory>

class QPagedPaintDevice;
class QPrinter;

class PrintDocument
{
public:
    virtual ~PrintDocument() = default;
    Q_DISABLE_COPY_MOVE(PrintDocument)

    // Begins the first or the next sheet and returns its painter: a unit is a dot, the origin the
    // corner of the printable area. Null where the printer fails.
    [[nodiscard]] QPainter *nextSheet();
    [[nodiscard]] bool hasSheets() const { return m_painter.isActive(); }
    // Throws RunTimeError: PrinterFault, or a file's error.
    virtual void finish() = 0;

protected:
    PrintDocument() = default;
    [[nodiscard]] virtual QPagedPaintDevice &device() = 0;
    // False where what was drawn cannot be completed.
    [[nodiscard]] bool endPainting() { return m_painter.end(); }

private:
    QPainter m_painter;
};

struct PrintedPaper
{
    QPageLayout layout;
    int resolution = 0; // dots per inch
    QString title;
};

// In inches. The printable area is as large as the printer allows.
[[nodiscard]] QSizeF sheetSize(const QPageLayout &layout);
[[nodiscard]] QRectF printableArea(const QPageLayout &layout);

// A PDF file in place of whatever has that name. Throws a file's RunTimeError.
[[nodiscard]] std::unique_ptr<PrintDocument> pdfDocument(const QString &path,
                                                         const PrintedPaper &paper);
// A job for the printer, which is set up with paper and copies and outlives the document.
[[nodiscard]] std::unique_ptr<PrintDocument> printerDocument(QPrinter &printer,
                                                             const PrintedPaper &paper);
