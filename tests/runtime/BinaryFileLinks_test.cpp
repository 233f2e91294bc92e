// SPDX-License-Identifier: GPL-3.0-or-later
// Symbolic links and permissions around files that are read and written.
#include "runtime/BinaryFile.h"

#include "runtime/ErrorNumber.h"
#include "runtime/UnfinishedFile.h"
#include "support/TestFiles.h"

#include <QTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

bool makeLink(const QString &path, const QString &target)
{
    return symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) == 0;
}

int permissionsOf(const QString &path)
{
    struct stat status
    {
    };
    return stat(QFile::encodeName(path).constData(), &status) == 0 ? int(status.st_mode & 0777)
                                                                   : -1;
}

} // namespace

class BinaryFileLinks_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLinkIsWrittenThrough_data()
    {
        QTest::addColumn<QString>("target");
        QTest::newRow("relative") << u"folder/real.lwx"_s;
        QTest::newRow("dot-dot") << u"folder/../folder/real.lwx"_s;
        QTest::newRow("through a linked folder") << u"folder link/real.lwx"_s;
        QTest::newRow("of a link") << u"folder/link"_s;
    }

    void aLinkIsWrittenThrough()
    {
        QFETCH(QString, target);
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        folder.write(u"folder/real.lwx"_s, "0123456789"_ba);
        QVERIFY(makeLink(folder.path(u"folder/link"_s), u"real.lwx"_s));
        QVERIFY(makeLink(folder.path(u"folder link"_s), u"folder"_s));
        QVERIFY(makeLink(folder.path(u"list.lwx"_s), target));
        QCOMPARE(BinaryFile::read(folder.path(u"list.lwx"_s)), "0123456789"_ba);
        BinaryFile::overwrite(folder.path(u"list.lwx"_s), "abc");
        QCOMPARE(folder.bytes(u"folder/real.lwx"_s), "abc3456789"_ba);
        QVERIFY(QFileInfo(folder.path(u"list.lwx"_s)).isSymLink());
        QVERIFY(QFileInfo(folder.path(u"folder/link"_s)).isSymLink());
        QVERIFY(!QFileInfo(folder.path(u"folder/real.lwx"_s)).isSymLink());
        QCOMPARE(folder.names(), (QStringList{u"folder"_s, u"folder link"_s, u"list.lwx"_s}));
        QCOMPARE(QDir(folder.path(u"folder"_s)).entryList(QDir::Files | QDir::Hidden).size(), 2);
    }

    void anAbsoluteLinkIsWrittenThrough()
    {
        const TestFolder folder;
        const QString real = folder.write(u"real.lwx"_s, "0123456789"_ba);
        QVERIFY(makeLink(folder.path(u"list.lwx"_s), real));
        BinaryFile::overwrite(folder.path(u"list.lwx"_s), "abc");
        QCOMPARE(folder.bytes(u"real.lwx"_s), "abc3456789"_ba);
        QVERIFY(QFileInfo(folder.path(u"list.lwx"_s)).isSymLink());
    }

    // In a linked folder ".." is the parent of the real folder, as the system reads it, and not
    // the folder that the link lies in.
    void aLinkUpwardsInsideALinkedFolderIsWrittenThrough()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkpath(u"deep/inner"_s));
        folder.write(u"deep/real.lwx"_s, "0123456789"_ba);
        QVERIFY(makeLink(folder.path(u"deep/inner/list.lwx"_s), u"../real.lwx"_s));
        QVERIFY(makeLink(folder.path(u"short"_s), u"deep/inner"_s));
        BinaryFile::overwrite(folder.path(u"short/list.lwx"_s), "abc");
        QCOMPARE(folder.names(), (QStringList{u"deep"_s, u"short"_s}));
        QCOMPARE(folder.bytes(u"deep/real.lwx"_s), "abc3456789"_ba);
        QVERIFY(QFileInfo(folder.path(u"deep/inner/list.lwx"_s)).isSymLink());
    }

    void aDanglingLinkGetsItsFile()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        QVERIFY(makeLink(folder.path(u"link"_s), u"folder/real.lwx"_s));
        QVERIFY(makeLink(folder.path(u"list.lwx"_s), u"link"_s));
        BinaryFile::overwrite(folder.path(u"list.lwx"_s), "abc");
        QCOMPARE(folder.bytes(u"folder/real.lwx"_s), "abc"_ba);
        QVERIFY(QFileInfo(folder.path(u"list.lwx"_s)).isSymLink());
        QVERIFY(QFileInfo(folder.path(u"link"_s)).isSymLink());
    }

    void readingADanglingLinkCreatesItsFileEmpty()
    {
        const TestFolder folder;
        QVERIFY(makeLink(folder.path(u"list.lwx"_s), u"real.lwx"_s));
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(folder.path(u"list.lwx"_s)); }),
                 NoRunTimeError);
        QCOMPARE(folder.names(), (QStringList{u"list.lwx"_s, u"real.lwx"_s}));
        QCOMPARE(folder.bytes(u"real.lwx"_s), QByteArray());
    }

    void aLinkIntoAMissingFolderIsPathNotFound()
    {
        const TestFolder folder;
        const QString path = folder.path(u"list.lwx"_s);
        QVERIFY(makeLink(path, u"none/real.lwx"_s));
        QCOMPARE(errorNumberOf([&] { BinaryFile::overwrite(path, "abc"); }),
                 RunTimeError::PathNotFound);
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(path); }), RunTimeError::PathNotFound);
        QVERIFY(QFileInfo(path).isSymLink());
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void aLinkToAFolderIsAnAccessError()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        const QString path = folder.path(u"list.lwx"_s);
        QVERIFY(makeLink(path, u"folder"_s));
        QCOMPARE(errorNumberOf([&] { BinaryFile::overwrite(path, "abc"); }),
                 RunTimeError::PathFileAccess);
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(path); }),
                 RunTimeError::PathFileAccess);
    }

    void linksInARingAreRefusedAndStay()
    {
        const TestFolder folder;
        const QString path = folder.path(u"a.lwx"_s);
        QVERIFY(makeLink(path, u"b.lwx"_s));
        QVERIFY(makeLink(folder.path(u"b.lwx"_s), u"a.lwx"_s));
        QVERIFY(errorNumberOf([&] { BinaryFile::overwrite(path, "abc"); }) != NoRunTimeError);
        QVERIFY(errorNumberOf([&] { return BinaryFile::read(path); }) != NoRunTimeError);
        QVERIFY(QFileInfo(path).isSymLink());
        QVERIFY(QFileInfo(folder.path(u"b.lwx"_s)).isSymLink());
        QCOMPARE(folder.names(), (QStringList{u"a.lwx"_s, u"b.lwx"_s}));
    }

    void permissionsAreKept_data()
    {
        QTest::addColumn<int>("permissions");
        for (const int permissions : {0600, 0640, 0644, 0666, 0755})
            QTest::addRow("%o", unsigned(permissions)) << permissions;
    }

    void permissionsAreKept()
    {
        QFETCH(int, permissions);
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123456789"_ba);
        QCOMPARE(chmod(QFile::encodeName(path).constData(), mode_t(permissions)), 0);
        BinaryFile::overwrite(path, "abc");
        QCOMPARE(permissionsOf(path), permissions);
        QCOMPARE(folder.bytes(u"list.lwx"_s), "abc3456789"_ba);
    }

    // Other users must not read a private list while it is being saved.
    void theTemporaryFileHasNoMorePermissionsThanTheOldFile()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, "0123456789"_ba);
        QCOMPARE(chmod(QFile::encodeName(path).constData(), 0600), 0);
        const SystemFile old(QFile::encodeName(path), O_RDWR);
        UnfinishedFile temporary(path, &old);
        QCOMPARE(temporary.file().status().st_mode & 0777, mode_t(0600));
    }

    void aNewFileHasTheUsualPermissions()
    {
        const TestFolder folder;
        const mode_t before = umask(027);
        BinaryFile::overwrite(folder.path(u"written.lwx"_s), "abc");
        static_cast<void>(BinaryFile::read(folder.path(u"read.lwx"_s)));
        umask(before);
        QCOMPARE(permissionsOf(folder.path(u"written.lwx"_s)), 0640);
        QCOMPARE(permissionsOf(folder.path(u"read.lwx"_s)), 0640);
    }
};

QTEST_GUILESS_MAIN(BinaryFileLinks_test)
#include "BinaryFileLinks_test.moc"
