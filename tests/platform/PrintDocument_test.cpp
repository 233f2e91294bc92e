// SPDX-License-Identifier: GPL-3.0-or-later
// Documents that cannot be written, or are given up.
#include "platform/PrintDocument.h"

#include "platform/PrintingToFile.h"
#include "runtime/ChildProcess.h"
#include "runtime/TestFiles.h"

#include <QPrinter>
#include <QTest>

#include <filesystem>

using namespace Qt::StringLiterals;

namespace {

const PrintedPaper Paper{QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, {}), 600,
                         u"list"_s};

// Lines of which no two are alike, more than a document keeps in memory.
void drawMuch(QPainter &sheet)
{
    for (int line = 0; line < 20'000; ++line)
        sheet.drawLine(line % 4987, line * line % 4999, line * 17 % 3001, line * 29 % 6007);
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

    void aJobThatIsGivenUpIsNotWrittenToItsEnd()
    {
        const TestFolder folder;
        const QByteArray before = qgetenv("TMPDIR");
        qputenv("TMPDIR", QFile::encodeName(folder.path()));
        const auto putBack = qScopeGuard(
            [&before] { before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before); });
        QPrinter printer;
        auto document = printerDocument(printer, Paper);
        QCOMPARE(folder.names().size(), 1);
        // A second name, since the document removes the first one.
        const QString job = folder.path(u"job"_s);
        std::filesystem::create_hard_link(folder.path(folder.names().constFirst()).toStdString(),
                                          job.toStdString());
        drawMuch(*document->nextSheet());
        QPainter *sheet = document->nextSheet();
        const qint64 written = QFileInfo(job).size();
        QVERIFY(written > 0);
        drawMuch(*sheet);
        document.reset();
        QCOMPARE(QFileInfo(job).size(), written);
        QCOMPARE(folder.names(), QStringList(u"job"_s));
    }
};

QTEST_MAIN(PrintDocument_test)

#include "PrintDocument_test.moc"
