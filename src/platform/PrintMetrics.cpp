// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintMetrics.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace {

constexpr double MetresPerInch = 0.0254;

// Whether the width of a character never depends on its neighbours, without kerning and ligatures.
bool standsAlone(QChar c)
{
    const char16_t code = c.unicode();
    return (code >= 0x20 && code < 0x7F) || (code >= 0xA0 && code < 0x250 && code != 0xAD) ||
           (code >= 0x2010 && code < 0x2028) || code == 0x20AC || code == 0x2122;
}
constexpr std::size_t Widths = 0x2123;

// Control characters have no glyph and are printed as blanks.
QString printable(QStringView text)
{
    QString shown = text.toString();
    const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
    std::replace_if(shown.begin(), shown.end(), isControl, QChar(QLatin1Char(' ')));
    return shown;
}

QFont fontOf(const PrintStyle &style, double size)
{
    QFont font(style.font.Name);
    font.setPointSizeF(size);
    font.setBold(style.bold);
    font.setItalic(style.italic);
    // With kerning or ligatures a text would not be as wide as its characters together.
    font.setKerning(false);
    font.setStyleStrategy(QFont::PreferNoShaping);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}

} // namespace

// A style with the widths that were measured so far.
struct PrintMetrics::Face
{
    Face(const PrintStyle &faceStyle, const QImage &device)
        : style(faceStyle), metrics(fontOf(faceStyle, faceStyle.font.Size), &device)
    {
        widths.fill(-1);
    }

    [[nodiscard]] double widthOf(QChar c)
    {
        double &width = widths[c.unicode()];
        if (width < 0)
            width = metrics.horizontalAdvance(QString(c));
        return width;
    }

    PrintStyle style;
    QFontMetricsF metrics;
    std::array<double, Widths> widths{}; // negative: not measured yet
};

PrintMetrics::PrintMetrics(QSizeF sheet, const QRectF &area, int resolution)
    : m_sheet(sheet), m_area(area), m_resolution(resolution),
      m_device(1, 1, QImage::Format_Grayscale8)
{
    const int dotsPerMetre = static_cast<int>(std::lround(resolution / MetresPerInch));
    m_device.setDotsPerMeterX(dotsPerMetre);
    m_device.setDotsPerMeterY(dotsPerMetre);
}

PrintMetrics::~PrintMetrics() = default;

PrintMetrics::Face &PrintMetrics::face(const PrintStyle &style) const
{
    for (const auto &face : m_faces)
        if (face->style == style)
            return *face;
    return *m_faces.emplace_back(std::make_unique<Face>(style, m_device));
}

double PrintMetrics::widthOf(QStringView text, const PrintStyle &style) const
{
    Face &measured = face(style);
    double width = 0;
    for (const QChar c : text) {
        if (!standsAlone(c))
            return measured.metrics.horizontalAdvance(printable(text)) / m_resolution;
        width += measured.widthOf(c);
    }
    return width / m_resolution;
}

double PrintMetrics::lineHeight(const PrintStyle &style) const
{
    return face(style).metrics.lineSpacing() / m_resolution;
}

void PrintMetrics::draw(QPainter &painter, QPointF topLeft, const QString &text,
                        const PrintStyle &style) const
{
    // As large in dots as on the printer, whatever the resolution of the painter's device.
    painter.setFont(
        fontOf(style, style.font.Size * m_resolution / painter.device()->logicalDpiY()));
    const double baseline = topLeft.y() * m_resolution + face(style).metrics.ascent();
    painter.drawText(QPointF(topLeft.x() * m_resolution, baseline), printable(text));
}
