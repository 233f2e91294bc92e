// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/cVocabList.h"

#include "core/ListTools.h"
#include "support/AllocatedBytes.h"

#include <QTest>
#include <QtEndian>

using namespace Qt::StringLiterals;
using Module1::gChanged;
using Module1::gFileName;

namespace {

// The bytes that this process has read from files.
qint64 bytesReadSoFar()
{
    const QByteArray io = readFile(u"/proc/self/io"_s);
    return io.left(io.indexOf('\n')).mid(int(qstrlen("rchar: "))).trimmed().toLongLong();
}

// A list in use before the next file is opened, with a deleted entry and an unfinished search.
void fill(cVocabList &list)
{
    addWords(list, {u"old"_s, u"two"_s, u"old"_s, u"four"_s});
    list.DeleteVocab();
    static_cast<void>(list.SearchWord(u"old"_s));
    list.CurrentWord(2);
}

} // namespace

class cVocabList_Opening_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { gChanged = true; }
    void cleanup() { gFileName.clear(); }

    void openingReplacesTheListAndGoesToEntryOne()
    {
        const TestFolder folder;
        gFileName =
            folder.write(u"list.lwx"_s, number16(2) + recordBytes("cat", "animal", "Meow.") +
                                            recordBytes("old", "", "s"));
        cVocabList list;
        fill(list);
        QVERIFY(list.OpenFile());
        QCOMPARE(wordsOf(list), (QStringList{u"cat"_s, u"old"_s}));
        QCOMPARE(entryText(list, 1), u"cat|animal|Meow."_s);
        QCOMPARE(entryText(list, 2), u"old||s"_s);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(!gChanged);
        QVERIFY(!hasSlot(list, 0));
        QVERIFY(!hasSlot(list, 3));
        QVERIFY(!list.Exist(u"two"_s, 1));
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1); // the search starts at the beginning
    }

    void withoutANameTheListStaysButForPositionSearchAndChanges()
    {
        cVocabList list;
        fill(list);
        QVERIFY(!list.OpenFile());
        QCOMPARE(wordsOf(list), (QStringList{u"old"_s, u"two"_s, u"old"_s}));
        QVERIFY(hasSlot(list, 4));
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(!gChanged);
        QCOMPARE(list.SearchWord(u"old"_s).toInt(), 1);
    }

    void anEmptyFileOpensAsAnEmptyListWithOneSlot_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("half a count") << "\x05"_ba;
        QTest::newRow("count 0") << number16(0);
        QTest::newRow("count 0 before records") << number16(0) + addedRecord("cat");
    }

    void anEmptyFileOpensAsAnEmptyListWithOneSlot()
    {
        QFETCH(QByteArray, bytes);
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, bytes);
        cVocabList list;
        fill(list);
        QVERIFY(list.OpenFile());
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(entryText(list, 1), u"||"_s);
        QVERIFY(!hasSlot(list, 0));
        QVERIFY(!hasSlot(list, 2));
        QVERIFY(!gChanged);
        QVERIFY(!list.Exist(u"old"_s, 1));
        QCOMPARE(folder.bytes(u"list.lwx"_s), bytes);
        addWords(list, {u"new"_s});
        QCOMPARE(wordsOf(list), QStringList{u"new"_s});
        QVERIFY(!hasSlot(list, 2));
    }

    void aMissingFileIsCreatedEmptyAndOpensAsAnEmptyList()
    {
        const TestFolder folder;
        gFileName = folder.path(u"new.lwx"_s);
        cVocabList list;
        fill(list);
        QVERIFY(list.OpenFile());
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(folder.names(), QStringList{u"new.lwx"_s});
        QCOMPARE(folder.bytes(u"new.lwx"_s), QByteArray());
    }

    void aFileShorterThanItsCountGivesEmptyTexts()
    {
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, number16(4) + addedRecord("cat"));
        cVocabList list;
        QVERIFY(list.OpenFile());
        QCOMPARE(wordsOf(list), (QStringList{u"cat"_s, QString(), QString(), QString()}));
        QCOMPARE(entryText(list, 4), u"||"_s);
    }

    void theLargestListRoundTrips()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        for (int i = 1; i <= cVocabList::MaxWords; ++i)
            addWords(list, {QString::number(i)});
        list.SaveFile();
        cVocabList opened;
        QVERIFY(opened.OpenFile());
        QCOMPARE(opened.NumWords().toInt(), 32000);
        QCOMPARE(wordsOf(opened), wordsOf(list));
        QVERIFY(opened.Exist(u"32000"_s, 1));
        QCOMPARE(opened.CurrentWord().toInt(), 32000);
    }

    // A file may hold more entries than can be added: as many as its 16-bit count allows.
    void aFileOfTheLargestCountOpensAndIsSavedAsTheSameBytes()
    {
        const int count = 32767;
        QByteArray bytes = number16(count);
        for (int i = 1; i <= count; ++i)
            bytes += addedRecord(QByteArray::number(i));
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, bytes);
        cVocabList list;
        QVERIFY(list.OpenFile());
        QVERIFY(list.fileIsWhole());
        QCOMPARE(list.NumWords().toInt(), count);
        QCOMPARE(entryText(list, count), u"32767|32767 def|32767 sen"_s);
        gFileName = folder.path(u"saved.lwx"_s);
        list.SaveFile();
        QVERIFY(folder.bytes(u"saved.lwx"_s) == bytes);

        addWords(list, {u"new"_s});
        QCOMPARE(list.NumWords().toInt(), count);
        QVERIFY(!list.Exist(u"new"_s, 1));
        QVERIFY(list.Exist(u"32767"_s, 1));
        // After the last entry the search starts at the beginning again.
        QCOMPARE(list.SearchWord(u"32767"_s).toInt(), count);
        QCOMPARE(list.SearchWord(u"32767"_s).toInt(), 0);
        QCOMPARE(list.SearchWord(u"1"_s).toInt(), 1);
        list.CurrentWord(count);
        list.DeleteVocab();
        QCOMPARE(list.NumWords().toInt(), count - 1);
    }

    void onlyTheRecordsAreRead_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("count");
        QTest::addColumn<qint64>("bytesOfRecords");
        QTest::newRow("no entry") << QByteArray(2, '\0') << 0 << qint64(2);
        const QByteArray two = number16(2) + addedRecord("cat") + addedRecord("dog");
        QTest::newRow("two entries") << two << 2 << qint64(two.size());
        QTest::newRow("empty entries to the end of the records")
            << number16(32767) << 32767 << qint64(2 + 32767 * 6);
        QTest::newRow("a count that is refused") << number16(-1) << -1 << qint64(2);
    }

    // A large file of another kind (a video) may begin with two zeros. It is opened as an empty
    // list, without reading the rest.
    void onlyTheRecordsAreRead()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(int, count);
        QFETCH(qint64, bytesOfRecords);
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, bytes);
        QVERIFY(QFile::resize(gFileName, 3'000'000'000));
        cVocabList list;
        const qint64 before = bytesReadSoFar();
        const RunTimeError::Number error = errorNumberOf([&] { return list.OpenFile(); });
        const qint64 ofTheMeasurement = 1000;
        QVERIFY(bytesReadSoFar() - before <=
                std::max<qint64>(1 << 16, 4 * bytesOfRecords) + ofTheMeasurement);
        QCOMPARE(error, count < 0 ? RunTimeError::SubscriptOutOfRange : NoRunTimeError);
        QCOMPARE(list.NumWords().toInt(), std::max(count, 0));
        QVERIFY(count < 0 || list.fileIsWhole());
    }

    void clearingOrOpeningAnotherListGivesTheMemoryBack_data()
    {
        QTest::addColumn<bool>("clear");
        QTest::newRow("clearing") << true;
        QTest::newRow("opening") << false;
    }

    void clearingOrOpeningAnotherListGivesTheMemoryBack()
    {
        QFETCH(bool, clear);
        const TestFolder folder;
        QByteArray bytes = number16(32000);
        for (int i = 1; i <= 32000; ++i)
            bytes += addedRecord(QByteArray::number(i));
        const QString large = folder.write(u"large.lwx"_s, bytes);
        const QString empty = folder.write(u"empty.lwx"_s, {});
        cVocabList list;
        const auto open = [&list](const QString &path) {
            gFileName = path;
            return list.OpenFile() && !list.Exist(u"not there"_s, 1);
        };
        QVERIFY(open(empty));
        const std::size_t before = allocatedBytes();
        QVERIFY(open(large));
        QVERIFY(allocatedBytes() > before + 3'000'000);
        if (clear)
            list.ClearList();
        else
            QVERIFY(open(empty));
        QVERIFY(allocatedBytes() < before + 50'000);
    }

    void textsRoundTrip()
    {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte)
            all.append(char(byte));
        const QStringList texts{QString(),
                                u" "_s,
                                u"line\r\nbreak\tand tab"_s,
                                u"déjà vu – 5 €"_s,
                                fromWindows1252(all),
                                QString(65'535, u'x')};
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        for (const QString &text : texts)
            for (const QString &other : texts)
                list.AddVocab(text, other, text);
        list.SaveFile();
        cVocabList opened;
        QVERIFY(opened.OpenFile());
        QCOMPARE(opened.NumWords().toInt(), 36);
        for (int i = 1; i <= 36; ++i)
            QCOMPARE(entryText(opened, i), entryText(list, i));
    }

    void charactersThatTheCodePageLacksComeBackAsQuestionMarks()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        list.AddVocab(u"αβ"_s, u"a😀b"_s, u"Ωmega"_s);
        list.SaveFile();
        QVERIFY(list.OpenFile());
        QCOMPARE(entryText(list, 1), u"??|a?b|?mega"_s);
    }

    void aFileThatCannotBeOpenedLeavesAllAsItWas_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<int>("error");
        const int subscript = RunTimeError::SubscriptOutOfRange;
        QTest::newRow("missing folder")
            << u"none/list.lwx"_s << QByteArray() << int(RunTimeError::PathNotFound);
        QTest::newRow("folder of that name")
            << u"folder"_s << QByteArray() << int(RunTimeError::PathFileAccess);
        for (const int count : {-1, -2, -32768})
            QTest::addRow("count %d", count)
                << u"list.lwx"_s << number16(count) + addedRecord("cat") << subscript;
    }

    void aFileThatCannotBeOpenedLeavesAllAsItWas()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(int, error);
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        if (!bytes.isEmpty())
            folder.write(name, bytes);
        gFileName = folder.path(name);
        for (const bool changed : {true, false}) {
            gChanged = changed;
            cVocabList list;
            fill(list);
            QCOMPARE(int(errorNumberOf([&] { return list.OpenFile(); })), error);
            QCOMPARE(gChanged, changed);
            QCOMPARE(gFileName, folder.path(name));
            QCOMPARE(list.CurrentWord().toInt(), 2);
            QCOMPARE(wordsOf(list), (QStringList{u"old"_s, u"two"_s, u"old"_s}));
            QCOMPARE(entryText(list, 4), u"four|four def|four sen"_s);
            QCOMPARE(list.SearchWord(u"old"_s).toInt(), 3);
        }
    }

    void aFileCutAnywhereOpensOrLeavesAllAsItWas()
    {
        const QByteArray whole =
            number16(3) + addedRecord("cat") + recordBytes("", "", "x") + addedRecord("dog");
        const TestFolder folder;
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            gFileName = folder.write(u"list.lwx"_s, whole.first(size));
            cVocabList list;
            QVERIFY(list.OpenFile());
            QCOMPARE(list.NumWords().toInt(), size < 2 ? 0 : 3);
            const int endOfCat = 2 + 3 * 2 + 3 + 7 + 7;
            if (size >= endOfCat)
                QCOMPARE(entryText(list, 1), u"cat|cat def|cat sen"_s);
            if (size < whole.size() && size >= 2)
                QVERIFY(entryText(list, 3) != u"dog|dog def|dog sen"_s);
        }
    }

    void twoThousandFilesOfRandomBytesOpenOrLeaveTheListAsItWas()
    {
        std::mt19937 random(2024);
        const TestFolder folder;
        cVocabList list;
        fill(list);
        int opened = 0;
        int refused = 0;
        for (unsigned i = 0; i < 2000; ++i) {
            QByteArray bytes = randomBytes(qsizetype(random() % 600), i);
            if (i % 50 != 0 && bytes.size() >= 2)
                bytes.replace(0, 2, number16(random() % 50));
            gFileName = folder.write(u"list.lwx"_s, bytes);
            const QStringList before = wordsOf(list);
            const int count = bytes.size() < 2 ? 0 : qFromLittleEndian<qint16>(bytes.constData());
            if (count < 0) {
                QCOMPARE(errorNumberOf([&] { return list.OpenFile(); }),
                         RunTimeError::SubscriptOutOfRange);
                QCOMPARE(wordsOf(list), before);
                ++refused;
            } else {
                QVERIFY(list.OpenFile());
                QCOMPARE(list.NumWords().toInt(), count);
                ++opened;
            }
            QCOMPARE(folder.bytes(u"list.lwx"_s), bytes);
        }
        QVERIFY(opened > 1900);
        QVERIFY(refused > 10);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Opening_test)
#include "cVocabList_Opening_test.moc"
