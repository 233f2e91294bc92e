// SPDX-License-Identifier: GPL-3.0-or-later
// The countdown, the letters that it uncovers, and the time-out.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QStringList tilesOf(const QString &word, int offset, int letters)
{
    QStringList tiles;
    for (int k = 1; k <= letters; ++k)
        tiles += u"%1 %2"_s.arg(k + offset).arg(word[k - 1]);
    return tiles;
}

} // namespace

class frmTanglewit_Countdown_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void startShowsAWordAndRunsTheCountdown()
    {
        m_form->start();
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        QVERIFY(m_form->button("cmdEnter").isDefault());
        QVERIFY(!m_form->button("cmdStart").isDefault());
        QVERIFY(m_form->answerBox().hasFocus());
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
        checkWord(GameForm::blankedSentence());
    }

    void startSetsTheScoreToZero()
    {
        m_form->open();
        gScore = 99;
        m_form->click("cmdStart");
        QCOMPARE(gScore, Integer(0));
        QCOMPARE(m_form->text("lblScore"), u"0"_s);
    }

    void theTimerCountsByItself()
    {
        m_form->start();
        m_form->timer().setInterval(1);
        QTRY_VERIFY(m_form->text("lblCountDown").toInt() < 29);
    }

    void aSecondIsExact()
    {
        m_form->open();
        QCOMPARE(m_form->timer().timerType(), Qt::PreciseTimer);
    }

    void lettersAreUncoveredInTheirSeconds_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("every");
        QTest::addColumn<int>("offset");
        QTest::newRow("3 letters") << u"cat"_s << 12 << 14;
        QTest::newRow("4 letters") << u"lion"_s << 10 << 13;
        QTest::newRow("5 letters") << u"tiger"_s << 8 << 12;
        QTest::newRow("6 letters") << u"donkey"_s << 7 << 12;
        QTest::newRow("7 letters") << u"giraffe"_s << 6 << 12;
        QTest::newRow("12 letters") << u"abcdefghijkl"_s << 4 << 9;
        QTest::newRow("23 letters") << u"abcdefghijklmnopqrstuvw"_s << 3 << 4;
        QTest::newRow("25 letters") << u"abcdefghijklmnopqrstuvwxy"_s << 3 << 2;
        QTest::newRow("30 letters") << u"abcdefghijklmnopqrstuvwxyzABCD"_s << 3 << 0;
    }

    void lettersAreUncoveredInTheirSeconds()
    {
        QFETCH(QString, word);
        QFETCH(int, every);
        QFETCH(int, offset);
        GameForm::fill({word});
        m_form->start();
        for (int second = 1; second < 30; ++second) {
            m_form->passTime();
            QCOMPARE(m_form->text("lblCountDown"), QString::number(30 - second));
            QCOMPARE(m_form->tiles(), tilesOf(word, offset, second / every));
        }
    }

    void theLastLetterOfFourIsUncoveredByTheTimeOut()
    {
        GameForm::fill({u"lion"_s});
        m_form->start();
        m_form->passTime(20);
        QCOMPARE(m_form->tiles(), tilesOf(u"lion"_s, 13, 2));
        m_form->passTime(9);
        m_form->expectMiss(
            [this](QDialog &) { QCOMPARE(m_form->tiles(), tilesOf(u"lion"_s, 13, 4)); });
        m_form->passTime();
    }

    void theTimeOutTakesItsSteps()
    {
        m_form->start();
        const QString word = GameForm::word();
        const QString scrambled = m_form->text("lblScrambledWord");
        Controls::type(m_form->answerBox(), u"half a word"_s);
        m_form->passTime(29);
        QCOMPARE(m_form->numbers(), u"0 1 1 5"_s);
        m_form->expectMiss([&](QDialog &dialog) {
            QCOMPARE(m_form->numbers(), u"0 1 0 4"_s);
            QCOMPARE(m_form->tiles(), tilesOf(word, 12, 5));
            QCOMPARE(m_form->lines("lstMisses"), QStringList());
            QCOMPARE(GameForm::word(), word);
            QCOMPARE(m_form->text("lblScrambledWord"), scrambled);
            QCOMPARE(Controls::find<QLabel>(dialog, "lblAnswerIs").text(),
                     u"The correct answer is: "_s + word);
        });
        m_form->passTime();
        QVERIFY(m_form->answers.allSeen());
        QCOMPARE(m_form->lines("lstMisses"), QStringList{word + u" :: (Timer Expired)"_s});
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->tiles(), QStringList());
        QCOMPARE(m_form->numbers(), u"0 1 30 4"_s);
        QCOMPARE(m_form->answerBox().text(), QString());
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(gOrderIndex, Integer(2));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(2));
        QVERIFY(GameForm::word() != word);
        // After a time-out the next sentence is shown unblanked.
        checkWord(GameForm::sentenceOf(GameForm::word()));
    }

    void theWordAfterATimeOutBeginsWithItsFirstLetter()
    {
        m_form->start();
        m_form->timeOut();
        m_form->passTime(7);
        QCOMPARE(m_form->tiles(), QStringList());
        m_form->passTime();
        QCOMPARE(m_form->tiles(), tilesOf(GameForm::word(), 12, 1));
        m_form->answerRight();
        QCOMPARE(m_form->text("lblScore"), u"3"_s);
    }

    void theSentenceIsBlankedAgainAfterAnAnswer()
    {
        m_form->start();
        m_form->timeOut();
        m_form->answerRight();
        checkWord(GameForm::blankedSentence());
        m_form->timeOut();
        m_form->answerWrong();
        checkWord(GameForm::blankedSentence());
    }

    void aTimeOutKeepsTheLevelsLimit()
    {
        m_form->open();
        m_form->raiseStartLevel(9);
        m_form->click("cmdStart");
        m_form->timeOut();
        QCOMPARE(m_form->numbers(), u"0 10 5 4"_s);
        m_form->passTime();
        QCOMPARE(m_form->numbers(), u"0 10 4 4"_s);
    }

    void theAnswerBoxKeepsTheFocusAfterATimeOut()
    {
        m_form->start();
        m_form->timeOut();
        QTRY_VERIFY(m_form->answerBox().hasFocus());
    }

    void theCountdownIsPausedWhileAnAnswerIsHandled()
    {
        m_form->start();
        m_form->passTime(3);
        m_form->expectMiss([this](QDialog &) {
            QVERIFY(!m_form->timer().isActive());
            QCOMPARE(m_form->text("lblCountDown"), u"27"_s);
        });
        m_form->answer(u"wrong"_s);
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(m_form->text("lblCountDown"), u"30"_s);
    }

    void theCountdownIsPausedBehindTheDialogOfATimeOut()
    {
        m_form->start();
        m_form->expectMiss([this](QDialog &) {
            m_form->passTime(5);
            QCOMPARE(m_form->numbers(), u"0 1 0 4"_s);
        });
        m_form->passTime(30);
        QCOMPARE(m_form->numbers(), u"0 1 30 4"_s);
        m_form->passTime();
        QCOMPARE(m_form->numbers(), u"0 1 29 4"_s);
    }

    void theCountdownIsPausedBehindTheMessageOfThatDialog()
    {
        m_form->start();
        const QString message = u"The correct word is: '%1'"_s.arg(GameForm::word());
        m_form->answers.useForm("dlgIncorrectAnswer", [this, message](QDialog &dialog) {
            m_form->answers.expectMsgBox(message, QMessageBox::Ok,
                                         [this](QMessageBox &) { m_form->passTime(5); });
            Controls::click(Controls::find<QPushButton>(dialog, "cmdOK"));
            QCOMPARE(m_form->numbers(), u"0 1 0 4"_s);
            Controls::type(Controls::find<QLineEdit>(dialog, "txtUserAnswer"), GameForm::word());
            Controls::click(Controls::find<QPushButton>(dialog, "cmdOK"));
        });
        m_form->passTime(30);
        QCOMPARE(m_form->numbers(), u"0 1 30 4"_s);
    }

    void theCountdownContinuesAfterTheTop10()
    {
        m_form->start();
        m_form->passTime(7);
        m_form->expectTop10([this](QDialog &) {
            m_form->passTime(40);
            QCOMPARE(m_form->numbers(), u"0 1 23 5"_s);
            QCOMPARE(m_form->tiles(), QStringList());
        });
        m_form->click("cmdViewTop10");
        QCOMPARE(m_form->numbers(), u"0 1 23 5"_s);
        m_form->passTime();
        QCOMPARE(m_form->numbers(), u"0 1 22 5"_s);
        QCOMPARE(m_form->tiles().size(), 1);
    }

    void theCountdownIsPausedBehindTheQuestionOfTheTop10()
    {
        m_form->start();
        m_form->answers.useForm("dlgGameOver", [this](QDialog &dialog) {
            m_form->answers.expectMsgBox(u"Are you sure you want to reset the scores?"_s,
                                         QMessageBox::No,
                                         [this](QMessageBox &) { m_form->passTime(31); });
            Controls::click(Controls::find<QPushButton>(dialog, "cmdReset"));
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        m_form->click("cmdViewTop10");
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
    }

    void theLastSecondsAreSeenAtAGlance()
    {
        m_form->start();
        m_form->passTime(24);
        auto &ring = m_form->control<QWidget>("lblCountDown");
        const QPoint besideTheNumber(ring.width() / 2, 12);
        const QColor calm = ring.grab().toImage().pixelColor(besideTheNumber);
        QVERIFY(calm.red() - calm.green() < 60);
        m_form->passTime();
        QCOMPARE(m_form->text("lblCountDown"), u"5"_s);
        const QColor alarm = ring.grab().toImage().pixelColor(besideTheNumber);
        QVERIFY(alarm.red() - alarm.green() > 100);
    }

private:
    // Scrambled word, clue and sentence are those of the current word.
    void checkWord(const QString &sentence)
    {
        QString letters = m_form->text("lblScrambledWord");
        QString asked = GameForm::word();
        std::sort(letters.begin(), letters.end());
        std::sort(asked.begin(), asked.end());
        QCOMPARE(letters, asked);
        QCOMPARE(m_form->text("lblClue"), GameForm::definitionOf(GameForm::word()));
        QCOMPARE(m_form->text("lblSentence"), sentence);
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Countdown_test>(argc, argv);
}

#include "frmTanglewit_Countdown_test.moc"
