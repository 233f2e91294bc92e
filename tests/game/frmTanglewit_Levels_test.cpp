// SPDX-License-Identifier: GPL-3.0-or-later
// Levels, and whole games through all of them.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "game/LevelSeconds.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

class frmTanglewit_Levels_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theTwentiethHitRaisesTheLevel()
    {
        m_form->start();
        m_form->answerRight(19);
        QCOMPARE(m_form->numbers(), u"76 1 30 5"_s);
        QCOMPARE(m_form->lines("lstHits").size(), 19);
        m_form->passTime(3);
        const QString word = GameForm::word();
        m_form->answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok, [&](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            QVERIFY(!m_form->timer().isActive());
            QCOMPARE(m_form->numbers(), u"80 2 27 5"_s);
            QCOMPARE(m_form->lines("lstHits").size(), 20);
            QCOMPARE(GameForm::word(), word);
        });
        m_form->answerRight();
        QVERIFY(m_form->answers.allSeen());
        QCOMPARE(m_form->numbers(), u"80 2 25 5"_s);
        QCOMPARE(m_form->lines("lstHits"), QStringList());
        QCOMPARE(m_form->hitsTitle(), u"Hits: 20"_s);
        // The list has five words, so the fifth pass begins with the twenty-first.
        QCOMPARE(gOrderIndex, Integer(1));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(1));
        QCOMPARE(m_form->look(), GameForm::playing());
        QTRY_VERIFY(m_form->answerBox().hasFocus());
        m_form->answerRight();
        QCOMPARE(m_form->hitsTitle(), u"Hits: 21"_s);
        QCOMPARE(m_form->lines("lstHits").size(), 1);
    }

    void missesDoNotCountTowardsTheLevel()
    {
        m_form->start();
        m_form->answerRight(10);
        m_form->answerWrong();
        m_form->timeOut();
        m_form->answerRight(9);
        QCOMPARE(m_form->text("lblLevel"), u"1"_s);
        m_form->expectLevel(2);
        m_form->answerRight();
        QCOMPARE(m_form->text("lblLevel"), u"2"_s);
        // The list of misses is not cleared.
        QCOMPARE(m_form->lines("lstMisses").size(), 2);
    }

    void aGameFromLevelSixGoesOnToSeven()
    {
        m_form->open();
        m_form->raiseStartLevel(5);
        m_form->click("cmdStart");
        m_form->expectLevel(7);
        m_form->answerRight(20);
        QCOMPARE(m_form->numbers(), u"80 7 8 5"_s);
    }

    void levelNineIsTheLastToBeRaised()
    {
        m_form->open();
        m_form->raiseStartLevel(8);
        m_form->click("cmdStart");
        QCOMPARE(m_form->numbers(), u"0 9 6 5"_s);
        m_form->expectLevel(10);
        m_form->answerRight(20);
        QCOMPARE(m_form->numbers(), u"80 10 5 5"_s);
        m_form->answerRight(41);
        QCOMPARE(m_form->numbers(), u"244 10 5 5"_s);
        QCOMPARE(m_form->lines("lstHits").size(), 41);
        QCOMPARE(m_form->hitsTitle(), u"Hits: 61"_s);
    }

    void aWholeGameGoesUpToLevelTen()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        QCOMPARE(m_form->sounds(), QStringList{u"fastbeat/Track01.wav 9"_s});
        for (int level = 1; level < 10; ++level) {
            m_form->answerRight(19);
            QCOMPARE(m_form->numbers(),
                     u"%1 %2 %3 5"_s.arg(level * 80 - 4).arg(level).arg(levelSeconds(level)));
            QCOMPARE(m_form->sounds(), QStringList());
            m_form->expectLevel(level + 1);
            m_form->answerRight();
            QVERIFY(m_form->answers.allSeen());
            QCOMPARE(m_form->numbers(),
                     u"%1 %2 %3 5"_s.arg(level * 80).arg(level + 1).arg(levelSeconds(level + 1)));
            QCOMPARE(m_form->hitsTitle(), u"Hits: %1"_s.arg(level * 20));
            QCOMPARE(m_form->sounds(),
                     (QStringList{u"NULL 0"_s,
                                  u"fastbeat/Track%1.wav 9"_s.arg(level + 1, 2, 10, QChar(u'0'))}));
        }
        m_form->answerRight(20);
        QCOMPARE(m_form->numbers(), u"800 10 5 5"_s);
        QCOMPARE(m_form->hitsTitle(), u"Hits: 200"_s);
        QCOMPARE(m_form->sounds(), QStringList());

        m_form->loseAllLives(u"Ann"_s);
        QCOMPARE(gTop10[0].Points, Integer(800));
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
        QCOMPARE(m_form->sounds(), QStringList{u"NULL 0"_s});
        QCOMPARE(m_form->look(), GameForm::over());
    }

    void soothingPlaysTheOtherSet()
    {
        m_form->choose("mnuSoothing");
        m_form->start();
        m_form->expectLevel(2);
        m_form->answerRight(20);
        QCOMPARE(m_form->sounds(), (QStringList{u"softbeat/Track01.wav 9"_s, u"NULL 0"_s,
                                                u"softbeat/Track02.wav 9"_s}));
    }

    void theTrackOfAGameFromLevelSixIsTheFirst()
    {
        m_form->choose("mnuUpbeat");
        m_form->open();
        m_form->raiseStartLevel(5);
        m_form->click("cmdStart");
        QCOMPARE(m_form->sounds(), QStringList{u"fastbeat/Track01.wav 9"_s});
        m_form->expectLevel(7);
        m_form->answerRight(20);
        QCOMPARE(m_form->sounds(), (QStringList{u"NULL 0"_s, u"fastbeat/Track07.wav 9"_s}));
    }

    void theTrackChangesBeforeTheMessage()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->answerRight(19);
        m_form->sounds();
        m_form->answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok, [this](QMessageBox &) {
            QCOMPARE(m_form->sounds(), (QStringList{u"NULL 0"_s, u"fastbeat/Track02.wav 9"_s}));
        });
        m_form->answerRight();
        QCOMPARE(m_form->sounds(), QStringList());
    }

    void anotherChoiceCountsFromTheNextLevel()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->sounds();
        m_form->choose("mnuSoothing");
        QCOMPARE(m_form->sounds(), QStringList());
        m_form->expectLevel(2);
        m_form->answerRight(20);
        QCOMPARE(m_form->sounds(), (QStringList{u"NULL 0"_s, u"softbeat/Track02.wav 9"_s}));
    }

    void musicOffLeavesTheTrackUntilTheGameIsOver()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->sounds();
        m_form->choose("mnuMusicOff");
        m_form->expectLevel(2);
        m_form->answerRight(20);
        QCOMPARE(m_form->sounds(), QStringList());
        m_form->loseAllLives(u"Ann"_s);
        QCOMPARE(m_form->sounds(), QStringList{u"NULL 0"_s});
    }

    void withMusicOffNothingIsAskedFor()
    {
        m_form->start();
        m_form->expectLevel(2);
        m_form->answerRight(20);
        m_form->loseAllLives(u"Ann"_s);
        QCOMPARE(m_form->sounds(), QStringList());
    }

    void theNextGameHasMusicAgain()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->loseAllLives();
        QVERIFY(gMusicOff);
        QCOMPARE(m_form->sounds(), (QStringList{u"fastbeat/Track01.wav 9"_s, u"NULL 0"_s}));
        m_form->click("cmdRestart");
        m_form->click("cmdStart");
        QVERIFY(!gMusicOff);
        QCOMPARE(m_form->sounds(), QStringList{u"fastbeat/Track01.wav 9"_s});
    }

    void restartLeavesTheTrackUntilTheNextStart()
    {
        m_form->choose("mnuUpbeat");
        m_form->start();
        m_form->click("cmdRestart");
        m_form->click("cmdStart");
        QCOMPARE(m_form->sounds(),
                 (QStringList{u"fastbeat/Track01.wav 9"_s, u"fastbeat/Track01.wav 9"_s}));
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Levels_test>(argc, argv);
}

#include "frmTanglewit_Levels_test.moc"
