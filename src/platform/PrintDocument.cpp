// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDocument.h"

#include "runtime/RunTimeError.h"

#include <QCoreApplication>

#include <algorithm>

PrintDocument::PrintDocument(const PrintedPaper &paper, qsizetype mostBytes)
    : m_mostBytes(mostBytes)
{
    m_file.open(QIODevice::WriteOnly);
    m_writer.setResolution(paper.resolution);
    m_writer.setTitle(paper.title);
    m_writer.setCreator(QCoreApplication::applicationName());
    QPageLayout wholeSheet = paper.layout;
    wholeSheet.setMode(QPageLayout::FullPageMode);
    m_writer.setPageLayout(wholeSheet);
}

void PrintDocument::nextSheet()
{
    if (m_file.size() > m_mostBytes)
        throw RunTimeError(RunTimeError::OutOfMemory);
    if (hasSheets())
        m_writer.newPage();
    else
        m_painter.begin(&m_writer);
    const QPointF corner = printableArea(m_writer.pageLayout()).topLeft();
    m_painter.resetTransform();
    m_painter.translate(corner * m_writer.logicalDpiX());
}

QByteArray PrintDocument::finish()
{
    m_painter.end();
    return m_file.data();
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
    // Qt gives the borders in portrait. A queue may turn the sheet to either side.
    if (layout.orientation() == QPageLayout::Landscape) {
        const double sides = std::max(borders.top(), borders.bottom());
        const double ends = std::max(borders.left(), borders.right());
        borders = QMarginsF(sides, ends, sides, ends);
    }
    return inches.fullRect().marginsRemoved(borders);
}
