// SPDX-License-Identifier: GPL-3.0-or-later
// A printed document, made as a PDF file in memory.
#pragma once

#include <QBuffer>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>

struct PrintedPaper
{
    QPageLayout layout;
    int resolution = 0; // dots per inch
    QString title;
};

// In inches. The printable area is as large as the printer allows.
[[nodiscard]] QSizeF sheetSize(const QPageLayout &layout);
[[nodiscard]] QRectF printableArea(const QPageLayout &layout);

class PrintDocument
{
public:
    // More than any sensible job; without a limit, many copies of a long list would use up memory.
    static constexpr qsizetype MostBytes = qsizetype(1) << 30;

    explicit PrintDocument(const PrintedPaper &paper, qsizetype mostBytes = MostBytes);

    // Begins the first or the next sheet. Throws RunTimeError OutOfMemory if the document is larger
    // than `mostBytes`.
    void nextSheet();
    [[nodiscard]] bool hasSheets() const { return m_painter.isActive(); }
    // Paints on the current sheet. One unit is one dot; the origin is the top left corner of the
    // printable area.
    [[nodiscard]] QPainter &painter() { return m_painter; }
    // Ends the document and returns the PDF file.
    [[nodiscard]] QByteArray finish();

private:
    qsizetype m_mostBytes;
    // In this order: the painter writes to the writer and that to the file, also when destroyed.
    QBuffer m_file;
    QPdfWriter m_writer{&m_file};
    QPainter m_painter;
};
