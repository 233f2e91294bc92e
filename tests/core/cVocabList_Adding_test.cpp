// SPDX-License-Identifier: GPL-3.0-or-later
// A new list, adding to it, clearing it, and reading its entries.
#include "core/cVocabList.h"

#include "core/ListTools.h"
#include "runtime/Notice.h"

#include <QTest>

using namespace Qt::StringLiterals;

class cVocabList_Adding_test : public QObject
{
    Q_OBJECT

    QStringList m_notices;

private Q_SLOTS:
    void init()
    {
        m_notices.clear();
        setNoticeHook([this](const QString &text) { m_notices << text; });
    }

    void cleanup() { setNoticeHook({}); }

    void aNewListIsEmptyWithoutACurrentEntryOrStorage()
    {
        cVocabList list;
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 0);
        QCOMPARE(list.Word(), QString());
        QCOMPARE(list.Definition(), QString());
        QCOMPARE(list.Sentence(), QString());
        QVERIFY(!hasSlot(list, 0));
        QVERIFY(!hasSlot(list, 1));
        QVERIFY(!hasSlot(list, -1));
    }

    void addingToANewListMakesEntryOneCurrent()
    {
        cVocabList list;
        list.AddVocab(u"cat"_s, u"a small animal"_s, u"The cat sat."_s);
        QCOMPARE(list.NumWords().toInt(), 1);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(list.Word(), u"cat"_s);
        QCOMPARE(list.Definition(), u"a small animal"_s);
        QCOMPARE(list.Sentence(), u"The cat sat."_s);
        QVERIFY(!hasSlot(list, 0));
        QVERIFY(!hasSlot(list, 2));
    }

    void entriesAreAppendedAtTheEndWhateverIsCurrent()
    {
        cVocabList list;
        addWords(list, {u"zebra"_s, u"ant"_s, u"mouse"_s});
        list.CurrentWord(1);
        addWords(list, {u"bee"_s});
        QCOMPARE(wordsOf(list), (QStringList{u"zebra"_s, u"ant"_s, u"mouse"_s, u"bee"_s}));
        QCOMPARE(list.CurrentWord().toInt(), 4);
        QCOMPARE(entryText(list, 2), u"ant|ant def|ant sen"_s);
    }

    void textsAreStoredAsTheyAreAndDuplicatesAccepted()
    {
        cVocabList list;
        list.AddVocab(u"  Big Cat "_s, u"\tx\r\n y "_s, QString());
        list.AddVocab(u"  Big Cat "_s, u"\tx\r\n y "_s, QString());
        list.AddVocab(QString(), QString(), QString());
        QCOMPARE(list.NumWords().toInt(), 3);
        QCOMPARE(entryText(list, 1), u"  Big Cat |\tx\r\n y |"_s);
        QCOMPARE(entryText(list, 2), entryText(list, 1));
        QCOMPARE(entryText(list, 3), u"||"_s);
    }

    void clearingLeavesTwoEmptySlotsAndPositionOne()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"owl"_s});
        list.ClearList();
        QCOMPARE(list.NumWords().toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(entryText(list, 1), u"||"_s);
        QVERIFY(hasSlot(list, 0));
        QVERIFY(hasSlot(list, 1));
        QVERIFY(!hasSlot(list, 2));
        QVERIFY(!hasSlot(list, -1));
    }

    void addingAfterClearingMakesEntryOneAndDropsBothPlaceholders()
    {
        cVocabList list;
        list.ClearList();
        addWords(list, {u"cat"_s});
        QCOMPARE(list.NumWords().toInt(), 1);
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QCOMPARE(list.Word(), u"cat"_s);
        QVERIFY(!hasSlot(list, 0));
        QVERIFY(!hasSlot(list, 2));
    }

    void addingDropsTheSlotThatADeletionLeft()
    {
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s});
        list.DeleteVocab();
        QVERIFY(hasSlot(list, 3));
        addWords(list, {u"d"_s});
        QCOMPARE(wordsOf(list), (QStringList{u"a"_s, u"b"_s, u"d"_s}));
        QVERIFY(!hasSlot(list, 4));
    }

    void aFullListTellsTheMaximumAndStaysAsItIs()
    {
        cVocabList list;
        for (int i = 1; i <= cVocabList::MaxWords; ++i)
            list.AddVocab(QString::number(i), QString(), QString());
        QCOMPARE(m_notices, QStringList());
        QCOMPARE(list.NumWords().toInt(), 32000);
        QCOMPARE(list.SearchWord(u"7"_s).toInt(), 7);
        list.AddVocab(u"too much"_s, u"def"_s, u"sen"_s);
        QCOMPARE(m_notices,
                 QStringList{u"Cannot add any more words. Maximum number of words= 32000"_s});
        QCOMPARE(m_notices, QStringList{cVocabList::maxWordsText()});
        QCOMPARE(list.NumWords().toInt(), 32000);
        QCOMPARE(list.CurrentWord().toInt(), 7);
        QVERIFY(!hasSlot(list, 32001));
        // The search continues after entry 7. If it started again, it would find entry 7 first.
        QCOMPARE(list.SearchWord(u"7"_s).toInt(), 0);
        QVERIFY(!list.Exist(u"too much"_s, 1));
        list.CurrentWord(32000);
        QCOMPARE(list.Word(), u"32000"_s);
        list.DeleteVocab();
        addWords(list, {u"fits"_s});
        QCOMPARE(m_notices.size(), 1);
        QCOMPARE(list.Word(), u"fits"_s);
        QCOMPARE(list.NumWords().toInt(), 32000);
    }

    void anyPositionCanBeSetWithoutACheck_data()
    {
        QTest::addColumn<int>("position");
        for (const int position : {-32768, -1, 0, 1, 3, 4, 32767})
            QTest::addRow("%d", position) << position;
    }

    void anyPositionCanBeSetWithoutACheck()
    {
        QFETCH(int, position);
        cVocabList list;
        addWords(list, {u"a"_s, u"b"_s, u"c"_s});
        list.CurrentWord(position);
        QCOMPARE(list.CurrentWord().toInt(), position);
        QCOMPARE(list.NumWords().toInt(), 3);
        const bool isEntry = position >= 1 && position <= 3;
        const auto outside =
            isEntry ? NoRunTimeError : RunTimeError::Number(RunTimeError::SubscriptOutOfRange);
        // Position 0 reads as empty texts but has no length.
        const auto texts = position == 0 ? NoRunTimeError : outside;
        QCOMPARE(errorNumberOf([&] { return list.Word(); }), texts);
        QCOMPARE(errorNumberOf([&] { return list.Definition(); }), texts);
        QCOMPARE(errorNumberOf([&] { return list.Sentence(); }), texts);
        QCOMPARE(errorNumberOf([&] { return list.length(); }), outside);
        QCOMPARE(list.CurrentWord().toInt(), position);
    }

    void positionZeroReadsAsEmptyTexts()
    {
        cVocabList list;
        addWords(list, {u"a"_s});
        list.CurrentWord(0);
        QCOMPARE(list.Word() + list.Definition() + list.Sentence(), QString());
        // Also where slot 0 exists and holds a text.
        list.ClearList();
        list.CurrentWord(0);
        list.Edit(u"w"_s, u"d"_s, u"s"_s);
        QCOMPARE(list.Word() + list.Definition() + list.Sentence(), QString());
        QCOMPARE(list.length(), u"1"_s);
    }

    void lengthIsTheNumberOfCharactersAsText_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("length");
        QTest::newRow("two words") << u"big cat"_s << u"7"_s;
        QTest::newRow("empty") << QString() << u"0"_s;
        QTest::newRow("outer blanks") << u" a "_s << u"3"_s;
        QTest::newRow("accents") << u"été"_s << u"3"_s;
        QTest::newRow("long") << QString(40'000, u'x') << u"40000"_s;
    }

    void lengthIsTheNumberOfCharactersAsText()
    {
        QFETCH(QString, word);
        QFETCH(QString, length);
        cVocabList list;
        list.AddVocab(word, u"d"_s, u"s"_s);
        QCOMPARE(list.length(), length);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Adding_test)
#include "cVocabList_Adding_test.moc"
