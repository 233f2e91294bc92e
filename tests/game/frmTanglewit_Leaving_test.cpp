// SPDX-License-Identifier: GPL-3.0-or-later
// Restart, Quit and the close box in every state of the game.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

#include <QSignalSpy>

#include <algorithm>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString GoodBye = u"Good bye. Thank you for playing The Tanglewit!!!"_s;

void addStates()
{
    GameForm::addStates({"ready", "playing", "new pass at 0", "over"});
}

} // namespace

class frmTanglewit_Leaving_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_form = std::make_unique<GameForm>(QStringList{u"lion"_s});
        m_form->choose("mnuUpbeat");
    }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void restartMakesTheGameReady_data() { addStates(); }

    void restartMakesTheGameReady()
    {
        QFETCH(QString, state);
        bring(state);
        gWordOrder = Array<Integer>({0});
        gOrderIndex = 7;
        m_form->click("cmdRestart");
        QCOMPARE(m_form->look(), GameForm::ready());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        QCOMPARE(gScore, Integer(0));
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gWordOrder(1), Integer(1));
        QCOMPARE(m_form->text("lblScrambledWord"), QString());
        QCOMPARE(m_form->text("lblSentence"), QString());
        QCOMPARE(m_form->text("lblClue"),
                 u"Word List has been shuffled. Please click Start to begin."_s);
        QCOMPARE(m_form->answerBox().text(), QString());
        QCOMPARE(m_form->hitsTitle(), u"Hits"_s);
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->lines("lstMisses"), QStringList());
        QCOMPARE(m_form->tiles(), QStringList());
        QVERIFY(m_form->button("cmdStart").isDefault());
        QVERIFY(!m_form->button("cmdEnter").isEnabled());
        QVERIFY(m_form->window().isVisible());
    }

    void aGameAfterRestartBeginsFromTheBeginning_data() { addStates(); }

    void aGameAfterRestartBeginsFromTheBeginning()
    {
        QFETCH(QString, state);
        bring(state);
        m_form->click("cmdRestart");
        m_form->click("cmdStart");
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        m_form->passTime(9);
        QCOMPARE(m_form->tiles(), QStringList());
        m_form->passTime();
        QCOMPARE(m_form->tiles(), QStringList{u"14 l"_s});
        m_form->answerRight();
        QCOMPARE(m_form->numbers(), u"2 1 30 5"_s);
        QCOMPARE(m_form->hitsTitle(), u"Hits: 1"_s);
        m_form->expectLevel(2);
        m_form->answerRight(19);
    }

    void restartTakesANewOrder()
    {
        GameForm::fill(GameForm::fiveWords());
        m_form->open();
        m_form->click("cmdRestart");
        QCOMPARE(gWordOrder.size(), 5);
        std::vector<int> order;
        for (int i = 1; i <= 5; ++i)
            order.push_back(gWordOrder(i).toInt());
        std::sort(order.begin(), order.end());
        QCOMPARE(order, (std::vector<int>{1, 2, 3, 4, 5}));
    }

    void quitSaysGoodByeAndGoesBackToTheMainWindow_data() { addStates(); }

    void quitSaysGoodByeAndGoesBackToTheMainWindow()
    {
        QFETCH(QString, state);
        bring(state);
        const bool plays = state == u"playing"_s || state == u"new pass at 0"_s;
        const QSignalSpy left(&m_form->window(), &frmTanglewit::left);
        qsizetype leftBefore = 0;
        const auto inspect = [&](QDialog &dialog) {
            leftBefore = left.count();
            QVERIFY(dialog.isModal());
            QVERIFY(!m_form->window().isVisible());
            QVERIFY(!m_form->timer().isActive());
            QCOMPARE(Controls::find<QLabel>(dialog, "lblTitle").text(), GoodBye);
            QCOMPARE(Controls::find<QLineEdit>(dialog, "txtName").isVisible(), gScore > 0);
            QCOMPARE(m_form->sounds(), QStringList());
        };
        if (gScore > 0)
            m_form->expectTop10Entry(u"Ann"_s, inspect);
        else
            m_form->expectTop10(inspect);
        m_form->sounds();
        m_form->click("cmdQuit");
        QVERIFY(m_form->answers.allSeen());
        QVERIFY(!m_form->window().isVisible());
        QVERIFY(m_form->mainWindow().isVisible());
        QCOMPARE(left.count(), leftBefore + 1);
        QVERIFY(!m_form->timer().isActive());
        QCOMPARE(m_form->sounds(),
                 plays || state == u"ready"_s ? QStringList{u"NULL 0"_s} : QStringList());
        QVERIFY(gMusicOff);
    }

    void quitWithAScoreTakesItsName()
    {
        bring(u"playing"_s);
        QCOMPARE(gScore, Integer(3));
        m_form->expectTop10Entry(u" Ann "_s);
        m_form->click("cmdQuit");
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
        QCOMPARE(gTop10[0].Points, Integer(3));
    }

    void theMainWindowIsThereHoweverTheGoodByeCloses()
    {
        bring(u"playing"_s);
        m_form->answers.useForm("dlgGameOver", [](QDialog &dialog) { dialog.close(); });
        m_form->click("cmdQuit");
        QVERIFY(m_form->mainWindow().isVisible());
        QVERIFY(!m_form->window().isVisible());
    }

    void theCloseBoxGoesBackToTheMainWindowWithoutADialog_data() { addStates(); }

    void theCloseBoxGoesBackToTheMainWindowWithoutADialog()
    {
        QFETCH(QString, state);
        bring(state);
        const int seen = m_form->answers.seen();
        m_form->sounds();
        const bool isMusicOff = gMusicOff;
        m_form->window().close();
        QVERIFY(!m_form->window().isVisible());
        QVERIFY(m_form->mainWindow().isVisible());
        QVERIFY(!m_form->timer().isActive());
        QCOMPARE(m_form->answers.seen(), seen);
        const bool plays = state == u"playing"_s || state == u"new pass at 0"_s;
        QCOMPARE(m_form->sounds(), plays ? QStringList{u"NULL 0"_s} : QStringList());
        QCOMPARE(gMusicOff, isMusicOff);
    }

    void theCloseBoxEndsATrackAlsoAfterMusicOff()
    {
        bring(u"playing"_s);
        m_form->choose("mnuMusicOff");
        m_form->sounds();
        m_form->window().close();
        QCOMPARE(m_form->sounds(), QStringList{u"NULL 0"_s});
        QVERIFY(gMusicOff);
    }

    void aGameWithoutMusicRequestsNoStop()
    {
        m_form->choose("mnuMusicOff");
        bring(u"playing"_s);
        m_form->expectTop10Entry(u"Ann"_s);
        m_form->click("cmdQuit");
        QCOMPARE(m_form->sounds(), QStringList());
    }

    void aGameAfterQuitHasMusicAgain()
    {
        bring(u"playing"_s);
        m_form->expectTop10Entry(u"Ann"_s);
        m_form->click("cmdQuit");
        m_form->sounds();
        m_form->start();
        QCOMPARE(m_form->sounds(), QStringList{u"fastbeat/Track01.wav 9"_s});
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
    }

private:
    void bring(const QString &state)
    {
        m_form->open();
        if (state == u"ready"_s)
            return;
        m_form->click("cmdStart");
        m_form->answerRight();
        m_form->passTime(10);
        Controls::type(m_form->answerBox(), u"half"_s);
        if (state == u"new pass at 0"_s) {
            m_form->timeOut();
            QCOMPARE(m_form->text("lblCountDown"), u"0"_s);
        } else if (state == u"over"_s) {
            m_form->loseAllLives(u"Ann"_s);
        }
    }

    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Leaving_test>(argc, argv);
}

#include "frmTanglewit_Leaving_test.moc"
