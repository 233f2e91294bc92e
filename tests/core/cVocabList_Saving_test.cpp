// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/cVocabList.h"

#include "core/ListTools.h"

#include <QTest>

using namespace Qt::StringLiterals;
using Module1::gChanged;
using Module1::gFileName;

class cVocabList_Saving_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { gChanged = true; }
    void cleanup() { gFileName.clear(); }

    void oneEntryIsTheCountAndThreeTexts()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        list.AddVocab(u"cat"_s, u"a small animal"_s, u"The cat sat."_s);
        list.SaveFile();
        QCOMPARE(folder.bytes(u"list.lwx"_s),
                 QByteArray::fromHex("0100"
                                     "0300 636174"
                                     "0E00 6120736D616C6C20616E696D616C"
                                     "0C00 54686520636174207361742E"));
        QVERIFY(!gChanged);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
    }

    void savingLeavesTheListAndTheSearchAsTheyAre()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"a"_s, u"c"_s});
        list.DeleteVocab();
        QCOMPARE(list.SearchWord(u"a"_s).toInt(), 1);
        list.CurrentWord(2);
        list.SaveFile();
        QCOMPARE(wordsOf(list), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
        QCOMPARE(list.CurrentWord().toInt(), 2);
        QVERIFY(hasSlot(list, 4));
        QCOMPARE(list.SearchWord(u"a"_s).toInt(), 3);
        QCOMPARE(gFileName, folder.path(u"list.lwx"_s));
    }

    void theSlotThatADeletionLeftIsWrittenToo_data()
    {
        QTest::addColumn<int>("deleted");
        QTest::addColumn<QByteArray>("words");
        QTest::newRow("first") << 1 << "bcdd"_ba;
        QTest::newRow("second") << 2 << "acdd"_ba;
        QTest::newRow("last") << 4 << "abcd"_ba;
        QTest::newRow("behind the last") << 5 << "abcd"_ba;
    }

    void theSlotThatADeletionLeftIsWrittenToo()
    {
        QFETCH(int, deleted);
        QFETCH(QByteArray, words);
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        list.CurrentWord(deleted);
        list.DeleteVocab();
        list.SaveFile();
        QByteArray expected = number16(3);
        for (const char word : words)
            expected += addedRecord(QByteArray(1, word));
        QCOMPARE(folder.bytes(u"list.lwx"_s), expected);
        cVocabList opened;
        QVERIFY(opened.OpenFile());
        QCOMPARE(wordsOf(opened), wordsOf(list));
        QVERIFY(!hasSlot(opened, 4));
    }

    void twoDeletionsLeaveOneSlotAndAnAdditionNone()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        list.CurrentWord(2);
        list.DeleteVocab();
        list.DeleteVocab();
        list.SaveFile();
        QCOMPARE(folder.bytes(u"list.lwx"_s),
                 number16(2) + addedRecord("c") + addedRecord("d") + addedRecord("d"));
        addWords(list, {u"e"_s});
        gFileName = folder.path(u"other.lwx"_s);
        list.SaveFile();
        QCOMPARE(folder.bytes(u"other.lwx"_s),
                 number16(3) + addedRecord("c") + addedRecord("d") + addedRecord("e"));
    }

    void theFirstEntryAfterClearingHasNoPlaceholderInTheFile()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        list.ClearList();
        addWords(list, {u"a"_s});
        list.SaveFile();
        QCOMPARE(folder.bytes(u"list.lwx"_s), number16(1) + addedRecord("a"));
    }

    void aShorterListKeepsTheTailOfALongerFile()
    {
        const TestFolder folder;
        gFileName = folder.path(u"list.lwx"_s);
        cVocabList list;
        addWords(list, u"a b c d e f g h i j"_s.split(u' '));
        list.SaveFile();
        const QByteArray before = folder.bytes(u"list.lwx"_s);
        list.ClearList();
        addWords(list, {u"x"_s, u"y"_s, u"z"_s});
        list.SaveFile();
        const QByteArray start =
            number16(3) + addedRecord("x") + addedRecord("y") + addedRecord("z");
        QCOMPARE(folder.bytes(u"list.lwx"_s), start + before.sliced(start.size()));
        cVocabList opened;
        QVERIFY(opened.OpenFile());
        QCOMPARE(wordsOf(opened), (QStringList{u"x"_s, u"y"_s, u"z"_s}));
        QVERIFY(!hasSlot(opened, 4));
    }

    void anEmptyListWritesNothingAndStaysChanged()
    {
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, "old bytes"_ba);
        cVocabList list;
        list.SaveFile();
        list.ClearList();
        list.SaveFile();
        addWords(list, {u"a"_s});
        list.DeleteVocab();
        list.SaveFile();
        QCOMPARE(folder.bytes(u"list.lwx"_s), "old bytes"_ba);
        gFileName = folder.path(u"new.lwx"_s);
        list.SaveFile();
        gFileName = folder.path(u"none/new.lwx"_s);
        QCOMPARE(errorNumberOf([&] { list.SaveFile(); }), NoRunTimeError);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});
        QVERIFY(gChanged);
    }

    void anErrorLeavesTheListChangedAndSavingElsewhereWorks_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<int>("error");
        QTest::newRow("missing folder") << u"none/list.lwx"_s << int(RunTimeError::PathNotFound);
        QTest::newRow("folder of that name") << u"folder"_s << int(RunTimeError::PathFileAccess);
    }

    void anErrorLeavesTheListChangedAndSavingElsewhereWorks()
    {
        QFETCH(QString, name);
        QFETCH(int, error);
        const TestFolder folder;
        QVERIFY(QDir(folder.path()).mkdir(u"folder"_s));
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.CurrentWord(1);
        gFileName = folder.path(name);
        QCOMPARE(int(errorNumberOf([&] { list.SaveFile(); })), error);
        QVERIFY(gChanged);
        QCOMPARE(wordsOf(list), (QStringList{u"a"_s, u"b"_s}));
        QCOMPARE(list.CurrentWord().toInt(), 1);
        gFileName = folder.path(u"elsewhere.lwx"_s);
        list.SaveFile();
        QVERIFY(!gChanged);
        QCOMPARE(folder.bytes(u"elsewhere.lwx"_s),
                 number16(2) + addedRecord("a") + addedRecord("b"));
    }

    void aTextOfMoreThan65535BytesIsRefusedBeforeTheFileIsTouched_data()
    {
        QTest::addColumn<int>("field");
        QTest::newRow("word") << 0;
        QTest::newRow("definition") << 1;
        QTest::newRow("sentence") << 2;
    }

    void aTextOfMoreThan65535BytesIsRefusedBeforeTheFileIsTouched()
    {
        QFETCH(int, field);
        const TestFolder folder;
        gFileName = folder.write(u"list.lwx"_s, "old bytes"_ba);
        QStringList texts{u"w"_s, u"d"_s, u"s"_s};
        texts[field] = QString(65'536, u'é');
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.AddVocab(texts[0], texts[1], texts[2]);
        addWords(list, {u"c"_s});
        const QString report = reportOf([&] { list.SaveFile(); });
        QVERIFY2(report.startsWith(u"Run-time error '6':\n\nOverflow\n"_s), qPrintable(report));
        QVERIFY2(report.contains(u"word 3"_s), qPrintable(report));
        QVERIFY(gChanged);
        QCOMPARE(folder.bytes(u"list.lwx"_s), "old bytes"_ba);
        QCOMPARE(folder.names(), QStringList{u"list.lwx"_s});

        texts[field].chop(1);
        list.CurrentWord(3);
        list.Edit(texts[0], texts[1], texts[2]);
        list.SaveFile();
        QVERIFY(!gChanged);
        cVocabList opened;
        QVERIFY(opened.OpenFile());
        QCOMPARE(entryText(opened, 3), texts.join(u'|'));
        QCOMPARE(entryText(opened, 4), u"c|c def|c sen"_s);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Saving_test)
#include "cVocabList_Saving_test.moc"
