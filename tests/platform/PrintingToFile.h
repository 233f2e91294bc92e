// SPDX-License-Identifier: GPL-3.0-or-later
// A PDF document of some sheets on its way into a file.
#pragma once

#include "platform/PrintDocument.h"
#include "runtime/ErrorNumber.h"

#include <QPainter>

// The number of the RunTimeError that it ends with.
inline int errorOfPrinting(const QString &path, int sheets)
{
    return errorNumberOf([&] {
        const auto document =
            pdfDocument(path, {QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}),
                               600, QStringLiteral("list")});
        for (int i = 0; i < sheets; ++i) {
            QPainter *sheet = document->nextSheet();
            // Lines of which no two are alike, so that they cannot be made smaller.
            for (int line = 0; line < 200; ++line)
                sheet->drawLine(i * 7 + line, line * line % 4999, line * 17 % 3001, i + line * 3);
        }
        document->finish();
        return 0;
    });
}
