// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: how well a colour stands out from another, in palettes and in pictures.
#pragma once

#include <QColor>
#include <QHash>
#include <QImage>
#include <QPalette>

#include <algorithm>
#include <cmath>

namespace Contrast {

inline constexpr double ReadableText = 4.5; // WCAG 2, level AA
inline constexpr double ReadableMark = 3;   // the same for large text, lines and disabled controls

[[nodiscard]] inline double luminance(const QColor &colour)
{
    const auto part = [](double value) {
        return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) +
           0.0722 * part(colour.blueF());
}

[[nodiscard]] inline double contrast(const QColor &a, const QColor &b)
{
    const auto [low, high] = std::minmax({luminance(a), luminance(b)});
    return (high + 0.05) / (low + 0.05);
}

[[nodiscard]] inline QPalette lightPalette()
{
    return QPalette(QColor(0xEF, 0xEF, 0xEF));
}

[[nodiscard]] inline QPalette darkPalette()
{
    QPalette palette(QColor(0x2D, 0x2D, 0x2D));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::Button, QColor(0x38, 0x38, 0x38));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(0xF0, 0xF0, 0xF0));
    return palette;
}

// White and yellow on black, as some people set it.
[[nodiscard]] inline QPalette highContrastPalette()
{
    QPalette palette{QColor(Qt::black)};
    for (const auto role : {QPalette::Base, QPalette::AlternateBase, QPalette::Button})
        palette.setColor(role, Qt::black);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, Qt::white);
    palette.setColor(QPalette::Highlight, Qt::yellow);
    palette.setColor(QPalette::HighlightedText, Qt::black);
    return palette;
}

// The most frequent colour of a picture, and the one with the highest contrast to it.
struct Seen
{
    explicit Seen(const QImage &image)
    {
        QHash<QRgb, int> counts;
        const QImage pixels = image.convertToFormat(QImage::Format_RGB32);
        for (int y = 0; y < pixels.height(); ++y) {
            const auto *line = reinterpret_cast<const QRgb *>(pixels.constScanLine(y));
            // Most neighbours are alike.
            for (int x = 0, end = 0; x < pixels.width(); x = end) {
                while (end < pixels.width() && line[end] == line[x])
                    ++end;
                counts[line[x]] += end - x;
            }
        }
        QRgb most = 0;
        for (auto it = counts.cbegin(); it != counts.cend(); ++it)
            if (it.value() > counts.value(most))
                most = it.key();
        paper = ink = QColor(most);
        for (auto it = counts.cbegin(); it != counts.cend(); ++it)
            if (contrast(paper, QColor(it.key())) > contrast(paper, ink))
                ink = QColor(it.key());
    }

    [[nodiscard]] double contrastOfInk() const { return contrast(paper, ink); }
    // "#000000 on #ffffff has 21"
    [[nodiscard]] QString text() const
    {
        return QStringLiteral("%1 on %2 has %3").arg(ink.name(), paper.name()).arg(contrastOfInk());
    }

    QColor paper;
    QColor ink;
};

} // namespace Contrast
