// SPDX-License-Identifier: GPL-3.0-or-later
// Input: eight bytes of measures and a text. The lines are the same as when they are filled
// character by character, and nothing but blanks and line ends is lost.
#include "Fuzzing.h"
#include "platform/Printer.h"
#include "print/WrapText.h"

#include <vector>

namespace {

using Text = std::u16string;

constexpr double Unit = 0.125; // inches; sums of it are exact
constexpr char16_t BlankUnit = u' ';

// In units. Some characters have no width.
int widthOf(char16_t unit)
{
    return unit % 5;
}

int widthOf(std::u16string_view text)
{
    int width = 0;
    for (const char16_t unit : text)
        width += widthOf(unit);
    return width;
}

struct Sheet // measures in units
{
    int width;
    int height;
    int lineHeight;
    int top;
    int bottom;
    int left;
    int right;
    bool toCorner;
};

struct Line
{
    int sheet;
    int x;
    int y;
    Text text;

    friend bool operator==(const Line &, const Line &) = default;
};

class FuzzPrinter final : public Printer
{
public:
    explicit FuzzPrinter(const Sheet &sheet) : m_sheet(sheet) {}

    std::vector<Line> lines;

    [[nodiscard]] double ScaleWidth() const override { return m_sheet.width * Unit; }
    [[nodiscard]] double ScaleHeight() const override { return m_sheet.height * Unit; }

protected:
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle & /*style*/) const override
    {
        return ::widthOf({text.utf16(), std::size_t(text.size())}) * Unit;
    }
    [[nodiscard]] double lineHeight(const PrintStyle & /*style*/) const override
    {
        return m_sheet.lineHeight * Unit;
    }
    void beginSheet() override { ++m_sheets; }
    void drawText(QPointF topLeft, const QString &text, const PrintStyle & /*style*/) override
    {
        lines.push_back(
            {m_sheets, int(topLeft.x() / Unit), int(topLeft.y() / Unit), text.toStdU16String()});
    }
    void endDocument() override {}
    void dropDocument() override {}

private:
    Sheet m_sheet;
    int m_sheets = 0;
};

// Sets a text line by line. Each line is filled character by character, then shortened to its last
// blank.
class PlainSetter
{
public:
    explicit PlainSetter(const Sheet &sheet) : m_sheet(sheet) {}

    std::vector<Line> lines;
    int x = 0;
    int y = 0;

    void setText(const Text &text)
    {
        for (std::size_t start = 0; start < text.size();) {
            const std::size_t lineFeed = text.find(u'\n', start);
            x = m_sheet.left;
            if (lineFeed == Text::npos) {
                setParagraph(text.substr(start));
                return;
            }
            // The character before a line feed is not printed either.
            setParagraph(text.substr(start, lineFeed > start ? lineFeed - start - 1 : 0));
            start = lineFeed + 1;
        }
    }

private:
    void setParagraph(Text unprinted)
    {
        const int width = m_sheet.width - m_sheet.left - m_sheet.right;
        while (!unprinted.empty() && widthOf(unprinted) > width) {
            setLine(takeLine(unprinted, width));
            x = m_sheet.left;
        }
        while (unprinted.starts_with(BlankUnit))
            unprinted.erase(0, 1);
        while (unprinted.ends_with(BlankUnit))
            unprinted.pop_back();
        setLine(unprinted);
    }

    static Text takeLine(Text &unprinted, int width)
    {
        Text line;
        int filled = 0;
        do {
            filled += widthOf(unprinted[line.size()]);
            line += unprinted[line.size()];
        } while (filled < width);
        while (!line.empty()) {
            const bool isBlank = line.back() == BlankUnit;
            line.pop_back();
            if (isBlank) {
                unprinted.erase(0, line.size() + 1);
                return line;
            }
        }
        line = unprinted.substr(0, fittingPart(unprinted, width));
        unprinted.erase(0, line.size());
        return line;
    }

    // As many characters as fit, but at least one; the halves of a pair stay together.
    static std::size_t fittingPart(const Text &text, int width)
    {
        std::size_t fitting = 0;
        for (int filled = 0; fitting < text.size();) {
            const bool isPair = fitting + 1 < text.size() && (text[fitting] & 0xFC00U) == 0xD800U &&
                                (text[fitting + 1] & 0xFC00U) == 0xDC00U;
            const std::size_t size = isPair ? 2 : 1;
            filled += widthOf(std::u16string_view(text).substr(fitting, size));
            if (filled > width)
                return fitting == 0 ? size : fitting;
            fitting += size;
        }
        return fitting;
    }

    void setLine(const Text &line)
    {
        if (y > m_sheet.height - m_sheet.bottom) {
            m_begun = false;
            x = m_sheet.toCorner ? 0 : m_sheet.left;
            y = m_sheet.toCorner ? 0 : m_sheet.top;
        }
        const int lastTop = m_sheet.height - m_sheet.lineHeight;
        if (y > lastTop) {
            m_begun = false;
            x = m_sheet.left;
            y = std::min(m_sheet.top, std::max(lastTop, 0));
        }
        if (line.find_first_not_of(BlankUnit) != Text::npos) {
            m_sheets += m_begun ? 0 : 1;
            m_begun = true;
            lines.push_back({m_sheets, x, y, line});
        }
        x = 0;
        y += m_sheet.lineHeight;
    }

    Sheet m_sheet;
    bool m_begun = false;
    int m_sheets = 0;
};

Text withoutBlanks(Text text)
{
    std::erase(text, BlankUnit);
    return text;
}

// All characters that are printed. A line feed and the character before it are not.
Text withoutLineEnds(const Text &text)
{
    Text kept;
    std::size_t lineStart = 0;
    for (const char16_t unit : text) {
        if (unit != u'\n') {
            kept += unit;
            continue;
        }
        if (kept.size() > lineStart)
            kept.pop_back();
        lineStart = kept.size();
    }
    return kept;
}

constexpr std::size_t Measures = 8;

Sheet sheetOf(const unsigned char *measures)
{
    return {.width = measures[0] % 64,
            .height = measures[1] % 64,
            .lineHeight = 1 + measures[2] % 4,
            .top = measures[3] % 16,
            .bottom = measures[4] % 16,
            .left = measures[5] % 16,
            .right = measures[6] % 16,
            .toCorner = measures[7] >= 128};
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    if (size < Measures)
        return 0;
    const Sheet sheet = sheetOf(data);
    const int startY = data[Measures - 1] % 64;
    const Text text = textOf(bytesOf(data + Measures, size - Measures));

    FuzzPrinter printer(sheet);
    printer.CurrentY = startY * Unit;
    const PageFrame frame{
        sheet.top * Unit, sheet.bottom * Unit, sheet.left * Unit, sheet.right * Unit,
        sheet.toCorner ? PageFrame::Break::ToCorner : PageFrame::Break::ToMargins};
    printParagraphs(printer, text, frame);

    PlainSetter plain(sheet);
    plain.y = startY;
    plain.setText(text);
    require(printer.lines == plain.lines && printer.CurrentX == plain.x * Unit &&
            printer.CurrentY == plain.y * Unit);

    Text printed;
    for (const Line &line : printer.lines)
        printed += line.text;
    require(withoutBlanks(printed) == withoutBlanks(withoutLineEnds(text)));
    return 0;
}
