// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDocument.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const PrintedPaper Paper{QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), 600,
                         u"list"_s};

// Draws lines that are all different, so that they hardly compress.
void drawMuch(QPainter &sheet)
{
    for (int line = 0; line < 2'000; ++line)
        sheet.drawLine(line % 4987, line * line % 4999, line * 17 % 3001, line * 29 % 6007);
}

} // namespace

class PrintDocument_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDocumentIsAPdfFile()
    {
        PrintDocument document(Paper);
        QVERIFY(!document.hasSheets());
        document.nextSheet();
        document.nextSheet();
        QVERIFY(document.hasSheets());
        const QByteArray pdf = document.finish();
        QVERIFY(pdf.startsWith("%PDF-"));
        QVERIFY(pdf.contains("/Count 2"));
        QVERIFY(pdf.endsWith("%%EOF\n"));
    }

    void aDocumentThatIsTooLargeGetsNoFurtherSheet()
    {
        PrintDocument document(Paper, 10'000);
        const auto drawSheet = [&document] {
            document.nextSheet();
            drawMuch(document.painter());
        };
        QCOMPARE(errorNumberOf(drawSheet), NoRunTimeError);
        // A sheet is written when the next one begins.
        QCOMPARE(errorNumberOf(drawSheet), NoRunTimeError);
        QCOMPARE(errorNumberOf(drawSheet), RunTimeError::OutOfMemory);
        QVERIFY(document.hasSheets());
    }
};

QTEST_MAIN(PrintDocument_test)

#include "PrintDocument_test.moc"
