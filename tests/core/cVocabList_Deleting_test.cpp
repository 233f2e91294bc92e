// SPDX-License-Identifier: GPL-3.0-or-later
// Deleting and editing entries.
#include "core/cVocabList.h"

#include "core/ListTools.h"

#include <QTest>

using namespace Qt::StringLiterals;

class cVocabList_Deleting_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void deletingClosesTheGapAndMovesToTheEntryBefore_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("left");
        QTest::addColumn<QString>("slotBehind");
        QTest::addColumn<int>("current");
        QTest::newRow("first") << 1 << u"bcde"_s << u"e"_s << 1;
        QTest::newRow("second") << 2 << u"acde"_s << u"e"_s << 1;
        QTest::newRow("third of five") << 3 << u"abde"_s << u"e"_s << 2;
        QTest::newRow("last but one") << 4 << u"abce"_s << u"e"_s << 3;
        QTest::newRow("last") << 5 << u"abcd"_s << u"e"_s << 4;
        QTest::newRow("behind the last") << 6 << u"abcd"_s << u"e"_s << 5;
        QTest::newRow("far behind") << 32767 << u"abcd"_s << u"e"_s << 32766;
    }

    void deletingClosesTheGapAndMovesToTheEntryBefore()
    {
        QFETCH(int, position);
        QFETCH(QString, left);
        QFETCH(QString, slotBehind);
        QFETCH(int, current);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s});
        list.CurrentWord(position);
        list.DeleteVocab();
        QCOMPARE(wordsOf(list).join(QString()), left);
        QCOMPARE(list.NumWords().toInt(), 4);
        QCOMPARE(list.CurrentWord().toInt(), current);
        QCOMPARE(entryText(list, 5), u"%1|%1 def|%1 sen"_s.arg(slotBehind));
        QVERIFY(!hasSlot(list, 6));
        for (int i = 1; i <= 4; ++i)
            QCOMPARE(entryText(list, i), u"%1|%1 def|%1 sen"_s.arg(left[i - 1]));
    }

    void deletingTheFirstEntryKeepsPositionOne()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.CurrentWord(1);
        list.DeleteVocab();
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(list.Word(), u"b"_s);
    }

    void deletingTheOnlyEntryLeavesAnEmptyListAtPositionOne()
    {
        cVocabList list;
        addWords(list, {u"a"_s});
        list.DeleteVocab();
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(entryText(list, 1), u"a|a def|a sen"_s);
        QVERIFY(!hasSlot(list, 2));
        QVERIFY(!hasSlot(list, 0));
        list.DeleteVocab();
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(hasSlot(list, 1));
    }

    void aSecondDeletionTakesTheSlotOfTheFirstAway()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s, u"d"_s});
        list.CurrentWord(2);
        list.DeleteVocab();
        QCOMPARE(entryText(list, 4).left(1), u"d"_s);
        list.DeleteVocab();
        QCOMPARE(wordsOf(list), (QStringList{u"c"_s, u"d"_s}));
        QCOMPARE(entryText(list, 3).left(1), u"d"_s);
        QVERIFY(!hasSlot(list, 4));
    }

    void deletingAtPositionZeroDoesNothing()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.CurrentWord(0);
        list.DeleteVocab();
        QCOMPARE(list.NumWords().toInt(), 2);
        QCOMPARE(list.CurrentWord().toInt(), 0);
        QVERIFY(!hasSlot(list, 3));
    }

    void deletingFromAClearedListKeepsBothPlaceholders()
    {
        cVocabList list;
        list.ClearList();
        list.DeleteVocab();
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(hasSlot(list, 0));
        QVERIFY(hasSlot(list, 1));
    }

    void deletingAtANegativePositionFailsAndChangesNothing()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.CurrentWord(-1);
        QCOMPARE(errorNumberOf([&] { list.DeleteVocab(); }), RunTimeError::SubscriptOutOfRange);
        QCOMPARE(list.NumWords().toInt(), 2);
        QCOMPARE(list.CurrentWord().toInt(), -1);
        QCOMPARE(wordsOf(list), (QStringList{u"a"_s, u"b"_s}));
        list.ClearList();
        list.CurrentWord(-1);
        QCOMPARE(errorNumberOf([&] { list.DeleteVocab(); }), RunTimeError::SubscriptOutOfRange);
    }

    void deletingEntryByEntryFromTheEndEmptiesTheList()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s});
        for (int left = 2; left >= 0; --left) {
            list.DeleteVocab();
            QCOMPARE(list.NumWords().toInt(), left);
            QCOMPARE(list.CurrentWord().toInt(), std::max(left, 1));
        }
        addWords(list, {u"x"_s});
        QCOMPARE(wordsOf(list), QStringList{u"x"_s});
        QVERIFY(!hasSlot(list, 2));
    }

    void editingOverwritesTheThreeTextsInPlace()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s});
        list.CurrentWord(2);
        list.Edit(u" New "_s, QString(), u"line\r\nbreak"_s);
        QCOMPARE(entryText(list, 1), u"a|a def|a sen"_s);
        QCOMPARE(entryText(list, 2), u" New ||line\r\nbreak"_s);
        QCOMPARE(entryText(list, 3), u"c|c def|c sen"_s);
        QCOMPARE(list.NumWords().toInt(), 3);
        QCOMPARE(list.CurrentWord().toInt(), 2);
    }

    void editingTheSlotBehindTheEntriesChangesNoEntry()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s});
        list.DeleteVocab();
        list.CurrentWord(2);
        list.Edit(u"x"_s, u"y"_s, u"z"_s);
        QCOMPARE(list.NumWords().toInt(), 1);
        QCOMPARE(entryText(list, 1), u"a|a def|a sen"_s);
        QCOMPARE(entryText(list, 2), u"x|y|z"_s);
        QVERIFY(!list.Exist(u"x"_s, 1));
        QVERIFY(list.Exist(u"a"_s, 1));
    }

    void editingOutsideTheStorageFailsAndChangesNothing_data()
    {
        QTest::addColumn<int>("position");
        for (const int position : {-32768, -1, 0, 4, 32767})
            QTest::addRow("%d", position) << position;
    }

    void editingOutsideTheStorageFailsAndChangesNothing()
    {
        QFETCH(int, position);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"a"_s});
        QCOMPARE(list.SearchWord(u"a"_s).toInt(), 1);
        list.CurrentWord(position);
        QCOMPARE(errorNumberOf([&] { list.Edit(u"x"_s, u"y"_s, u"z"_s); }),
                 RunTimeError::SubscriptOutOfRange);
        QCOMPARE(wordsOf(list), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
        QCOMPARE(list.CurrentWord().toInt(), position);
        QCOMPARE(list.SearchWord(u"a"_s).toInt(), 3);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Deleting_test)
#include "cVocabList_Deleting_test.moc"
