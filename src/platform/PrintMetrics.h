// SPDX-License-Identifier: GPL-3.0-or-later
// Measures and draws printed text for the resolution of a printer, so that a picture of a page on
// the screen has exactly the lines of the page on paper.
#pragma once

#include "platform/PrintFont.h"

#include <QImage>
#include <QRectF>

#include <memory>
#include <vector>

class QPainter;

class PrintMetrics
{
public:
    // A sheet and the printable area on it in inches, and dots per inch. The resolution has to be
    // that of the device which is printed on: the widths of characters differ from one resolution
    // to another, and lines would end elsewhere.
    PrintMetrics(QSizeF sheet, const QRectF &area, int resolution);
    ~PrintMetrics();
    Q_DISABLE_COPY_MOVE(PrintMetrics)

    [[nodiscard]] QSizeF sheet() const { return m_sheet; }
    [[nodiscard]] QRectF area() const { return m_area; }
    [[nodiscard]] int resolution() const { return m_resolution; }

    // In inches. A text's width is the sum of its characters' widths, except where a script asks
    // for more.
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle &style) const;
    [[nodiscard]] double lineHeight(const PrintStyle &style) const;

    // Where the painter's unit is one dot and its origin the corner of the printable area.
    void draw(QPainter &painter, QPointF topLeft, const QString &text,
              const PrintStyle &style) const;

private:
    struct Face;
    [[nodiscard]] Face &face(const PrintStyle &style) const;

    QSizeF m_sheet;
    QRectF m_area;
    int m_resolution;
    QImage m_device; // stands for the printer where fonts are measured
    mutable std::vector<std::unique_ptr<Face>> m_faces; // those in use
};
