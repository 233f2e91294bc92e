// SPDX-License-Identifier: GPL-3.0-or-later
// What the game's window says and shows about an answer, and the motions that point it out.
#include "game/frmTanglewit.h"

#include "game/CountdownRing.h"
#include "game/GameForm.h"
#include "game/LooseTiles.h"
#include "game/TileRack.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// The feedback as a screen reader gets it.
QString feedback(GameForm &form)
{
    return form.control<QLabel>("lblFeedback").accessibleName();
}

int lettersTaken(GameForm &form)
{
    int taken = 0;
    for (const LooseTiles::Tile &tile : form.control<LooseTiles>("lblScrambledWord").tiles().tiles)
        taken += tile.isTaken ? 1 : 0;
    return taken;
}

} // namespace

class frmTanglewit_Feedback_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        QApplication::setStyle(new MotionStyle(200));
        m_form = std::make_unique<GameForm>();
        m_form->start();
    }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theRulesAreAlwaysInSight()
    {
        QCOMPARE(m_form->text("lblRules"), u"Small and capital letters count."_s);
        QVERIFY(m_form->control<QLabel>("lblRules").isVisible());
        QCOMPARE(feedback(*m_form), QString());
        m_form->answerRight();
        QVERIFY(m_form->control<QLabel>("lblRules").isVisible());
        QVERIFY(!feedback(*m_form).isEmpty());
        m_form->click("cmdRestart");
        QCOMPARE(feedback(*m_form), QString());
    }

    void aHitIsNamedWithItsPoints()
    {
        const QString word = GameForm::word();
        m_form->passTime(8); // one letter is uncovered
        m_form->answerRight();
        QCOMPARE(feedback(*m_form), u"Right: 3 points for "_s + word);
    }

    void theWindowSaysWhatWasTyped()
    {
        const QString word = GameForm::word();
        QString wrong = word;
        wrong[2] = u'<';
        m_form->expectMiss([this, wrong, word](QDialog &) {
            QCOMPARE(feedback(*m_form), u"You typed: "_s + wrong);
            QCOMPARE(m_form->text("lblFeedback"),
                     u"You typed: "_s + word.left(2) + u"<b><u>&lt;</u></b>"_s + word.mid(3));
        });
        m_form->answer(u"  "_s + wrong);
        QCOMPARE(feedback(*m_form), u"You typed: "_s + wrong);
    }

    void aMissingLetterIsMarked()
    {
        const QString word = GameForm::word();
        m_form->answerWrong(word.left(4));
        QCOMPARE(m_form->text("lblFeedback"),
                 u"You typed: "_s + word.left(4) + u"<b><u>_</u></b>"_s);
    }

    void aLongAnswerIsShortened()
    {
        m_form->answerWrong(QString(300, u'x'));
        QCOMPARE(feedback(*m_form), u"You typed: "_s + QString(40, u'x') + u'…');
    }

    void aTimeOutIsNotAMiss()
    {
        m_form->timeOut();
        QCOMPARE(feedback(*m_form), u"The time is up."_s);
    }

    void theWorthGoesDownWithEachLetter()
    {
        QCOMPARE(m_form->text("lblWorth"), u"4 points"_s);
        m_form->passTime(7);
        QCOMPARE(m_form->text("lblWorth"), u"4 points"_s);
        m_form->passTime();
        QCOMPARE(m_form->text("lblWorth"), u"3 points"_s);
        m_form->answerRight();
        QCOMPARE(m_form->text("lblWorth"), u"4 points"_s);
        m_form->expectMiss([this](QDialog &) { QCOMPARE(m_form->text("lblWorth"), QString()); });
        m_form->passTime(30);
        QCOMPARE(m_form->text("lblWorth"), u"4 points"_s);
        m_form->click("cmdRestart");
        QCOMPARE(m_form->text("lblWorth"), QString());
    }

    void hitsOfTheLevelAndWordsToComeAreCounted()
    {
        QCOMPARE(m_form->text("lblLevelHits"), u"0 of 20 hits"_s);
        QCOMPARE(m_form->text("lblWordsLeft"), u"4 words to come"_s);
        m_form->answerRight();
        QCOMPARE(m_form->text("lblLevelHits"), u"1 of 20 hits"_s);
        QCOMPARE(m_form->text("lblWordsLeft"), u"3 words to come"_s);
        m_form->timeOut();
        QCOMPARE(m_form->text("lblLevelHits"), u"1 of 20 hits"_s);
        QCOMPARE(m_form->text("lblWordsLeft"), u"2 words to come"_s);
    }

    void theNextPlaceInTheTop10IsNamed()
    {
        QCOMPARE(m_form->text("lblBest"), u"No best yet · 1 point to place 1"_s);
        m_form->answerRight();
        QCOMPARE(m_form->text("lblBest"), u"A new best"_s);
    }

    void afterTheGameTheBestScoreIsShown()
    {
        m_form->answerRight();
        m_form->loseAllLives(u"Ann"_s);
        QCOMPARE(m_form->text("lblBest"), u"Best 4"_s);
        QCOMPARE(m_form->text("lblScore"), u"4"_s);
        m_form->expectTop10();
        m_form->click("cmdViewTop10");
        m_form->waitForWindow();
        QCOMPARE(m_form->text("lblBest"), u"Best 4"_s);
        QCOMPARE(m_form->text("lblScore"), u"4"_s);
        QVERIFY(m_form->button("cmdRestart").hasFocus());
    }

    void afterTheViewTheAnswerBoxHasTheKeyboard()
    {
        m_form->expectTop10();
        m_form->button("cmdViewTop10").setFocus();
        m_form->click("cmdViewTop10");
        m_form->waitForWindow();
        QVERIFY(m_form->answerBox().hasFocus());
    }

    void typedLettersAreTaken()
    {
        QCOMPARE(lettersTaken(*m_form), 0);
        Controls::type(m_form->answerBox(), GameForm::word().left(3));
        QCOMPARE(lettersTaken(*m_form), 3);
        m_form->answerRight();
        QCOMPARE(lettersTaken(*m_form), 0);
    }

    void aHitMovesPointsTilesAndTheListButNotTheGame()
    {
        m_form->answerRight();
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(Controls::focusedControl(), u"txtUserAnswer"_s);
        QCOMPARE(motions(m_form->control<TileRack>("tileRack")), 1);
        QCOMPARE(motions(m_form->control<QWidget>("lstHits")), 1);
        QCOMPARE(motions(m_form->window()), 3);
        // The next answer ends them.
        m_form->answerRight();
        QCOMPARE(motions(m_form->window()), 3);
        QTRY_COMPARE(motions(m_form->window()), 0);
    }

    void aMissMovesTheHeartAndTheAnswer()
    {
        m_form->expectMiss([this](QDialog &) {
            QCOMPARE(motions(m_form->control<QWidget>("lifeHearts")), 1);
            QCOMPARE(motions(m_form->window()), 2);
        });
        m_form->answer(u"wrong"_s);
        QCOMPARE(motions(m_form->window()), 0); // the next word ends them
    }

    void aTimeOutMovesOtherThings()
    {
        m_form->expectMiss([this](QDialog &) {
            QCOMPARE(motions(m_form->control<QWidget>("lifeHearts")), 1);
            QCOMPARE(motions(m_form->control<QWidget>("tileRack")), 2); // the rest of the letters
            QCOMPARE(motions(m_form->control<QWidget>("lblCountDown")), 1);
        });
        m_form->passTime(29);
        QTRY_COMPARE(motions(m_form->window()), 0);
        m_form->passTime();
    }

    void theLastSecondsCanBeFelt()
    {
        auto &ring = m_form->control<QWidget>("lblCountDown");
        m_form->passTime(24);
        QCOMPARE(motions(ring), 0);
        m_form->passTime();
        QCOMPARE(motions(ring), 1);
        QTRY_COMPARE(motions(ring), 0);
    }

    void aNewLevelFillsTheRingBehindItsMessage()
    {
        m_form->answerRight(19);
        m_form->answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok, [this](QDialog &) {
            QCOMPARE(motions(m_form->control<QWidget>("lblCountDown")), 1);
        });
        m_form->answerRight();
    }

    void noMotionInAStyleWithoutAnimations()
    {
        QApplication::setStyle(new MotionStyle(0));
        m_form->answerRight();
        QCOMPARE(motions(m_form->window()), 0);
        m_form->expectMiss([this](QDialog &) { QCOMPARE(motions(m_form->window()), 0); });
        m_form->passTime(30);
        m_form->expectMiss([this](QDialog &) { QCOMPARE(motions(m_form->window()), 0); });
        m_form->answer(u"wrong"_s);
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Feedback_test>(argc, argv);
}

#include "frmTanglewit_Feedback_test.moc"
