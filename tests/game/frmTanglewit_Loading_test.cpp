// SPDX-License-Identifier: GPL-3.0-or-later
// The game window before the first game.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QStringList numberedWords(int count)
{
    QStringList words;
    for (int i = 1; i <= count; ++i)
        words += u"word%1"_s.arg(i);
    return words;
}

} // namespace

class frmTanglewit_Loading_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theGameIsReadyToStart()
    {
        m_form->open();
        QCOMPARE(m_form->look(), GameForm::ready());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        QCOMPARE(gScore, Integer(0));
        QCOMPARE(m_form->text("lblClue"), u"Please click Start to begin."_s);
        QCOMPARE(m_form->text("lblScrambledWord"), QString());
        QCOMPARE(m_form->text("lblSentence"), QString());
        QCOMPARE(m_form->hitsTitle(), u"Hits"_s);
        QCOMPARE(m_form->tiles(), QStringList());
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->lines("lstMisses"), QStringList());
        QCOMPARE(m_form->answerBox().text(), QString());
        QVERIFY(m_form->control<QWidget>("lblScrambledWord").isVisible());
    }

    void startIsTheDefaultButtonAndHasTheFocus()
    {
        m_form->open();
        QVERIFY(m_form->button("cmdStart").isDefault());
        QVERIFY(!m_form->button("cmdEnter").isDefault());
        QVERIFY(!m_form->button("cmdQuit").isDefault());
        QVERIFY(m_form->button("cmdStart").hasFocus());
    }

    void theTimerIsOneSecondAndWaits()
    {
        m_form->window().show();
        QCOMPARE(m_form->timer().interval(), 1000);
        QVERIFY(!m_form->timer().isActive());
        QVERIFY(!m_form->timer().isSingleShot());
    }

    void thereAreThirtyTiles()
    {
        m_form->open();
        for (int i = 1; i <= 30; ++i)
            QVERIFY(!m_form->button(u"cmdLetters_%1"_s.arg(i).toLatin1()).isVisible());
        QVERIFY(!m_form->window().findChild<QWidget *>(u"cmdLetters_0"_s));
        QVERIFY(!m_form->window().findChild<QWidget *>(u"cmdLetters_31"_s));
    }

    void theWindowLoadsWhenItIsShown()
    {
        gScore = 7;
        gOrderIndex = 9;
        const QAction item;
        frmTanglewit window({item, item, item}, nullptr);
        QCOMPARE(gScore, Integer(7));
        QCOMPARE(gOrderIndex, Integer(9));
        window.show();
        QCOMPARE(gScore, Integer(0));
        QCOMPARE(gOrderIndex, Integer(1));
    }

    void theOrderHasRoomForTheListsWords_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<int>("size");
        QTest::newRow("1") << 1 << 1;
        QTest::newRow("999") << 999 << 999;
        QTest::newRow("1000") << 1000 << 1000;
        QTest::newRow("1001") << 1001 << 1000;
        QTest::newRow("32000") << 32000 << 1000;
    }

    void theOrderHasRoomForTheListsWords()
    {
        QFETCH(int, words);
        QFETCH(int, size);
        GameForm::fill(numberedWords(words));
        gOrderIndex = 5;
        m_form->open();
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gOrderSize, Integer(size));
        QCOMPARE(gWordOrder.size(), words);
    }

    void theOrderKeepsWhatItHeld()
    {
        gWordOrder = Array<Integer>({4, 0, 2});
        m_form->open();
        QCOMPARE(gWordOrder.size(), 5);
        QCOMPARE(gWordOrder(1), Integer(4));
        QCOMPARE(gWordOrder(3), Integer(2));
        QCOMPARE(gWordOrder(5), Integer(0));
    }

    void theTracksAreNamedWhereThereIsToBeMusic()
    {
        m_form->choose("mnuUpbeat");
        m_form->open();
        QCOMPARE(gFastBeatTracks.size(), 10);
        QCOMPARE(gSoftBeatTracks.size(), 10);
        QVERIFY(gFastBeatTracks(1).endsWith(u"fastbeat/Track01.wav"_s));
        QVERIFY(gFastBeatTracks(10).endsWith(u"fastbeat/Track10.wav"_s));
        QVERIFY(gSoftBeatTracks(1).endsWith(u"softbeat/Track01.wav"_s));
        QCOMPARE(m_form->sounds(), QStringList());
    }

    void theTracksHaveNoNamesWhereTheMusicIsOff()
    {
        m_form->open();
        QCOMPARE(gFastBeatTracks.size(), 0);
        QCOMPARE(gSoftBeatTracks.size(), 0);
    }

    void aListOfAThousandWordsAndMoreIsPlayed()
    {
        GameForm::fill(numberedWords(1001));
        m_form->start();
        QCOMPARE(m_form->look(), GameForm::playing());
        QCOMPARE(gWordOrder.size(), 1001);
        QVERIFY(gWordOrder(1000) != 0);
        QCOMPARE(gWordOrder(1001), Integer(0));
    }

    void theWindowIsReadyAgainWhenItComesBack_data()
    {
        GameForm::addStates({"ready", "playing", "over"});
    }

    void theWindowIsReadyAgainWhenItComesBack()
    {
        QFETCH(QString, state);
        m_form->open();
        m_form->raiseStartLevel(2);
        if (state != u"ready"_s) {
            m_form->click("cmdStart");
            m_form->answerRight();
            m_form->answerWrong();
            m_form->passTime(9);
            m_form->click("cmdHide");
        }
        if (state == u"over"_s)
            m_form->loseAllLives(u"Ann"_s);
        m_form->window().close();
        m_form->open();
        QCOMPARE(m_form->look(), GameForm::ready());
        QCOMPARE(m_form->numbers(), u"0 1 30 5"_s);
        QCOMPARE(gScore, Integer(0));
        QCOMPARE(m_form->hitsTitle(), u"Hits"_s);
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->lines("lstMisses"), QStringList());
        QCOMPARE(m_form->tiles(), QStringList());
        QCOMPARE(m_form->text("lblClue"), u"Please click Start to begin."_s);
        QCOMPARE(m_form->text("lblSentence"), QString());
        QVERIFY(m_form->button("cmdStart").isDefault());
        QVERIFY(m_form->control<QWidget>("lblScrambledWord").isVisible());
        // The time limit is that of level 1 again.
        m_form->click("cmdStart");
        m_form->passTime();
        m_form->answerRight();
        QCOMPARE(m_form->numbers(), u"4 1 30 5"_s);
    }

    void anotherListIsTakenWhenTheWindowComesBack()
    {
        m_form->start();
        m_form->window().close();
        GameForm::fill({u"grape"_s, u"melon"_s});
        m_form->open();
        QCOMPARE(gOrderSize, Integer(2));
        QCOMPARE(gWordOrder.size(), 2);
        m_form->click("cmdStart");
        QVERIFY((QStringList{u"grape"_s, u"melon"_s}).contains(GameForm::word()));
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Loading_test>(argc, argv);
}

#include "frmTanglewit_Loading_test.moc"
