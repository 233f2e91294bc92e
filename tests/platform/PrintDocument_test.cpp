// SPDX-License-Identifier: GPL-3.0-or-later
// PDF files that cannot be written.
#include "platform/PrintDocument.h"

#include "runtime/ChildProcess.h"
#include "runtime/SmallDisk.h"
#include "runtime/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int CannotMount = 254;
constexpr int SomethingIsLeft = 253;

int errorOfPrinting(const QString &path, int sheets)
{
    return errorNumberOf([&] {
        const auto document =
            pdfDocument(path, {QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}),
                               600, u"list"_s});
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

} // namespace

class PrintDocument_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPlaceThatTakesNoFileIsRefused()
    {
        const TestFolder folder;
        QCOMPARE(errorOfPrinting(folder.path(u"list.pdf"_s), 1), int(NoRunTimeError));
        QVERIFY(folder.bytes(u"list.pdf"_s).startsWith("%PDF-"));
        QCOMPARE(errorOfPrinting(folder.path(u"none/list.pdf"_s), 1),
                 int(RunTimeError::PathNotFound));
        QCOMPARE(errorOfPrinting(folder.path(), 1), int(RunTimeError::PathFileAccess));
        QVERIFY(folder.setMode(0500));
        QCOMPARE(inChildProcess([&] {
                     return dropPrivileges() ? errorOfPrinting(folder.path(u"new.pdf"_s), 1) : 255;
                 }),
                 int(RunTimeError::PermissionDenied));
        QVERIFY(folder.setMode(0700));
        QCOMPARE(folder.names(), QStringList(u"list.pdf"_s));
    }

    void aFullDiskIsToldAndLeavesTheOldFile()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const int error = inChildProcess([&] {
            if (!mountSmallDisk(disk) || !writeTo(disk + u"list.pdf"_s, "old"))
                return CannotMount;
            const int number = errorOfPrinting(disk + u"list.pdf"_s, 200);
            const bool isAlone = QDir(disk).entryList(QDir::Files | QDir::Hidden).size() == 1;
            return isAlone && QFile(disk + u"list.pdf"_s).size() == 3 ? number : SomethingIsLeft;
        });
        if (error == CannotMount)
            QSKIP("No small disk can be mounted");
        QCOMPARE(error, int(RunTimeError::DiskFull));
    }
};

QTEST_MAIN(PrintDocument_test)

#include "PrintDocument_test.moc"
