// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/BinaryFile.h"

#include "runtime/ErrorNumber.h"
#include "support/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

class BinaryFile_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readGivesTheWholeContent_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("zero bytes and line ends") << QByteArray("a\0\r\n\n\r\x1A\xFF", 8);
        QTest::newRow("five million bytes") << randomBytes(5'000'000, 1);
    }

    void readGivesTheWholeContent()
    {
        QFETCH(QByteArray, content);
        const TestFolder folder;
        const QString path = folder.write(u"list.lwx"_s, content);
        QCOMPARE(BinaryFile::read(path), content);
        QCOMPARE(folder.bytes(u"list.lwx"_s), content);
    }

    // Room to spare in a block of this size makes the system give new memory at each reading.
    void readingTakesNoMoreMemoryThanTheFile()
    {
        const TestFolder folder;
        const QByteArray content = randomBytes(5'000'000, 1);
        const QByteArray read = BinaryFile::read(folder.write(u"list.lwx"_s, content));
        QVERIFY(read.capacity() <= content.size() + 100);
    }

    void readingStopsAsSoonAsItIsEnough_data()
    {
        QTest::addColumn<int>("wanted");
        for (const int wanted : {0, 1, 65'536, 65'537, 262'145, 5'000'000, 9'000'000})
            QTest::addRow("%d bytes", wanted) << wanted;
    }

    void readingStopsAsSoonAsItIsEnough()
    {
        QFETCH(int, wanted);
        const TestFolder folder;
        const QByteArray content = randomBytes(9'000'000, 1);
        const QString path = folder.write(u"list.lwx"_s, content);
        const QByteArray start = BinaryFile::read(
            path, [wanted](QByteArrayView bytes) { return bytes.size() >= wanted; });
        QVERIFY(start.size() >= wanted);
        QVERIFY(start.size() <= std::max(1 << 16, 4 * wanted));
        QCOMPARE(start, content.first(start.size()));
    }

    void aFileIsReadWholeIfNothingIsEnough()
    {
        const TestFolder folder;
        const QByteArray content = randomBytes(9'000'000, 1);
        const QString path = folder.write(u"list.lwx"_s, content);
        QCOMPARE(BinaryFile::read(path, [](QByteArrayView) { return false; }), content);
    }

    void readingAMissingFileCreatesItEmpty()
    {
        const TestFolder folder;
        QCOMPARE(BinaryFile::read(folder.path(u"new.lwx"_s)), QByteArray());
        QCOMPARE(folder.names(), QStringList{u"new.lwx"_s});
        QCOMPARE(folder.bytes(u"new.lwx"_s), QByteArray());
    }

    void aMissingFolderIsPathNotFound()
    {
        const TestFolder folder;
        const QString path = folder.path(u"none/list.lwx"_s);
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(path); }), RunTimeError::PathNotFound);
        QCOMPARE(errorNumberOf([&] { BinaryFile::overwrite(path, "new"); }),
                 RunTimeError::PathNotFound);
        QCOMPARE(folder.names(), QStringList());
    }

    void aFileInTheFoldersPlaceIsRefused()
    {
        const TestFolder folder;
        folder.write(u"file"_s, "content"_ba);
        const QString path = folder.path(u"file/list.lwx"_s);
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(path); }), RunTimeError::PathNotFound);
        QCOMPARE(errorNumberOf([&] { BinaryFile::overwrite(path, "new"); }),
                 RunTimeError::PathNotFound);
        QCOMPARE(folder.bytes(u"file"_s), "content"_ba);
    }

    void aFolderInTheFilesPlaceIsAnAccessError()
    {
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"list.lwx"_s));
        const QString path = folder.path(u"list.lwx"_s);
        QCOMPARE(errorNumberOf([&] { return BinaryFile::read(path); }),
                 RunTimeError::PathFileAccess);
        QCOMPARE(errorNumberOf([&] { BinaryFile::overwrite(path, "new"); }),
                 RunTimeError::PathFileAccess);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void anErrorTellsThePathAndAReason()
    {
        const TestFolder folder;
        const QString path = folder.path(u"none/list.lwx"_s);
        const QStringList lines = reportOf([&] { return BinaryFile::read(path); }).split(u'\n');
        QCOMPARE(lines.size(), 4);
        QCOMPARE(lines[0], u"Run-time error '76':"_s);
        QCOMPARE(lines[1], QString());
        QCOMPARE(lines[2], u"Path not found"_s);
        const QString start = QDir::toNativeSeparators(path) + u": "_s;
        QVERIFY(lines[3].startsWith(start));
        QVERIFY(lines[3].size() > start.size());
    }

    void writesOverTheOldBytes_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("after");
        QTest::newRow("shorter keeps the tail") << "0123456789"_ba
                                                << "abc"_ba
                                                << "abc3456789"_ba;
        QTest::newRow("one byte shorter") << "0123"_ba
                                          << "abc"_ba
                                          << "abc3"_ba;
        QTest::newRow("as long") << "0123"_ba
                                 << "abcd"_ba
                                 << "abcd"_ba;
        QTest::newRow("longer") << "01"_ba
                                << "abcd"_ba
                                << "abcd"_ba;
        QTest::newRow("over an empty file") << QByteArray() << "abcd"_ba
                                            << "abcd"_ba;
        QTest::newRow("nothing") << "0123"_ba << QByteArray() << "0123"_ba;
        const QByteArray large = randomBytes(3'500'001, 2);
        const QByteArray start = randomBytes(70'000, 3);
        QTest::newRow("tail of several chunks")
            << large << start << start + large.sliced(start.size());
        QTest::newRow("large over small") << start << large << large;
    }

    void writesOverTheOldBytes()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, after);
        const TestFolder folder;
        BinaryFile::overwrite(folder.write(u"list.lwx"_s, before), content);
        QCOMPARE(folder.bytes(u"list.lwx"_s), after);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    // The rest of the old file is kept as a hole: it takes almost no space on the disk.
    void aHoleOfThreeGigabytesStaysAHole()
    {
        const TestFolder folder;
        const QString path = folder.path(u"list.lwx"_s);
        const qint64 size = 3'000'000'000;
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadWrite) && file.resize(size));
        QVERIFY(file.seek(2'000'000'000) && file.write("in the middle") == 13 && file.flush());
        BinaryFile::overwrite(path, "abc");
        struct stat status
        {
        };
        QCOMPARE(stat(QFile::encodeName(path).constData(), &status), 0);
        QCOMPARE(qint64(status.st_size), size);
        QVERIFY(status.st_blocks * 512 < 4'000'000);
        QFile written(path);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QCOMPARE(written.read(5), QByteArray("abc\0\0", 5));
        QVERIFY(written.seek(1'999'999'999));
        QCOMPARE(written.read(15), QByteArray("\0in the middle\0", 15));
    }

    void aNewFileHoldsTheContent()
    {
        const TestFolder folder;
        BinaryFile::overwrite(folder.path(u"new.lwx"_s), "abc");
        QCOMPARE(folder.bytes(u"new.lwx"_s), "abc"_ba);
        QCOMPARE(folder.names(), QStringList{u"new.lwx"_s});
    }

    void aNameWithBlanksAccentsAndManyDotsIsWritten()
    {
        const TestFolder folder;
        const QString name = u" mes mots. été 100%1.v2.lwx"_s;
        BinaryFile::overwrite(folder.path(name), "abc");
        QCOMPARE(BinaryFile::read(folder.path(name)), "abc"_ba);
        QCOMPARE(folder.names(), QStringList{name});
    }

    void aNameWithoutAFolderIsInTheWorkingFolder()
    {
        const TestFolder folder;
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(folder.path()));
        BinaryFile::overwrite(u"list.lwx"_s, "abc");
        BinaryFile::overwrite(u"list.lwx"_s, "x");
        const QByteArray content = BinaryFile::read(u"list.lwx"_s);
        QVERIFY(QDir::setCurrent(before));
        QCOMPARE(content, "xbc"_ba);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    // After a kill or a power cut the old file is whole, because its bytes are never overwritten.
    void theNewFileTakesTheOldOnesPlaceInOneStep()
    {
        const TestFolder folder;
        QFile reader(folder.write(u"list.lwx"_s, "0123456789"_ba));
        QVERIFY(reader.open(QIODevice::ReadOnly));
        BinaryFile::overwrite(folder.path(u"list.lwx"_s), "abc");
        QCOMPARE(reader.readAll(), "0123456789"_ba);
        QCOMPARE(folder.bytes(u"list.lwx"_s), "abc3456789"_ba);
    }
};

QTEST_GUILESS_MAIN(BinaryFile_test)
#include "BinaryFile_test.moc"
