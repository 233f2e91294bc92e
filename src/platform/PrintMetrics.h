// SPDX-License-Identifier: GPL-3.0-or-later
// Measures and draws text at the resolution of a printer, so that a page on the screen has the same
// lines as on paper.
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
    // Sheet and printable area in inches, resolution in dots per inch. The resolution must be the
    // printer's: at another one characters have other widths, and lines break at other places.
    PrintMetrics(QSizeF sheet, const QRectF &area, int resolution);
    ~PrintMetrics();
    Q_DISABLE_COPY_MOVE(PrintMetrics)

    [[nodiscard]] QSizeF sheet() const { return m_sheet; }
    [[nodiscard]] QRectF area() const { return m_area; }
    [[nodiscard]] int resolution() const { return m_resolution; }

    // In inches. The width of a text is the sum of the widths of its characters, except in scripts
    // that need shaping.
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle &style) const;
    [[nodiscard]] double lineHeight(const PrintStyle &style) const;

    // topLeft is in inches. The painter's unit must be one dot, its origin the top left corner of
    // the printable area.
    void draw(QPainter &painter, QPointF topLeft, const QString &text,
              const PrintStyle &style) const;

private:
    struct Face;
    [[nodiscard]] Face &face(const PrintStyle &style) const;

    QSizeF m_sheet;
    QRectF m_area;
    int m_resolution;
    QImage m_device; // has the resolution at which fonts are measured
    mutable std::vector<std::unique_ptr<Face>> m_faces; // used so far
};
