// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Printer.h"

#include <algorithm>

namespace {

bool canBeSeen(const QString &text)
{
    return std::any_of(text.begin(), text.end(), [](QChar c) { return c != QLatin1Char(' '); });
}

} // namespace

PrintStyle Printer::style() const
{
    return {Font, FontBold, FontItalic};
}

double Printer::TextWidth(QStringView text) const
{
    return widthOf(text, style());
}

double Printer::TextHeight() const
{
    return lineHeight(style());
}

void Printer::Print(const QString &text, LineEnd end)
{
    if (canBeSeen(text)) {
        if (!m_sheetBegun)
            beginSheet();
        m_sheetBegun = true;
        drawText({CurrentX - ScaleLeft, CurrentY - ScaleTop}, text, style());
    }
    if (end == LineEnd::SameLine) {
        CurrentX += TextWidth(text);
        return;
    }
    CurrentX = ScaleLeft;
    CurrentY += TextHeight();
}

void Printer::NewPage()
{
    m_sheetBegun = false;
    toCorner();
}

void Printer::EndDoc()
{
    m_sheetBegun = false;
    toCorner();
    endDocument();
}

void Printer::KillDoc()
{
    m_sheetBegun = false;
    toCorner();
    dropDocument();
}

void Printer::toCorner()
{
    CurrentX = ScaleLeft;
    CurrentY = ScaleTop;
}
