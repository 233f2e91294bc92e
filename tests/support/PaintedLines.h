// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of text that a label paints: the label is painted as SVG, and the SVG is read.
#pragma once

#include <QBuffer>
#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QSvgGenerator>
#include <QXmlStreamReader>

namespace PaintedLines {

struct Line
{
    QString text;
    double points = 0;
    double left = 0;
    double top = 0; // of the base line
};

// From the top down.
inline QList<Line> paintedLines(QLabel &label)
{
    using namespace Qt::StringLiterals;
    QBuffer buffer;
    QSvgGenerator drawing;
    drawing.setOutputDevice(&buffer);
    drawing.setResolution(label.logicalDpiX());
    drawing.setSize(label.size());
    QPainter painter(&drawing);
    label.render(&painter, {}, {}, {});
    painter.end();

    QList<Line> lines;
    QXmlStreamReader reader(buffer.data());
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement() || reader.name() != u"text"_s)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        const double pixels = attributes.value(u"font-size"_s).toDouble();
        const double left = attributes.value(u"x"_s).toDouble();
        const double top = attributes.value(u"y"_s).toDouble();
        lines.append({reader.readElementText(), pixels * 72 / label.logicalDpiY(), left, top});
    }
    return lines;
}

inline QString joined(const QList<Line> &lines)
{
    QString text;
    for (const Line &line : lines)
        text += line.text;
    return text;
}

inline double widthOf(const QFont &type, double points, const QString &text)
{
    QFont painted = type;
    painted.setPointSizeF(points);
    return QFontMetricsF(painted).horizontalAdvance(text);
}

} // namespace PaintedLines
