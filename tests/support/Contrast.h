// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: how well a colour stands out from another, and the palettes to see it with.
#pragma once

#include <QColor>
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
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x2D, 0x2D, 0x2D));
    palette.setColor(QPalette::Base, QColor(0x1E, 0x1E, 0x1E));
    palette.setColor(QPalette::Button, QColor(0x38, 0x38, 0x38));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, QColor(0xF0, 0xF0, 0xF0));
    return palette;
}

} // namespace Contrast
