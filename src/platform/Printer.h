// SPDX-License-Identifier: GPL-3.0-or-later
// A printer with a print position: texts are put on one sheet after the other. What becomes of
// the sheets (paper, a file, a picture on the screen, a record) is its derived class's.
//
// All measures are inches from the top left corner of a sheet's printable area.
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
    double ScaleLeft = 0; // coordinates of the corner
    double ScaleTop = 0;
    double CurrentX = 0; // where the next text's top left corner comes
    double CurrentY = 0;

    // How often a job prints its range, and what the printer itself is set to.
    Integer Copies = 1;

    [[nodiscard]] virtual double ScaleWidth() const = 0; // of the printable area
    [[nodiscard]] virtual double ScaleHeight() const = 0;
    // In the current font.
    [[nodiscard]] double TextWidth(QStringView text) const;
    [[nodiscard]] double TextHeight() const; // of one line, with the space to the next one

    // The next text goes to the start of the next line, or right behind this one.
    void Print(const QString &text, LineEnd end = LineEnd::NextLine);
    // Ends the sheet, if anything is on it. A sheet comes into being with the first text that can
    // be seen.
    void NewPage();
    void EndDoc();
    // Drops the document: nothing of it is printed.
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
    // The document may be without a sheet.
    virtual void endDocument() = 0;
    virtual void dropDocument() = 0;

private:
    void toCorner();

    bool m_sheetBegun = false;
};
