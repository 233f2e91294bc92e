// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/DifLines.h"

#include "runtime/Windows1252.h"

Array<QString> difLines(QByteArrayView bytes)
{
    const QString text = fromWindows1252(bytes);
    const QLatin1Char lineFeed('\n');
    const QLatin1Char carriageReturn('\r');
    const QChar lineEnd = text.contains(carriageReturn) ? carriageReturn : lineFeed;
    std::vector<QString> lines;
    qsizetype start = 0;
    while (start < text.size()) {
        qsizetype end = text.indexOf(lineEnd, start);
        if (end < 0)
            end = text.size();
        lines.push_back(text.mid(start, end - start));
        start = end + 1;
        if (lineEnd == carriageReturn && start < text.size() && text[start] == lineFeed)
            ++start;
    }
    return Array<QString>(std::move(lines));
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
