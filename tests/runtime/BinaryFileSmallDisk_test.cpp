// SPDX-License-Identifier: GPL-3.0-or-later
// Writing to a full disk: a file system of 64 KiB that only the test sees.
#include "runtime/BinaryFile.h"

#include "runtime/ChildProcess.h"
#include "runtime/SmallDisk.h"
#include "support/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int CannotMount = 254;
const QString Name = u"list.lwx"_s;

// Uses up all files that the disk can hold.
bool allowNoNewFile(const QString &folder)
{
    return chmod(QFile::encodeName(folder).constData(), 0555) == 0 && dropPrivileges();
}

// Fills the disk to the last page.
void fillUp(const QString &path)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        while (file.write(QByteArray(512, 'f')) == 512) {
        }
}

} // namespace

class BinaryFileSmallDisk_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!canMountSmallDisk())
            QSKIP("This system lets no ordinary process mount a file system.");
    }

    void aFullDiskLeavesTheOldFileWhole_data()
    {
        QTest::addColumn<bool>("inPlace");
        QTest::addColumn<int>("oldSize");
        QTest::addColumn<int>("newSize");
        QTest::addColumn<bool>("full");
        for (const bool inPlace : {false, true}) {
            const char *kind = inPlace ? "in place" : "replaced";
            QTest::addRow("%s, small, disk full", kind) << inPlace << 4096 << 12'000 << true;
            QTest::addRow("%s, large, disk full", kind) << inPlace << 4096 << 30'000 << true;
            QTest::addRow("%s, large over small", kind) << inPlace << 100 << 70'000 << false;
            QTest::addRow("%s, larger than the disk", kind) << inPlace << 9'000 << 300'000 << false;
        }
        // The old file or the new one fits, but not both at the same time.
        QTest::newRow("replaced, two do not fit") << false << 40'000 << 40'000 << false;
        QTest::newRow("replaced, small with a long tail") << false << 40'000 << 10 << false;
    }

    void aFullDiskLeavesTheOldFileWhole()
    {
        QFETCH(bool, inPlace);
        QFETCH(int, oldSize);
        QFETCH(int, newSize);
        QFETCH(bool, full);
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const QByteArray before = randomBytes(oldSize, 1);
        const QByteArray content = randomBytes(newSize, 2);
        const int error = inChildProcess([&] {
            if (!mountSmallDisk(disk) || !writeTo(disk + Name, before))
                return CannotMount;
            if (full)
                fillUp(disk + u"filler"_s);
            if (inPlace && !allowNoNewFile(disk))
                return CannotMount;
            const int number = errorNumberOf([&] { BinaryFile::overwrite(disk + Name, content); });
            writeTo(
                outside.path(u"names"_s),
                QDir(disk).entryList(QDir::Files | QDir::Hidden, QDir::Name).join(u'\n').toUtf8());
            return QFile::copy(disk + Name, outside.path(u"found"_s)) ? number : 253;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(outside.bytes(u"found"_s), before);
        QCOMPARE(outside.bytes(u"names"_s), full ? "filler\n" + Name.toUtf8() : Name.toUtf8());
    }

    void aFileWhoseReplacementDoesNotFitStaysWhole()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const QByteArray before = randomBytes(40'000, 1);
        const int error = inChildProcess([&] {
            if (!mountSmallDisk(disk) || !writeTo(disk + Name, before))
                return CannotMount;
            const int number = errorNumberOf([&] { BinaryFile::replace(disk + Name, before); });
            const bool isAlone = QDir(disk).entryList(QDir::Files | QDir::Hidden).size() == 1;
            return isAlone && QFile::copy(disk + Name, outside.path(u"found"_s)) ? number : 253;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(outside.bytes(u"found"_s), before);
    }

    void aNewFileThatDoesNotFitIsNotLeftBehind()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const QByteArray content = randomBytes(SmallDiskSize + 1, 1);
        const int error = inChildProcess([&] {
            if (!mountSmallDisk(disk))
                return CannotMount;
            const int number = errorNumberOf([&] { BinaryFile::overwrite(disk + Name, content); });
            return QDir(disk).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                       ? number
                       : 253;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
    }

    // A disk without room for a temporary file is full, even if the new bytes fit into the old
    // file.
    void aDiskThatTakesNoFurtherFileIsFull()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const int error = inChildProcess([&] {
            // The folder itself and one file.
            if (!mountSmallDisk(disk, "size=64k,nr_inodes=2") || !writeTo(disk + Name, "old bytes"))
                return CannotMount;
            const int number = errorNumberOf([&] { BinaryFile::overwrite(disk + Name, "new"); });
            return QFile::copy(disk + Name, outside.path(u"found"_s)) ? number : 253;
        });
        QCOMPARE(error, int(RunTimeError::DiskFull));
        QCOMPARE(outside.bytes(u"found"_s), "old bytes"_ba);
    }

    void aDiskThatMayOnlyBeReadIsPermissionDenied()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const auto errorOf = [&](const auto &action) {
            return inChildProcess([&] {
                return mountSmallDisk(disk) && writeTo(disk + Name, "old") && makeReadOnly(disk)
                           ? int(errorNumberOf(action))
                           : CannotMount;
            });
        };
        const int denied = RunTimeError::PermissionDenied;
        QCOMPARE(errorOf([&] { return BinaryFile::read(disk + Name); }), int(NoRunTimeError));
        QCOMPARE(errorOf([&] { return BinaryFile::read(disk + u"new.lwx"_s); }), denied);
        QCOMPARE(errorOf([&] { BinaryFile::overwrite(disk + Name, "abc"); }), denied);
        QCOMPARE(errorOf([&] { BinaryFile::overwrite(disk + u"new.lwx"_s, "abc"); }), denied);
        QCOMPARE(errorOf([&] { BinaryFile::replace(disk + Name, "abc"); }), denied);
    }

    void aFileOfTheWholeDiskFitsInPlace()
    {
        const TestFolder outside;
        QVERIFY(QDir(outside.path()).mkdir(u"disk"_s));
        const QString disk = outside.path(u"disk/"_s);
        const QByteArray content = randomBytes(SmallDiskSize, 1);
        const int error = inChildProcess([&] {
            if (!mountSmallDisk(disk) || !writeTo(disk + Name, "old") || !allowNoNewFile(disk))
                return CannotMount;
            const int number = errorNumberOf([&] { BinaryFile::overwrite(disk + Name, content); });
            return QFile::copy(disk + Name, outside.path(u"found"_s)) ? number : 253;
        });
        QCOMPARE(error, int(NoRunTimeError));
        QCOMPARE(outside.bytes(u"found"_s), content);
    }
};

QTEST_GUILESS_MAIN(BinaryFileSmallDisk_test)
#include "BinaryFileSmallDisk_test.moc"
