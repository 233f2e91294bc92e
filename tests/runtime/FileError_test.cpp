// SPDX-License-Identifier: GPL-3.0-or-later
// The error numbers of failed system calls: the table itself, and each row on a real file system.
// The full disk is tested in BinaryFileSmallDisk_test.
#include "runtime/FileError.h"

#include "runtime/BinaryFile.h"
#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

class FileError_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachReasonHasItsNumber_data()
    {
        QTest::addColumn<int>("reason");
        QTest::addColumn<int>("number");
        const auto row = [](int number, std::initializer_list<int> reasons) {
            for (const int reason : reasons)
                QTest::addRow("%s", qPrintable(qt_error_string(reason))) << reason << number;
        };
        row(52, {ENAMETOOLONG, EINVAL, EILSEQ});
        row(53, {ENOENT});
        row(57, {EIO});
        row(61, {ENOSPC, EDQUOT, EFBIG});
        row(67, {EMFILE, ENFILE});
        row(70, {EACCES, EPERM, EROFS});
        row(75, {EBUSY, EISDIR, ELOOP, ENODEV, ENOMEM, ENXIO, ETXTBSY, EXDEV, ESTALE, 0});
        row(76, {ENOTDIR});
    }

    void eachReasonHasItsNumber()
    {
        QFETCH(int, reason);
        QTEST(int(fileError(reason)), "number");
    }

    void theReportHasThePathAndTheSystemsReason()
    {
        QCOMPARE(reportOf([] { throwFileError(EIO, u"/lists/a.lwx"_s); }),
                 u"Run-time error '57':\n\nDevice I/O error\n/lists/a.lwx: Input/output error"_s);
        QCOMPARE(reportOf([] { throwFileError(EMFILE, u"/lists/a.lwx"_s, u"Close some"_s); }),
                 u"Run-time error '67':\n\nToo many files\n"
                 "/lists/a.lwx: Too many open files. Close some"_s);
    }

    void aMissingFileAndAMissingFolderAreToldApart()
    {
        const TestFolder folder;
        QCOMPARE(errorNumberOf([&] { throwFileError(ENOENT, folder.path(u"list.lwx"_s)); }),
                 RunTimeError::FileNotFound);
        QCOMPARE(errorNumberOf([&] { throwFileError(ENOENT, folder.path(u"none/list.lwx"_s)); }),
                 RunTimeError::PathNotFound);
    }

    void eachPlaceHasItsErrorForReadingAndWriting_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("number");
        QTest::newRow("a name that is too long") << QString(256, u'n') << 52;
        QTest::newRow("a folder's name that is too long")
            << QString(256, u'n') + u"/list.lwx"_s << 52;
        QTest::newRow("a path that is too long") << u"a/"_s.repeated(2048) + u"list.lwx"_s << 52;
        QTest::newRow("a zero in the name") << u"list"_s + QChar(0) + u".lwx"_s << 52;
        QTest::newRow("a folder") << u"folder"_s << 75;
        QTest::newRow("a pipe") << u"pipe"_s << 75;
        QTest::newRow("a link to itself") << u"ring"_s << 75;
        QTest::newRow("no folder") << u"none/list.lwx"_s << 76;
        QTest::newRow("a file as folder") << u"file/list.lwx"_s << 76;
        QTest::newRow("a folder that may not be entered") << u"closed/list.lwx"_s << 70;
        QTest::newRow("a file that may not be opened") << u"closed file"_s << 70;
    }

    void eachPlaceHasItsErrorForReadingAndWriting()
    {
        QFETCH(QString, name);
        QFETCH(int, number);
        const TestFolder folder;
        const auto systemName = [&](const QString &file) {
            return QFile::encodeName(folder.path(file));
        };
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        QCOMPARE(mkfifo(systemName(u"pipe"_s), 0600), 0);
        QCOMPARE(symlink("ring", systemName(u"ring"_s)), 0);
        folder.write(u"file"_s, "bytes"_ba);
        folder.write(u"closed file"_s, "bytes"_ba);
        QCOMPARE(chmod(systemName(u"closed file"_s), 0), 0);
        QVERIFY(QDir(folder.path()).mkdir(u"closed"_s));
        QCOMPARE(chmod(systemName(u"closed"_s), 0), 0);

        const QString path = folder.path(name);
        const auto errorOf = [](const auto &action) {
            return inChildProcess(
                [&] { return dropPrivileges() ? int(errorNumberOf(action)) : 254; });
        };
        const QStringList names = folder.names();
        QCOMPARE(errorOf([&] { return BinaryFile::read(path); }), number);
        QCOMPARE(errorOf([&] { BinaryFile::overwrite(path, "abc"); }), number);
        QCOMPARE(folder.names(), names);
        QCOMPARE(chmod(systemName(u"closed"_s), 0700), 0);
    }

    void aFileThatMustBeThereIsNotFound()
    {
        const TestFolder folder;
        const QString path = folder.path(u"list.lwx"_s);
        QCOMPARE(errorNumberOf(
                     [&] { return BinaryFile::read(path, {}, BinaryFile::Missing::IsAnError); }),
                 RunTimeError::FileNotFound);
        QCOMPARE(folder.names(), QStringList());
    }

    // Address zero of a process cannot be read.
    void aDeviceThatCannotBeReadIsADeviceError()
    {
        QCOMPARE(errorNumberOf([] { return BinaryFile::read(u"/proc/self/mem"_s); }),
                 RunTimeError::DeviceIoError);
    }

    void withoutAFileHandleThereAreTooManyFiles()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "old"_ba);
        const auto errorOf = [](const auto &action) {
            return errorNumberInChildProcess([&] {
                allowHandles(0);
                return action();
            });
        };
        QCOMPARE(errorOf([&] { return BinaryFile::read(path); }), int(RunTimeError::TooManyFiles));
        QCOMPARE(errorOf([&] {
                     BinaryFile::overwrite(path, "abc");
                     return 0;
                 }),
                 int(RunTimeError::TooManyFiles));
        QCOMPARE(folder.bytes(u"list.lwx"_s), "old"_ba);
    }
};

QTEST_GUILESS_MAIN(FileError_test)
#include "FileError_test.moc"
