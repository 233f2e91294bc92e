// SPDX-License-Identifier: GPL-3.0-or-later
// Files that may not be opened, and folders in which no temporary file can be made.
#include "runtime/BinaryFile.h"

#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int NoPrivilegesToDrop = 254;

bool setMode(const QString &path, mode_t mode)
{
    return chmod(QFile::encodeName(path).constData(), mode) == 0;
}

ino_t fileNumber(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_ino : 0;
}

template <class Action> int errorNumberWithoutPrivileges(Action &&action)
{
    return inChildProcess(
        [&] { return dropPrivileges() ? int(errorNumberOf(action)) : NoPrivilegesToDrop; });
}

} // namespace

class BinaryFileRefused_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPipeIsRefusedWithoutWaiting()
    {
        const TestFolder folder;
        const QString path = folder.path(u"list.lwx"_s);
        QCOMPARE(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
        QCOMPARE(errorNumberInChildProcess([&] { return BinaryFile::read(path); }),
                 int(RunTimeError::PathFileAccess));
        QCOMPARE(errorNumberInChildProcess([&] { BinaryFile::overwrite(path, "abc"); }),
                 int(RunTimeError::PathFileAccess));
        struct stat status
        {
        };
        QCOMPARE(lstat(QFile::encodeName(path).constData(), &status), 0);
        QVERIFY(S_ISFIFO(status.st_mode));
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void aDeviceWithoutAnEndIsRefused()
    {
        QCOMPARE(errorNumberInChildProcess([] { return BinaryFile::read(u"/dev/zero"_s); }),
                 int(RunTimeError::PathFileAccess));
        const TestFolder folder;
        const QString link = folder.path(u"list.lwx"_s);
        QVERIFY(QFile::link(u"/dev/zero"_s, link));
        QCOMPARE(errorNumberInChildProcess([&] { return BinaryFile::read(link); }),
                 int(RunTimeError::PathFileAccess));
        QCOMPARE(errorNumberInChildProcess([&] { BinaryFile::overwrite(link, "abc"); }),
                 int(RunTimeError::PathFileAccess));
    }

    void aFileThatMayNotBeReadIsPermissionDenied()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123"_ba);
        QVERIFY(setMode(path, 0));
        QCOMPARE(errorNumberWithoutPrivileges([&] { return BinaryFile::read(path); }),
                 int(RunTimeError::PermissionDenied));
    }

    void aFileThatMayOnlyBeReadIsReadAndNotWritten()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123"_ba);
        QVERIFY(setMode(path, 0444));
        QCOMPARE(errorNumberWithoutPrivileges([&] { return BinaryFile::read(path); }), 0);
        QCOMPARE(errorNumberWithoutPrivileges([&] { BinaryFile::overwrite(path, "abc"); }),
                 int(RunTimeError::PermissionDenied));
        QCOMPARE(folder.bytes(u"list.lwx"_s), "0123"_ba);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void aNewFileInAFolderThatMayNotBeWrittenIsPermissionDenied()
    {
        const TestFolder folder;
        const QString path = folder.path(u"list.lwx"_s);
        QVERIFY(setMode(folder.path(), 0555));
        const int reading = errorNumberWithoutPrivileges([&] { return BinaryFile::read(path); });
        const int writing =
            errorNumberWithoutPrivileges([&] { BinaryFile::overwrite(path, "abc"); });
        QVERIFY(setMode(folder.path(), 0755));
        QCOMPARE(reading, int(RunTimeError::PermissionDenied));
        QCOMPARE(writing, int(RunTimeError::PermissionDenied));
        QCOMPARE(folder.names(), QStringList());
    }

    void aFileInAFolderThatMayNotBeWrittenIsWrittenInPlace()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123456789"_ba);
        QVERIFY(setMode(folder.path(), 0555));
        const int writing =
            errorNumberWithoutPrivileges([&] { BinaryFile::overwrite(path, "abc"); });
        QVERIFY(setMode(folder.path(), 0755));
        QCOMPARE(writing, 0);
        QCOMPARE(folder.bytes(u"list.lwx"_s), "abc3456789"_ba);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void withoutATemporaryFileTheFileIsWrittenInPlace_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("shorter") << "0123456789"_ba
                                 << "abc"_ba
                                 << "abc3456789"_ba;
        QTest::newRow("as long") << "0123"_ba
                                 << "abcd"_ba
                                 << "abcd"_ba;
        QTest::newRow("longer") << "01"_ba
                                << "abcd"_ba
                                << "abcd"_ba;
        QTest::newRow("over an empty file") << QByteArray() << "abcd"_ba
                                            << "abcd"_ba;
        const QByteArray large = randomBytes(200'000, 1);
        const QByteArray start = randomBytes(70'000, 2);
        QTest::newRow("large, shorter") << large << start << start + large.sliced(start.size());
        QTest::newRow("large, longer") << start << large << large;
    }

    void withoutATemporaryFileTheFileIsWrittenInPlace()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, after);
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, before);
        const ino_t number = fileNumber(path);
        QVERIFY(setMode(folder.path(), 0555));
        const int writing =
            errorNumberWithoutPrivileges([&] { BinaryFile::overwrite(path, content); });
        QVERIFY(setMode(folder.path(), 0755));
        QCOMPARE(writing, 0);
        QCOMPARE(folder.bytes(u"list.lwx"_s), after);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
        QCOMPARE(fileNumber(path), number);
    }

    // A file is written in place only if permissions forbid a temporary file. If there is no file
    // handle left for it, the old file stays as it is.
    void withoutAFileHandleTheOldFileStays()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123456789"_ba);
        QCOMPARE(errorNumberInChildProcess([&] {
                     showErrorsToSanitizer();
                     allowHandles(1);
                     BinaryFile::overwrite(path, "abc");
                 }),
                 int(RunTimeError::TooManyFiles));
        QCOMPARE(folder.bytes(u"list.lwx"_s), "0123456789"_ba);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void theLongestNameIsReplacedInOneStep()
    {
        const TestFolder folder;
        const QString name(255, u'n');
        QFile reader(folder.write(name, "0123456789"_ba));
        QVERIFY(reader.open(QIODevice::ReadOnly));
        BinaryFile::overwrite(folder.path(name), "abc");
        QCOMPARE(reader.readAll(), "0123456789"_ba);
        QCOMPARE(folder.bytes(name), "abc3456789"_ba);
        QCOMPARE(folder.names(), QStringList{name});
    }

    void aNewFileMayHaveTheLongestName()
    {
        const TestFolder folder;
        const QString name(255, u'n');
        BinaryFile::overwrite(folder.path(name), "abc");
        QCOMPARE(folder.bytes(name), "abc"_ba);
        QCOMPARE(folder.names(), QStringList{name});
    }
};

QTEST_GUILESS_MAIN(BinaryFileRefused_test)
#include "BinaryFileRefused_test.moc"
