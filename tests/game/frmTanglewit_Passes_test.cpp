// SPDX-License-Identifier: GPL-3.0-or-later
// Games that go more than once through the list.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

class frmTanglewit_Passes_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(QStringList{u"lion"_s, u"bear"_s}); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void everyPassAsksEachWordOnce()
    {
        GameForm::fill(GameForm::fiveWords());
        m_form->start();
        for (int pass = 1; pass <= 3; ++pass) {
            QStringList asked;
            for (int i = 1; i <= 5; ++i) {
                QCOMPARE(gOrderIndex, Integer(i));
                QCOMPARE(gVocabList().CurrentWord(), gWordOrder(i));
                asked += GameForm::word();
                m_form->answerRight();
            }
            asked.sort();
            QCOMPARE(asked, GameForm::fiveWords());
        }
    }

    void everyPassHasAnOrderOfItsOwn_data()
    {
        QTest::addColumn<bool>("byTimeOut");
        QTest::newRow("answer") << false;
        QTest::newRow("time-out") << true;
    }

    void everyPassHasAnOrderOfItsOwn()
    {
        QFETCH(bool, byTimeOut);
        m_form->start();
        m_form->answerRight();
        gWordOrder = Array<Integer>({0, 0});
        if (byTimeOut)
            m_form->timeOut();
        else
            m_form->answerRight();
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gWordOrder(1) + gWordOrder(2), Integer(1 + 2));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
    }

    void aPassThatEndsWithAnAnswerGoesOnAtOnce_data()
    {
        QTest::addColumn<bool>("right");
        QTest::newRow("hit") << true;
        QTest::newRow("miss") << false;
    }

    void aPassThatEndsWithAnAnswerGoesOnAtOnce()
    {
        QFETCH(bool, right);
        m_form->start();
        m_form->answerRight();
        m_form->passTime(12);
        if (right)
            m_form->answerRight();
        else
            m_form->answerWrong();
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(m_form->numbers(), right ? u"5 1 30 5"_s : u"3 1 30 4"_s);
        checkNewPass();
        QTRY_VERIFY(m_form->answerBox().hasFocus());
        m_form->passTime();
        QCOMPARE(m_form->text("lblCountDown"), u"29"_s);
    }

    void aPassThatEndsWithATimeOutGivesItsFirstSecondTheFullLimit()
    {
        m_form->start();
        m_form->answerRight();
        m_form->passTime(29);
        Controls::type(m_form->answerBox(), u"half"_s);
        m_form->timeOut();
        QCOMPARE(m_form->numbers(), u"3 1 0 4"_s);
        QCOMPARE(gOrderIndex, Integer(1));
        checkNewPass();
        m_form->passTime();
        QCOMPARE(m_form->numbers(), u"3 1 30 4"_s);
        m_form->passTime();
        QCOMPARE(m_form->numbers(), u"3 1 29 4"_s);
        // The seconds until the first letter count from the full limit.
        m_form->passTime(8);
        QCOMPARE(m_form->tiles(), QStringList());
        m_form->passTime();
        QCOMPARE(m_form->tiles(), QStringList{u"14 %1"_s.arg(GameForm::word()[0])});
    }

    void itsFirstSecondHasTheLevelsLimit()
    {
        GameForm::fill({u"lion"_s});
        m_form->open();
        m_form->raiseStartLevel(5);
        m_form->click("cmdStart");
        for (int lives = 4; lives > 1; --lives) {
            m_form->timeOut();
            QCOMPARE(m_form->numbers(), u"0 6 0 %1"_s.arg(lives));
            m_form->passTime();
            QCOMPARE(m_form->numbers(), u"0 6 9 %1"_s.arg(lives));
        }
    }

    void anAnswerBeforeThatFirstSecondCounts()
    {
        GameForm::fill({u"lion"_s});
        m_form->start();
        m_form->passTime(29);
        m_form->timeOut();
        QCOMPARE(m_form->text("lblCountDown"), u"0"_s);
        m_form->answerRight();
        QCOMPARE(m_form->numbers(), u"3 1 30 4"_s);
        m_form->passTime();
        QCOMPARE(m_form->text("lblCountDown"), u"29"_s);
    }

    void aListOfOneWordAsksItAgainAndAgain()
    {
        GameForm::fill({u"lion"_s});
        m_form->start();
        m_form->expectLevel(2);
        m_form->answerRight(25);
        QCOMPARE(m_form->numbers(), u"75 2 25 5"_s);
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gWordOrder.size(), 1);
        m_form->answerWrong();
        m_form->timeOut();
        QCOMPARE(m_form->lines("lstMisses"),
                 (QStringList{u"lion :: wrong"_s, u"lion :: (Timer Expired)"_s}));
        QCOMPARE(m_form->look(), GameForm::playing());
    }

    void aPassOfALongListEndsAfterAThousandWords()
    {
        QStringList words;
        for (int i = 1; i <= 1001; ++i)
            words += u"word%1"_s.arg(i);
        GameForm::fill(words);
        m_form->start();
        gOrderIndex = 999;
        m_form->answerRight();
        QCOMPARE(gOrderIndex, Integer(1000));
        m_form->answerRight();
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
    }

private:
    void checkNewPass()
    {
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
        QCOMPARE(m_form->look(), GameForm::playing());
        QVERIFY(m_form->button("cmdEnter").isDefault());
        QCOMPARE(m_form->answerBox().text(), QString());
        QCOMPARE(m_form->text("lblScrambledWord").size(), 4);
        QCOMPARE(m_form->text("lblClue"), GameForm::definitionOf(GameForm::word()));
        QCOMPARE(m_form->text("lblSentence"), GameForm::blankedSentence());
        QCOMPARE(m_form->tiles(), QStringList());
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Passes_test>(argc, argv);
}

#include "frmTanglewit_Passes_test.moc"
