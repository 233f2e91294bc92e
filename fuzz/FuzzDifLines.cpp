// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a DIF file. Its lines are the same as when they are split off one by one.
#include "Fuzzing.h"
#include "runtime/Windows1252.h"
#include "transfer/DifLines.h"

#include <string_view>

namespace {

void requireLines(QByteArrayView bytes, const std::vector<std::string_view> &expected)
{
    const Array<QString> lines = difLines(bytes);
    require(lines.size() == int(expected.size()));
    for (int i = 1; i <= lines.size(); ++i)
        require(lines(i) == fromWindows1252(expected[std::size_t(i - 1)]));
}

// A line ends at CR or CR LF; in a file without any CR at LF.
std::vector<std::string_view> linesOneByOne(std::string_view bytes)
{
    const char lineEnd = bytes.find('\r') == std::string_view::npos ? '\n' : '\r';
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const std::size_t end = std::min(bytes.find(lineEnd), bytes.size());
        lines.push_back(bytes.substr(0, end));
        const bool isPair = bytes.substr(end, 2) == "\r\n";
        bytes.remove_prefix(std::min(end + (isPair ? 2 : 1), bytes.size()));
    }
    return lines;
}

// What the reader takes from a line: the count after the first comma, the text without its quotes.
void checkLine(std::string_view line)
{
    const QString text = fromWindows1252(line);
    const std::size_t comma = std::min(line.find(','), line.size());
    require(difCount(text) ==
            (comma + 1 < line.size() ? text.mid(qsizetype(comma) + 1) : QStringLiteral("0")));
    if (line.size() >= 2)
        require(difValue(text) == text.mid(1).chopped(1));
}

void checkShortLine(std::string_view line)
{
    try {
        (void)difValue(fromWindows1252(line));
        require(false);
    } catch (const RunTimeError &error) {
        require(error.number() == RunTimeError::InvalidProcedureCall);
    }
}

// If a start of the file with the same kind of line ends has the end of the data, it is the
// end in the whole file too.
void checkEnd(QByteArrayView start, QByteArrayView bytes)
{
    const std::optional<qsizetype> end = difEnd(start);
    require(!end || (*end >= 0 && *end <= start.size()));
    if (end && start.contains('\r') == bytes.contains('\r'))
        require(difEnd(bytes) == end ||
                (*end == start.size() && start.back() == '\r' && difEnd(bytes) == *end + 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const std::vector<std::string_view> lines = linesOneByOne({bytes.data(), size});
    requireLines(bytes, lines);
    for (const std::string_view line : lines)
        checkLine(line);
    if (size > 0)
        checkEnd(bytes.first(qsizetype(size * data[size - 1] / 256)), bytes);
    // Only one, because exceptions are slow.
    const auto isShort = [](std::string_view line) { return line.size() < 2; };
    const auto shortLine = std::find_if(lines.begin(), lines.end(), isShort);
    if (shortLine != lines.end())
        checkShortLine(*shortLine);
    return 0;
}
