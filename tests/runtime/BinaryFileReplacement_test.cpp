// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/BinaryFile.h"

#include "runtime/ErrorNumber.h"
#include "support/TestFiles.h"

#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

class BinaryFileReplacement_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingOfAnOldFileStays_data()
    {
        QTest::addColumn<QByteArray>("old");
        QTest::newRow("longer") << "0123456789"_ba;
        QTest::newRow("shorter") << "01"_ba;
        QTest::newRow("empty") << ""_ba;
    }

    void nothingOfAnOldFileStays()
    {
        QFETCH(QByteArray, old);
        const TestFolder folder;
        const QString path = folder.write(u"list.pdf"_s, old);
        BinaryFile::replace(path, "abcde");
        QCOMPARE(folder.bytes(u"list.pdf"_s), "abcde"_ba);
        QCOMPARE(folder.names(), QStringList(u"list.pdf"_s));
    }

    void aMissingFileIsMade()
    {
        const TestFolder folder;
        BinaryFile::replace(folder.path(u"list.pdf"_s), "abc");
        QCOMPARE(folder.bytes(u"list.pdf"_s), "abc"_ba);
    }

    void thePermissionsStay()
    {
        const TestFolder folder;
        const QString path = folder.write(u"list.pdf"_s, "old");
        QCOMPARE(chmod(QFile::encodeName(path).constData(), 0640), 0);
        BinaryFile::replace(path, "new");
        struct stat status
        {
        };
        QCOMPARE(stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(status.st_mode & 07777, mode_t(0640));
    }

    void aSymbolicLinkStaysAndItsFileIsReplaced()
    {
        const TestFolder folder;
        const QString target = folder.write(u"target.pdf"_s, "old");
        const QString link = folder.path(u"link.pdf"_s);
        QVERIFY(QFile::link(target, link));
        BinaryFile::replace(link, "abc");
        QCOMPARE(folder.bytes(u"target.pdf"_s), "abc"_ba);
        QVERIFY(QFileInfo(link).isSymLink());
    }

    void aPlaceThatTakesNoFileIsRefused()
    {
        const TestFolder folder;
        QCOMPARE(errorNumberOf([&] { BinaryFile::replace(folder.path(u"none/a.pdf"_s), "a"); }),
                 RunTimeError::PathNotFound);
        QCOMPARE(errorNumberOf([&] { BinaryFile::replace(folder.path(), "a"); }),
                 RunTimeError::PathFileAccess);
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(BinaryFileReplacement_test)
#include "BinaryFileReplacement_test.moc"
