// SPDX-License-Identifier: GPL-3.0-or-later
// A printer with a print position, which prints texts on one sheet after the other. Derived classes
// print on a device, draw a preview or record.
//
// All measures are in inches from the top left corner of the printable area.
#pragma once

#include "platform/PrintFont.h"
#include "runtime/Integer.h"

#include <QPointF>

class Printer
{
public:
    enum class Scale { Inches = 5 };
    enum class LineEnd { NextLine, SameLine };

    virtual ~Printer() = default;
    Q_DISABLE_COPY_MOVE(Printer)

    PrintFont Font;
    bool FontBold = false;
    bool FontItalic = false;

    Scale ScaleMode = Scale::Inches;
    double ScaleLeft = 0; // coordinates of the top left corner
    double ScaleTop = 0;
    double CurrentX = 0; // the top left corner of the next text
    double CurrentY = 0;

    // A job prints its range so many times, and the printer itself is set to it as well.
    Integer Copies = 1;

    [[nodiscard]] virtual double ScaleWidth() const = 0; // of the printable area
    [[nodiscard]] virtual double ScaleHeight() const = 0;
    // In the current font.
    [[nodiscard]] double TextWidth(QStringView text) const;
    [[nodiscard]] double TextHeight() const; // from one line to the next

    // `end` says where the next text goes: to the start of the next line, or right after this one.
    void Print(const QString &text, LineEnd end = LineEnd::NextLine);
    // Ends the sheet, if anything is printed on it. A sheet begins with its first visible text.
    void NewPage();
    void EndDoc();
    // Drops the document without printing it.
    void KillDoc();

protected:
    Printer() = default;

    [[nodiscard]] PrintStyle style() const;
    [[nodiscard]] bool sheetBegun() const { return m_sheetBegun; }
    void setSheetBegun(bool begun) { m_sheetBegun = begun; }

    [[nodiscard]] virtual double widthOf(QStringView text, const PrintStyle &style) const = 0;
    [[nodiscard]] virtual double lineHeight(const PrintStyle &style) const = 0;
    virtual void beginSheet() = 0; // the first or the next one
    virtual void drawText(QPointF topLeft, const QString &text, const PrintStyle &style) = 0;
    // Also called for a document without sheets.
    virtual void endDocument() = 0;
    virtual void dropDocument() = 0;

private:
    void toCorner();

    bool m_sheetBegun = false;
};
