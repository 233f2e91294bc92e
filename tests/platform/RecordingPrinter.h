// SPDX-License-Identifier: GPL-3.0-or-later
// A printer that records the texts of its sheets. Each character is an eighth of an inch wide and
// each line a quarter of an inch high, with any font, so that all positions are exact numbers.
#pragma once

#include "platform/Printer.h"

#include <QSizeF>
#include <QStringList>

#include <vector>

using namespace Qt::StringLiterals;

class RecordingPrinter final : public Printer
{
public:
    static constexpr double CharacterWidth = 0.125;
    static constexpr double LineHeight = 0.25;

    struct Text
    {
        int sheet; // from 1
        double x;
        double y;
        QString text;
        PrintStyle style;
    };

    // The printable area in characters and lines.
    explicit RecordingPrinter(int characters = 40, int lines = 20)
        : m_area(characters * CharacterWidth, lines * LineHeight)
    {
    }

    std::vector<Text> texts;
    int sheets = 0; // begun
    int ended = 0;  // documents completed
    int dropped = 0;
    mutable qsizetype charactersMeasured = 0;

    [[nodiscard]] double ScaleWidth() const override { return m_area.width(); }
    [[nodiscard]] double ScaleHeight() const override { return m_area.height(); }

    // What each text says, in order.
    [[nodiscard]] QStringList lines() const
    {
        QStringList lines;
        for (const Text &text : texts)
            lines += text.text;
        return lines;
    }
    // "sheet: column,line text" of each text.
    [[nodiscard]] QStringList places() const
    {
        QStringList places;
        for (const Text &text : texts)
            places += u"%1: %2,%3 %4"_s.arg(text.sheet)
                          .arg(text.x / CharacterWidth)
                          .arg(text.y / LineHeight)
                          .arg(text.text);
        return places;
    }

protected:
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle & /*style*/) const override
    {
        charactersMeasured += text.size();
        return static_cast<double>(text.size()) * CharacterWidth;
    }
    [[nodiscard]] double lineHeight(const PrintStyle & /*style*/) const override
    {
        return LineHeight;
    }
    void beginSheet() override { ++sheets; }
    void drawText(QPointF topLeft, const QString &text, const PrintStyle &style) override
    {
        texts.push_back({sheets, topLeft.x(), topLeft.y(), text, style});
    }
    void endDocument() override { ++ended; }
    void dropDocument() override { ++dropped; }

private:
    QSizeF m_area;
};
