// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/DifLines.h"

#include "runtime/TextToNumber.h"
#include "runtime/Windows1252.h"

#include <algorithm>

namespace {

// Reads one line after the other.
class LineSplitter
{
public:
    explicit LineSplitter(QByteArrayView bytes) : m_bytes(bytes)
    {
        constexpr qsizetype searched = 1 << 16;
        const QByteArrayView start = bytes.first(std::min(searched, bytes.size()));
        m_endsAtLineFeed = !start.contains('\r') && start.contains('\n');
    }

    // Nothing at the end, and if the next line is too long for a DIF file.
    std::optional<QByteArrayView> next()
    {
        constexpr qsizetype longest = 1 << 24;
        if (m_start == m_bytes.size())
            return std::nullopt;
        const QByteArrayView rest = m_bytes.sliced(m_start);
        qsizetype length = rest.indexOf(m_endsAtLineFeed ? '\n' : '\r');
        m_isWhole = length >= 0;
        if (!m_isWhole)
            length = rest.size();
        m_isTooLong = length > longest;
        if (m_isTooLong)
            return std::nullopt;
        m_start += m_isWhole ? length + 1 : length;
        if (!m_endsAtLineFeed && m_start < m_bytes.size() && m_bytes[m_start] == '\n')
            ++m_start;
        return rest.first(length);
    }

    // The position after the last line returned and its end.
    [[nodiscard]] qsizetype position() const { return m_start; }
    // Whether the end of the last line returned is in the bytes.
    [[nodiscard]] bool isWhole() const { return m_isWhole; }
    [[nodiscard]] bool isTooLong() const { return m_isTooLong; }

private:
    QByteArrayView m_bytes;
    qsizetype m_start = 0;
    bool m_endsAtLineFeed = false;
    bool m_isWhole = true;
    bool m_isTooLong = false;
};

// Goes through the lines as an import does, to find the last one that the import reads. This does
// not depend on a person's answers or on mistakes in the values.
class ImportWalk
{
public:
    // To be called with one line after the other. True at the last one that the import reads.
    [[nodiscard]] bool endsAt(QByteArrayView line)
    {
        ++m_line;
        if (m_line == 5)
            m_vectors = line;
        if (m_line == 8)
            return !hasData(line);
        if (m_line < m_next)
            return false;
        if (m_line > FirstOfData && line == QByteArrayView("EOD"))
            return true;
        m_next += line == QByteArrayView("BOT") ? 2 * m_valuesRead : 1;
        return false;
    }

private:
    static constexpr int FirstOfData = 14;

    // A count that is not a number also ends the import, with an error.
    bool hasData(QByteArrayView tuples)
    {
        try {
            m_valuesRead = difValuesRead(difTuples(fromWindows1252(tuples)));
            return difVectors(fromWindows1252(m_vectors)) >= 1;
        } catch (const RunTimeError &) {
            return false;
        }
    }

    int m_line = 0;
    int m_next = FirstOfData; // the next line that is read
    int m_valuesRead = 1;
    QByteArrayView m_vectors;
};

} // namespace

Array<QString> difLines(QByteArrayView bytes)
{
    std::vector<QString> lines;
    LineSplitter splitter(bytes);
    while (const auto line = splitter.next())
        lines.push_back(fromWindows1252(*line));
    return Array<QString>(std::move(lines));
}

std::optional<qsizetype> difEnd(QByteArrayView start)
{
    LineSplitter splitter(start);
    ImportWalk walk;
    while (const auto line = splitter.next())
        if (splitter.isWhole() && walk.endsAt(*line))
            return splitter.position();
    return splitter.isTooLong() ? std::optional(splitter.position()) : std::nullopt;
}

double difVectors(const QString &line)
{
    return toNumber(difCount(line));
}

Integer difTuples(const QString &line)
{
    return toInteger(difCount(line));
}

int difValuesRead(Integer tuples)
{
    return tuples == 2 || tuples == 3 ? 2 : 1;
}

QString difCount(const QString &line)
{
    const qsizetype comma = line.indexOf(QLatin1Char(','));
    const QString count = comma < 0 ? QString() : line.mid(comma + 1);
    return count.isEmpty() ? QStringLiteral("0") : count;
}

QString difValue(const QString &line)
{
    if (line.size() < 2)
        throw RunTimeError(RunTimeError::InvalidProcedureCall);
    return line.mid(1, line.size() - 2);
}
