// SPDX-License-Identifier: GPL-3.0-or-later
// Looking words up: Exist and SearchWord.
#include "core/cVocabList.h"

#include "core/ListTools.h"

#include <QTest>

using namespace Qt::StringLiterals;

class cVocabList_Lookup_test : public QObject
{
    Q_OBJECT

    QList<int> m_hits;

    const QList<int> &search(cVocabList &list, const QString &word, int times)
    {
        m_hits.clear();
        for (int i = 0; i < times; ++i)
            m_hits << list.SearchWord(word).toInt();
        return m_hits;
    }

private Q_SLOTS:
    void searchStepsThroughDuplicatesThenMissesThenStartsAgain()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"CAT"_s});
        QCOMPARE(search(list, u"Cat"_s, 7), (QList<int>{1, 3, 0, 1, 3, 0, 1}));
    }

    void searchFindsNoPrefixAndNoPart_data()
    {
        QTest::addColumn<QString>("word");
        for (const QString &word : {u"ca"_s, u"at"_s, u"cats"_s, u" cat"_s, u"cat "_s, QString()})
            QTest::addRow("\"%s\"", qPrintable(word)) << word;
    }

    void searchFindsNoPrefixAndNoPart()
    {
        QFETCH(QString, word);
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"CAT"_s});
        QCOMPARE(list.SearchWord(word).toInt(), 0);
        QVERIFY(!list.Exist(word, 1));
        QCOMPARE(list.CurrentWord().toInt(), 3);
    }

    void aHitBecomesCurrentAndAMissMovesNothing()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"CAT"_s});
        QCOMPARE(list.SearchWord(u"dog"_s).toInt(), 2);
        QCOMPARE(list.CurrentWord().toInt(), 2);
        QCOMPARE(list.Definition(), u"dog def"_s);
        QCOMPARE(list.SearchWord(u"owl"_s).toInt(), 0);
        QCOMPARE(list.CurrentWord().toInt(), 2);
    }

    void aSearchForAnotherWordGoesOnFromTheLastHit()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"owl"_s, u"dog"_s});
        QCOMPARE(list.SearchWord(u"owl"_s).toInt(), 3);
        QCOMPARE(list.SearchWord(u"dog"_s).toInt(), 4);
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 0);
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
    }

    void searchInAnEmptyListMisses()
    {
        cVocabList fresh;
        QCOMPARE(fresh.SearchWord(QString()).toInt(), 0);
        QCOMPARE(fresh.CurrentWord().toInt(), 0);
        fresh.ClearList();
        QCOMPARE(fresh.SearchWord(QString()).toInt(), 0);
        QCOMPARE(fresh.CurrentWord().toInt(), 1);
    }

    void theEmptyWordIsFoundLikeAnyOther()
    {
        cVocabList list;
        addWords(list, {u"a"_s, QString(), u"b"_s, QString()});
        QCOMPARE(search(list, QString(), 3), (QList<int>{2, 4, 0}));
    }

    void caseIsThatOfAllLetters_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("wanted");
        QTest::addColumn<bool>("found");
        QTest::newRow("accents") << u"ÉTÉ"_s << u"été"_s << true;
        QTest::newRow("accent counts") << u"été"_s << u"ete"_s << false;
        QTest::newRow("Œ") << u"Œuvre"_s << u"œUVRE"_s << true;
        QTest::newRow("Ÿ of another block") << u"Ÿ"_s << u"ÿ"_s << true;
        QTest::newRow("sharp s has no capital here") << u"STRASSE"_s << u"straße"_s << false;
        QTest::newRow("accent apart is another text") << u"e\u0301"_s << u"é"_s << false;
        QTest::newRow("inner blanks") << u"big  cat"_s << u"big cat"_s << false;
        QTest::newRow("phrase") << u"Big Cat"_s << u"bIG cAT"_s << true;
    }

    void caseIsThatOfAllLetters()
    {
        QFETCH(QString, stored);
        QFETCH(QString, wanted);
        QFETCH(bool, found);
        cVocabList list;
        addWords(list, {stored});
        QCOMPARE(list.Exist(wanted, 1), found);
        QCOMPARE(list.SearchWord(wanted).toInt(), found ? 1 : 0);
    }

    void addingRestartsTheSearch()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s});
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
        addWords(list, {u"dog"_s});
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
    }

    void editingRestartsTheSearch()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s});
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
        list.Edit(u"cat"_s, QString(), QString());
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
    }

    void clearingRestartsTheSearch()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s});
        QCOMPARE(search(list, u"cat"_s, 2), (QList<int>{1, 2}));
        list.ClearList();
        addWords(list, {u"cat"_s});
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
    }

    void deletingLeavesTheSearchWhereItIs()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s, u"cat"_s, u"cat"_s});
        QCOMPARE(search(list, u"cat"_s, 2), (QList<int>{1, 2}));
        list.CurrentWord(1);
        list.DeleteVocab();
        QCOMPARE(search(list, u"cat"_s, 3), (QList<int>{3, 0, 1}));
    }

    void aSearchPositionBehindTheEndMissesOnce()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s, u"cat"_s});
        QCOMPARE(search(list, u"cat"_s, 3), (QList<int>{1, 2, 3}));
        list.DeleteVocab();
        list.DeleteVocab();
        QCOMPARE(search(list, u"cat"_s, 3), (QList<int>{0, 1, 0}));
    }

    void neitherPositionNorExistTouchesTheSearch()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"cat"_s, u"cat"_s});
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 1);
        list.CurrentWord(3);
        QVERIFY(list.Exist(u"cat"_s, 3));
        QVERIFY(!list.Exist(u"dog"_s, 1));
        QCOMPARE(list.SearchWord(u"cat"_s).toInt(), 2);
    }

    void existStartsAtThePositionGiven_data()
    {
        QTest::addColumn<int>("start");
        QTest::addColumn<int>("hit");
        const int hits[] = {2, 2, 4, 4, 0, 0};
        for (int start = 1; start <= 6; ++start)
            QTest::addRow("%d", start) << start << hits[start - 1];
        QTest::newRow("32767") << 32767 << 0;
    }

    void existStartsAtThePositionGiven()
    {
        QFETCH(int, start);
        QFETCH(int, hit);
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"owl"_s, u"DOG"_s, u"cow"_s});
        list.CurrentWord(1);
        QCOMPARE(list.Exist(u"Dog"_s, start), hit != 0);
        QCOMPARE(list.CurrentWord().toInt(), hit != 0 ? hit : 1);
    }

    void existStepsThroughDuplicatesFromBehindTheCurrentEntry()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"cat"_s});
        QVERIFY(list.Exist(u"CAT"_s, 1));
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(list.Exist(u"CAT"_s, list.CurrentWord() + 1));
        QCOMPARE(list.CurrentWord().toInt(), 3);
        QVERIFY(!list.Exist(u"CAT"_s, list.CurrentWord() + 1));
        QCOMPARE(list.CurrentWord().toInt(), 3);
    }

    void existBelowPositionOneIsASubscriptFailure_data()
    {
        QTest::addColumn<int>("start");
        for (const int start : {0, -1, -32768})
            QTest::addRow("%d", start) << start;
    }

    void existBelowPositionOneIsASubscriptFailure()
    {
        QFETCH(int, start);
        cVocabList list;
        QCOMPARE(errorNumberOf([&] { return list.Exist(u"cat"_s, start); }),
                 RunTimeError::SubscriptOutOfRange);
        addWords(list, {u"cat"_s, u"dog"_s});
        QCOMPARE(errorNumberOf([&] { return list.Exist(u"cat"_s, start); }),
                 RunTimeError::SubscriptOutOfRange);
        QCOMPARE(list.CurrentWord().toInt(), 2);
    }

    void existWithoutAStartBeginsAtSlotZeroWhichOnlyClearingMakes()
    {
        cVocabList list;
        list.ClearList();
        QVERIFY(!list.Exist(u"cat"_s));
        QCOMPARE(list.CurrentWord().toInt(), 1);
        QVERIFY(list.Exist(QString()));
        QCOMPARE(list.CurrentWord().toInt(), 0);
        QCOMPARE(errorNumberOf([&] { return list.Exist(u"cat"_s, -1); }),
                 RunTimeError::SubscriptOutOfRange);
        addWords(list, {u"cat"_s});
        QCOMPARE(errorNumberOf([&] { return list.Exist(u"cat"_s); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void slotsBehindTheEntriesAreNeverFound()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s});
        list.DeleteVocab();
        QVERIFY(!list.Exist(u"dog"_s, 1));
        QVERIFY(!list.Exist(u"dog"_s, 2));
        QCOMPARE(list.SearchWord(u"dog"_s).toInt(), 0);
        list.ClearList();
        QVERIFY(!list.Exist(QString(), 1));
    }

    void changesAreFoundAtOnce()
    {
        cVocabList list;
        addWords(list, {u"cat"_s, u"dog"_s, u"owl"_s});
        QVERIFY(list.Exist(u"owl"_s, 1)); // builds the index
        addWords(list, {u"cow"_s});
        QVERIFY(list.Exist(u"cow"_s, 1));
        list.CurrentWord(2);
        list.Edit(u"Fox"_s, QString(), QString());
        QVERIFY(!list.Exist(u"dog"_s, 1));
        QCOMPARE(list.SearchWord(u"fox"_s).toInt(), 2);
        list.CurrentWord(1);
        list.DeleteVocab();
        QVERIFY(!list.Exist(u"cat"_s, 1));
        QVERIFY(list.Exist(u"cow"_s, 1));
        QCOMPARE(list.CurrentWord().toInt(), 3);
        list.ClearList();
        QVERIFY(!list.Exist(u"cow"_s, 1));
    }
};

QTEST_GUILESS_MAIN(cVocabList_Lookup_test)
#include "cVocabList_Lookup_test.moc"
