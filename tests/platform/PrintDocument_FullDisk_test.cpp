// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/PrintDocument.h"

#include "platform/PrintingToFile.h"
#include "runtime/ChildProcess.h"
#include "runtime/SmallDisk.h"
#include "runtime/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int CannotMount = 254;
constexpr int SomethingIsLeft = 253;

} // namespace

class PrintDocument_FullDisk_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
        QCOMPARE(error, int(RunTimeError::DiskFull));
    }
};

QTEST_MAIN(PrintDocument_FullDisk_test)

#include "PrintDocument_FullDisk_test.moc"
