// SPDX-License-Identifier: GPL-3.0-or-later
// PDF files that cannot be written.
#include "platform/PrintDocument.h"

#include "platform/PrintingToFile.h"
#include "runtime/ChildProcess.h"
#include "runtime/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

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
};

QTEST_MAIN(PrintDocument_test)

#include "PrintDocument_test.moc"
