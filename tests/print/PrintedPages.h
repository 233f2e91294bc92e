// SPDX-License-Identifier: GPL-3.0-or-later
// Reads a printed PDF file with poppler's tools.
#pragma once

#include "print/OutputOf.h"

#include <QRectF>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <vector>

constexpr double PointsPerInch = 72;

// A word on a page; its box is in points from the top left corner of the sheet.
struct PrintedWord
{
    int page = 0; // from 1
    QSizeF sheet;
    QRectF box;
    QString text;
};

[[nodiscard]] inline std::vector<PrintedWord> wordsOnPages(const QString &file)
{
    const QString dash = QStringLiteral("-");
    QXmlStreamReader reader(
        outputOf(QStringLiteral("pdftotext"), {QStringLiteral("-bbox"), file, dash}));
    std::vector<PrintedWord> words;
    PrintedWord word;
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes all = reader.attributes();
        const auto number = [&all](const char *name) {
            return all.value(QLatin1String(name)).toDouble();
        };
        if (reader.name() == QLatin1String("page")) {
            ++word.page;
            word.sheet = {number("width"), number("height")};
        } else if (reader.name() == QLatin1String("word")) {
            word.box.setCoords(number("xMin"), number("yMin"), number("xMax"), number("yMax"));
            word.text = reader.readElementText();
            words.push_back(word);
        }
    }
    return words;
}

// The texts of the lines, "<b>bold</b>", "<i>italic</i>" or "regular".
[[nodiscard]] inline QStringList styledTexts(const QString &file)
{
    const QStringList options{QStringLiteral("-xml"), QStringLiteral("-i"),
                              QStringLiteral("-stdout"), file};
    const QString lines = QString::fromUtf8(outputOf(QStringLiteral("pdftohtml"), options));
    const QRegularExpression line(QStringLiteral("<text [^>]*>(.*)</text>"));
    QStringList texts;
    for (const QRegularExpressionMatch &match : line.globalMatch(lines))
        texts += match.captured(1);
    return texts;
}
