// SPDX-License-Identifier: GPL-3.0-or-later
// A printer whose characters have different widths and whose styles have different line heights.
// The places therefore show in which style a text or an empty line was measured.
#pragma once

#include "platform/Printer.h"

#include <QSizeF>
#include <QStringList>

class UnevenPrinter final : public Printer
{
public:
    static constexpr double Unit = 0.125; // inches

    // The printable area in units.
    explicit UnevenPrinter(int width, int height = 100'000) : m_area(width * Unit, height * Unit) {}

    // "sheet: x,y text" of each visible text, in units.
    QStringList places;
    int sheets = 0;

    // In units. Bold characters are one unit wider; a combining accent has no width.
    [[nodiscard]] static int widthOf(QChar c, bool bold)
    {
        switch (c.unicode()) {
        case u'\u0301':
            return 0;
        case u'i':
            return bold ? 2 : 1;
        case u'w':
            return bold ? 6 : 5;
        default:
            return bold ? 3 : 2;
        }
    }
    static constexpr int BoldHeight = 5;
    static constexpr int ItalicHeight = 3;
    static constexpr int RegularHeight = 2;

    [[nodiscard]] double ScaleWidth() const override { return m_area.width(); }
    [[nodiscard]] double ScaleHeight() const override { return m_area.height(); }

protected:
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle &style) const override
    {
        int width = 0;
        for (const QChar c : text)
            width += widthOf(c, style.bold);
        return width * Unit;
    }
    [[nodiscard]] double lineHeight(const PrintStyle &style) const override
    {
        return (style.bold ? BoldHeight : style.italic ? ItalicHeight : RegularHeight) * Unit;
    }
    void beginSheet() override { ++sheets; }
    void drawText(QPointF topLeft, const QString &text, const PrintStyle & /*style*/) override
    {
        places += QStringLiteral("%1: %2,%3 %4")
                      .arg(sheets)
                      .arg(topLeft.x() / Unit)
                      .arg(topLeft.y() / Unit)
                      .arg(text);
    }
    void endDocument() override {}
    void dropDocument() override {}

private:
    QSizeF m_area;
};
