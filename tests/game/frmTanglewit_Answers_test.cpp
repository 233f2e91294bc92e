// SPDX-License-Identifier: GPL-3.0-or-later
// Hits and misses.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"
#include "support/KeepsRunning.h"

using namespace Module1;
using namespace Qt::StringLiterals;

class frmTanglewit_Answers_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void anEmptyAnswerIsIgnored_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Enter key") << true;
        QTest::newRow("button") << false;
    }

    void anEmptyAnswerIsIgnored()
    {
        QFETCH(bool, byKey);
        m_form->start();
        m_form->passTime(9);
        const QString word = GameForm::word();
        QVERIFY(keepsRunning(m_form->timer(), [this, byKey] {
            if (byKey)
                Controls::press(Qt::Key_Return);
            else
                m_form->click("cmdEnter");
        }));
        QCOMPARE(GameForm::word(), word);
        QCOMPARE(m_form->numbers(), u"0 1 20 5"_s);
        QCOMPARE(m_form->tiles().size(), 1);
        QCOMPARE(m_form->look(), GameForm::playing());
        QVERIFY(m_form->answerBox().hasFocus());
        QCOMPARE(m_form->lines("lstMisses"), QStringList());
    }

    void theRightWordIsAHit()
    {
        m_form->start();
        const QString word = GameForm::word();
        m_form->answer(word);
        QCOMPARE(m_form->numbers(), u"4 1 30 5"_s);
        QCOMPARE(gScore, Integer(4));
        QCOMPARE(m_form->hitsTitle(), u"Hits: 1"_s);
        QCOMPARE(m_form->lines("lstHits"), QStringList{word});
        QCOMPARE(m_form->lines("lstMisses"), QStringList());
        QCOMPARE(gOrderIndex, Integer(2));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(2));
        QCOMPARE(m_form->text("lblClue"), GameForm::definitionOf(GameForm::word()));
        QCOMPARE(m_form->text("lblSentence"), GameForm::blankedSentence());
        QCOMPARE(m_form->answerBox().text(), QString());
        QVERIFY(m_form->answerBox().hasFocus());
        QCOMPARE(m_form->look(), GameForm::playing());
    }

    void theEnterButtonIsTheSameAsTheKey()
    {
        m_form->start();
        Controls::type(m_form->answerBox(), GameForm::word());
        m_form->click("cmdEnter");
        QCOMPARE(m_form->numbers(), u"4 1 30 5"_s);
        QVERIFY(m_form->answerBox().hasFocus());
    }

    void blanksRoundTheAnswerDoNotCount()
    {
        m_form->start();
        m_form->answer(u"  "_s + GameForm::word() + u"   "_s);
        QCOMPARE(m_form->numbers(), u"4 1 30 5"_s);
    }

    void blanksRoundTheListsWordDoNotCount()
    {
        GameForm::fill({u" apple "_s});
        m_form->start();
        m_form->answer(u"apple"_s);
        QCOMPARE(m_form->text("lblNumLifes"), u"5"_s);
        // Blanks in the word count as letters.
        QCOMPARE(m_form->text("lblScore"), u"6"_s);
        QCOMPARE(m_form->lines("lstHits"), QStringList{u" apple "_s});
    }

    void aBlankInsideTheAnswerCounts()
    {
        GameForm::fill({u"ice cream"_s});
        m_form->start();
        m_form->answer(u"ice cream"_s);
        QCOMPARE(m_form->text("lblScore"), u"8"_s);
        m_form->answerWrong(u"icecream"_s);
        QCOMPARE(m_form->text("lblNumLifes"), u"4"_s);
    }

    void anotherAnswerIsAMiss_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("listed");
        QTest::newRow("another word") << u"pear"_s << u"pear"_s;
        QTest::newRow("letter case") << u"Apple"_s << u"Apple"_s;
        QTest::newRow("capitals") << u"APPLE"_s << u"APPLE"_s;
        QTest::newRow("too long") << u"apples"_s << u"apples"_s;
        QTest::newRow("too short") << u"appl"_s << u"appl"_s;
        QTest::newRow("with blanks") << u"  a pear "_s << u"a pear"_s;
        QTest::newRow("blanks only") << u"   "_s << QString();
    }

    void anotherAnswerIsAMiss()
    {
        QFETCH(QString, typed);
        QFETCH(QString, listed);
        GameForm::fill({u"apple"_s});
        m_form->start();
        m_form->passTime(9);
        m_form->expectMiss([this](QDialog &dialog) {
            QVERIFY(dialog.isModal());
            QCOMPARE(m_form->numbers(), u"0 1 21 4"_s);
            QCOMPARE(m_form->lines("lstMisses"), QStringList());
            QCOMPARE(m_form->tiles().size(), 1);
        });
        m_form->answer(typed);
        QCOMPARE(m_form->lines("lstMisses"), QStringList{u"apple :: "_s + listed});
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->hitsTitle(), u"Hits"_s);
        QCOMPARE(m_form->numbers(), u"0 1 30 4"_s);
        QCOMPARE(m_form->tiles(), QStringList());
        QCOMPARE(m_form->text("lblSentence"), GameForm::blankedSentence());
        QCOMPARE(m_form->answerBox().text(), QString());
        QTRY_VERIFY(m_form->answerBox().hasFocus());
        QCOMPARE(m_form->look(), GameForm::playing());
    }

    void everyUncoveredLetterCostsAPoint_data()
    {
        QTest::addColumn<int>("seconds");
        QTest::addColumn<int>("points");
        QTest::newRow("none") << 9 << 3;
        QTest::newRow("one") << 10 << 2;
        QTest::newRow("two") << 20 << 1;
        QTest::newRow("two, last moment") << 29 << 1;
    }

    void everyUncoveredLetterCostsAPoint()
    {
        QFETCH(int, seconds);
        QFETCH(int, points);
        GameForm::fill({u"lion"_s});
        m_form->start();
        m_form->passTime(seconds);
        m_form->answerRight();
        QCOMPARE(gScore, Integer(points));
        QCOMPARE(m_form->text("lblScore"), QString::number(points));
    }

    void theNextWordIsCoveredAndItsSecondsBeginAnew_data()
    {
        QTest::addColumn<bool>("right");
        QTest::newRow("after a hit") << true;
        QTest::newRow("after a miss") << false;
    }

    void theNextWordIsCoveredAndItsSecondsBeginAnew()
    {
        QFETCH(bool, right);
        m_form->start();
        m_form->passTime(15);
        QCOMPARE(m_form->tiles().size(), 1);
        if (right)
            m_form->answerRight();
        else
            m_form->answerWrong();
        QCOMPARE(m_form->tiles(), QStringList());
        m_form->passTime(7);
        QCOMPARE(m_form->tiles(), QStringList());
        m_form->passTime();
        QCOMPARE(m_form->tiles(), QStringList{u"13 %1"_s.arg(GameForm::word()[0])});
    }

    void hitsAndMissesAreListedInTheirOrder()
    {
        m_form->start();
        QStringList hits;
        QStringList misses;
        for (int i = 0; i < 4; ++i) {
            hits += GameForm::word();
            m_form->answerRight();
            misses += GameForm::word() + u" :: wrong"_s;
            m_form->answerWrong();
        }
        QCOMPARE(m_form->lines("lstHits"), hits);
        QCOMPARE(m_form->lines("lstMisses"), misses);
        QCOMPARE(m_form->hitsTitle(), u"Hits: 4"_s);
        QCOMPARE(m_form->numbers(), u"16 1 30 1"_s);
    }

    void theLatestLineIsVisible()
    {
        m_form->start();
        m_form->answerRight(19);
        auto &hits = m_form->control<QListWidget>("lstHits");
        QVERIFY(hits.viewport()->rect().intersects(hits.visualItemRect(hits.item(18))));
    }

    void theHeartsShowTheLives()
    {
        m_form->start();
        auto &hearts = m_form->control<QWidget>("lifeHearts");
        const QImage all = hearts.grab().toImage();
        m_form->answerRight();
        QVERIFY(hearts.grab().toImage() == all);
        m_form->answerWrong();
        QVERIFY(hearts.grab().toImage() != all);
        m_form->click("cmdRestart");
        QVERIFY(hearts.grab().toImage() == all);
    }

    void theNextWordStaysHidden()
    {
        m_form->start();
        m_form->click("cmdHide");
        m_form->answerRight();
        QVERIFY(!m_form->control<QWidget>("lblScrambledWord").isVisible());
        m_form->answerWrong();
        QVERIFY(!m_form->control<QWidget>("lblScrambledWord").isVisible());
        m_form->click("cmdShow");
        QVERIFY(m_form->control<QWidget>("lblScrambledWord").isVisible());
        QCOMPARE(m_form->text("lblScore"), u"4"_s);
    }

    void aScoreBeyondTheNumbersIsReported()
    {
        m_form->start();
        gScore = 32766;
        m_form->answers.expectMsgBox(u"Run-time error '6':\n\nOverflow"_s);
        m_form->answerRight();
        QCOMPARE(gScore, Integer(32766));
        m_form->waitForWindow();
        m_form->click("cmdRestart");
        QCOMPARE(m_form->look(), GameForm::ready());
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Answers_test>(argc, argv);
}

#include "frmTanglewit_Answers_test.moc"
