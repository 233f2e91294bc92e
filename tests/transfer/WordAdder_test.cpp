// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/WordAdder.h"

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString ListIsFull = u"Cannot add any more words. Maximum number of words= 32000"_s;

} // namespace

class WordAdder_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        for (int i = 1; i <= cVocabList::MaxWords; ++i)
            m_full.AddVocab(u"old"_s, {}, {});
    }

    void init() { m_answers = std::make_unique<DialogAnswers>(); }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_answers.reset();
    }

    void aListWithRoomTakesTheWordsAsTheyAre()
    {
        cVocabList list;
        WordAdder adder(list);
        adder.add(u" cat "_s, u"an animal"_s, u"The cat sat."_s);
        adder.add(u" cat "_s, {}, {});
        adder.tellOfTheRest();
        QCOMPARE(list.NumWords(), Integer(2));
        QCOMPARE(entryText(list, 1), u" cat |an animal|The cat sat."_s);
        QCOMPARE(entryText(list, 2), u" cat ||"_s);
    }

    void theListTellsOfThreeWordsAndOneMessageOfTheOthers_data()
    {
        QTest::addColumn<int>("refused");
        QTest::addColumn<QString>("rest");
        QTest::newRow("1") << 1 << QString();
        QTest::newRow("3") << 3 << QString();
        QTest::newRow("4") << 4 << u"1 more word has not been added."_s;
        QTest::newRow("5") << 5 << u"2 more words have not been added."_s;
        QTest::newRow("30000") << 30'000 << u"29997 more words have not been added."_s;
    }

    void theListTellsOfThreeWordsAndOneMessageOfTheOthers()
    {
        QFETCH(int, refused);
        QFETCH(QString, rest);
        cVocabList list = m_full;
        WordAdder adder(list);
        for (int i = 0; i < std::min(refused, 3); ++i)
            m_answers->expectMsgBox(ListIsFull);
        for (int i = 0; i < refused; ++i)
            adder.add(u"new"_s, {}, {});
        QVERIFY(m_answers->allSeen());
        if (!rest.isEmpty())
            m_answers->expectMsgBox(rest);
        adder.tellOfTheRest();
        QVERIFY(m_answers->allSeen());
        adder.tellOfTheRest(); // there is nothing left to tell
        QCOMPARE(list.NumWords(), Integer(cVocabList::MaxWords));
    }

    void wordsAreCountedFromTheFirstThatIsRefused()
    {
        cVocabList list = m_full;
        list.CurrentWord(list.NumWords());
        list.DeleteVocab();
        list.DeleteVocab();
        WordAdder adder(list);
        for (int i = 0; i < 3; ++i)
            m_answers->expectMsgBox(ListIsFull);
        for (int i = 0; i < 6; ++i)
            adder.add(u"new %1"_s.arg(i), {}, {});
        QVERIFY(m_answers->allSeen());
        m_answers->expectMsgBox(u"1 more word has not been added."_s);
        adder.tellOfTheRest();
        QCOMPARE(list.NumWords(), Integer(cVocabList::MaxWords));
        QCOMPARE(entryText(list, cVocabList::MaxWords), u"new 1||"_s);
        QCOMPARE(adder.added(), 2);
        QCOMPARE(adder.refused(), 4);
    }

    void pausedIsCalledBeforeAndAfterEachMessage()
    {
        cVocabList list = m_full;
        int pauses = 0;
        WordAdder adder(list, [&pauses] { ++pauses; });
        QList<int> pausesBefore;
        const auto note = [&](QMessageBox &) { pausesBefore += pauses; };
        for (int i = 0; i < 3; ++i)
            m_answers->expectMsgBox(ListIsFull, QMessageBox::Ok, note);
        m_answers->expectMsgBox(u"7 more words have not been added."_s, QMessageBox::Ok, note);
        for (int i = 0; i < 10; ++i)
            adder.add(u"new"_s, {}, {});
        adder.tellOfTheRest();
        QCOMPARE(pausesBefore, (QList<int>{1, 3, 5, 7}));
        QCOMPARE(pauses, 8);
    }

private:
    const FreshState m_state;
    cVocabList m_full;
    std::unique_ptr<DialogAnswers> m_answers;
};

int main(int argc, char *argv[])
{
    return runFormTest<WordAdder_test>(argc, argv);
}

#include "WordAdder_test.moc"
