// SPDX-License-Identifier: GPL-3.0-or-later
// The end of a game, and looking at the Top 10.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "platform/Paths.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

using namespace Module1;
using namespace Qt::StringLiterals;

class frmTanglewit_Over_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void fiveMissesEndTheGame()
    {
        m_form->start();
        for (int lives = 4; lives > 0; --lives) {
            m_form->answerWrong();
            QCOMPARE(m_form->numbers(), u"0 1 30 %1"_s.arg(lives));
            QCOMPARE(m_form->look(), GameForm::playing());
        }
        m_form->passTime(16);
        m_form->expectMiss();
        m_form->expectTop10([this](QDialog &dialog) {
            QVERIFY(dialog.isModal());
            QVERIFY(!m_form->timer().isActive());
            QCOMPARE(m_form->lines("lstMisses").size(), 5);
            QCOMPARE(m_form->text("lblNumLifes"), u"0"_s);
        });
        m_form->answer(u"wrong"_s);
        checkOver();
    }

    void fiveTimeOutsEndTheGame()
    {
        m_form->start();
        for (int lives = 4; lives > 0; --lives) {
            m_form->timeOut();
            QCOMPARE(m_form->numbers(), u"0 1 30 %1"_s.arg(lives));
        }
        m_form->expectMiss();
        m_form->expectTop10([this](QDialog &) {
            QVERIFY(!m_form->timer().isActive());
            QCOMPARE(m_form->lines("lstMisses").size(), 5);
            QCOMPARE(m_form->tiles(), QStringList());
            QCOMPARE(m_form->text("lblCountDown"), u"0"_s);
            // There is no next word.
            QCOMPARE(gOrderIndex, Integer(5));
        });
        m_form->passTime(30);
        checkOver();
        QCOMPARE(gOrderIndex, Integer(5));
        for (const QString &line : m_form->lines("lstMisses"))
            QVERIFY(line.endsWith(u" :: (Timer Expired)"_s));
    }

    void missesAndTimeOutsBothCostLives()
    {
        m_form->start();
        m_form->timeOut();
        m_form->answerWrong();
        m_form->timeOut();
        m_form->answerWrong();
        QCOMPARE(m_form->text("lblNumLifes"), u"1"_s);
        m_form->expectMiss();
        m_form->expectTop10();
        m_form->passTime(30);
        checkOver();
    }

    void hitsInBetweenGiveNoLifeBack()
    {
        m_form->start();
        for (int lives = 4; lives > 0; --lives) {
            m_form->answerRight(3);
            m_form->answerWrong();
            QCOMPARE(m_form->text("lblNumLifes"), QString::number(lives));
        }
        QCOMPARE(m_form->text("lblScore"), u"48"_s);
        m_form->loseAllLives(u"Ann"_s);
        checkOver();
        QCOMPARE(m_form->lines("lstHits").size(), 12);
    }

    void aScoreAsksForAName()
    {
        m_form->start();
        m_form->answerRight(2);
        while (m_form->text("lblNumLifes") != u"1"_s)
            m_form->answerWrong();
        m_form->expectMiss();
        m_form->expectTop10Entry(u"Ann"_s, [](QDialog &dialog) {
            QVERIFY(!gViewTop10Only);
            QVERIFY(Controls::find<QLineEdit>(dialog, "txtName").isVisible());
            QCOMPARE(Controls::find<QLabel>(dialog, "lblTitle").text(),
                     u"Did you make the Top 10 list?"_s);
        });
        m_form->answer(u"wrong"_s);
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
        QCOMPARE(gTop10[0].Points, Integer(8));
        QCOMPARE(gTop10[0].EntryDate, QDate::currentDate());
        QCOMPARE(readFile(pathOf(Place::Top10)).size(), 123);
        QCOMPARE(gScore, Integer(0));
        checkOver();
    }

    void noPointsAskForNoName()
    {
        m_form->start();
        while (m_form->text("lblNumLifes") != u"1"_s)
            m_form->answerWrong();
        m_form->expectMiss();
        m_form->expectTop10([](QDialog &dialog) {
            QVERIFY(!Controls::find<QLineEdit>(dialog, "txtName").isVisible());
            QVERIFY(!Controls::find<QPushButton>(dialog, "cmdEnter").isVisible());
        });
        m_form->answer(u"wrong"_s);
        QCOMPARE(gTop10[0].Points, Integer(0));
        QVERIFY(!QFile::exists(pathOf(Place::Top10)));
    }

    void theGameIsOverHoweverTheDialogCloses()
    {
        m_form->start();
        m_form->answerRight();
        while (m_form->text("lblNumLifes") != u"1"_s)
            m_form->answerWrong();
        m_form->expectMiss();
        m_form->answers.useForm("dlgGameOver", [](QDialog &dialog) { dialog.close(); });
        m_form->answer(u"wrong"_s);
        checkOver();
        QCOMPARE(gTop10[0].Points, Integer(4));
        QCOMPARE(gTop10[0].PlayerName, QString());
    }

    void enterInAGameThatIsOverIsNoAnswer()
    {
        m_form->start();
        m_form->loseAllLives();
        m_form->window().setFocus();
        Controls::press(Qt::Key_Return);
        checkOver();
        QCOMPARE(m_form->lines("lstMisses").size(), 5);
    }

    void restartHasTheFocusWhenTheGameIsOver()
    {
        m_form->start();
        m_form->loseAllLives();
        QVERIFY(m_form->button("cmdRestart").hasFocus());
        Controls::press(Qt::Key_Return);
        QCOMPARE(m_form->look(), GameForm::ready());
    }

    void theRackHasNoPlacesBetweenTwoGames()
    {
        m_form->open();
        auto &rack = m_form->control<QWidget>("tileRack");
        const QImage empty = rack.grab().toImage();
        m_form->click("cmdStart");
        QVERIFY(rack.grab().toImage() != empty);
        m_form->click("cmdRestart");
        QVERIFY(rack.grab().toImage() == empty);
        m_form->click("cmdStart");
        m_form->loseAllLives();
        QVERIFY(rack.grab().toImage() == empty);
    }

    void anotherGameCanBePlayed()
    {
        m_form->start();
        for (int game = 1; game <= 3; ++game) {
            m_form->answerRight(game);
            QCOMPARE(m_form->text("lblScore"), QString::number(4 * game));
            m_form->loseAllLives(u"Game %1"_s.arg(game));
            checkOver();
            m_form->click("cmdRestart");
            QCOMPARE(m_form->look(), GameForm::ready());
            QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
            m_form->click("cmdStart");
            QCOMPARE(m_form->look(), GameForm::playing());
        }
        QCOMPARE(gTop10[0].PlayerName, u"Game 3"_s);
        QCOMPARE(gTop10[2].PlayerName, u"Game 1"_s);
    }

    void theTop10CanBeSeenInEveryState_data() { GameForm::addStates({"ready", "playing", "over"}); }

    void theTop10CanBeSeenInEveryState()
    {
        QFETCH(QString, state);
        m_form->open();
        if (state != u"ready"_s) {
            m_form->click("cmdStart");
            m_form->answerRight();
        }
        if (state == u"over"_s)
            m_form->loseAllLives(u"Ann"_s);
        const QStringList look = m_form->look();
        gScore = 50; // enough to enter the table
        m_form->expectTop10([](QDialog &dialog) {
            QVERIFY(dialog.isModal());
            QVERIFY(gViewTop10Only);
            QVERIFY(!Controls::find<QLineEdit>(dialog, "txtName").isVisible());
            QVERIFY(!Controls::find<QPushButton>(dialog, "cmdEnter").isVisible());
            QCOMPARE(Controls::find<QLabel>(dialog, "lblTitle").text(),
                     u"Did you make the Top 10 list?"_s);
        });
        m_form->click("cmdViewTop10");
        QVERIFY(!gViewTop10Only);
        QCOMPARE(m_form->look(), look);
        QVERIFY(gTop10[0].Points < 50);
    }

    // Close sets the score to 0, the close box does not.
    void closeInTheViewSetsTheScoreToZero_data()
    {
        QTest::addColumn<bool>("byButton");
        QTest::addColumn<int>("score");
        QTest::newRow("button") << true << 0;
        QTest::newRow("close box") << false << 4;
    }

    void closeInTheViewSetsTheScoreToZero()
    {
        QFETCH(bool, byButton);
        QFETCH(int, score);
        m_form->start();
        m_form->answerRight();
        if (byButton)
            m_form->expectTop10();
        else
            m_form->answers.useForm("dlgGameOver", [](QDialog &dialog) { dialog.close(); });
        m_form->click("cmdViewTop10");
        QCOMPARE(gScore, Integer(score));
        QCOMPARE(m_form->text("lblScore"), QString::number(score));
        m_form->answerRight();
        QCOMPARE(m_form->text("lblScore"), QString::number(score + 4));
    }

    void theMusicEndsWithTheView()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->sounds();
        m_form->expectTop10([this](QDialog &) { QCOMPARE(m_form->sounds(), QStringList()); });
        m_form->click("cmdViewTop10");
        QCOMPARE(m_form->sounds(), QStringList{u"NULL 0"_s});
        QVERIFY(gMusicOff);
        m_form->expectLevel(2);
        m_form->answerRight(20);
        QCOMPARE(m_form->sounds(), QStringList());
    }

private:
    void checkOver()
    {
        m_form->waitForWindow();
        QCOMPARE(m_form->look(), GameForm::over());
        QVERIFY(!m_form->button("cmdStart").isEnabled());
        QVERIFY(!m_form->button("cmdEnter").isEnabled());
        QVERIFY(!m_form->button("cmdEnter").isDefault());
        QVERIFY(!m_form->timer().isActive());
        QCOMPARE(m_form->text("lblNumLifes"), u"0"_s);
        QCOMPARE(m_form->text("lblScrambledWord"), QString());
        QCOMPARE(m_form->text("lblClue"), u"Please click Restart to shuffle."_s);
        QCOMPARE(m_form->answerBox().text(), QString());
        QCOMPARE(m_form->tiles(), QStringList());
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Over_test>(argc, argv);
}

#include "frmTanglewit_Over_test.moc"
