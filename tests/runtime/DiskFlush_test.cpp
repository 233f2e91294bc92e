// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/DiskFlush.h"

#include "runtime/TestFiles.h"

#include <QTest>

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

class DiskFlush_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasWrittenIsInTheFile()
    {
        const TestFolder folder;
        QFile file(folder.path(u"list.lwx"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("abc"), 3);
        QVERIFY(flushToDisk(file));
        QCOMPARE(folder.bytes(u"list.lwx"_s), "abc"_ba);
    }

    void aFullDeviceRefusesWithTheSystemsReason()
    {
        QFile file(u"/dev/full"_s);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write("abc"), 3);
        errno = 0;
        QVERIFY(!flushToDisk(file));
        QCOMPARE(errno, ENOSPC);
    }

    void whatHasNoDiskBehindItRefusesWithTheSystemsReason()
    {
        int ends[2]{};
        QCOMPARE(pipe(ends), 0);
        QFile file;
        QVERIFY(file.open(ends[1], QIODevice::WriteOnly | QIODevice::Unbuffered,
                          QFileDevice::AutoCloseHandle));
        errno = 0;
        QVERIFY(!flushToDisk(file));
        QCOMPARE(errno, EINVAL);
        close(ends[0]);
    }

    void aMissingFolderIsPassedOver()
    {
        const TestFolder folder;
        flushFolderToDisk(folder.path(u"none"_s));
        flushFolderToDisk(folder.path());
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(DiskFlush_test)
#include "DiskFlush_test.moc"
