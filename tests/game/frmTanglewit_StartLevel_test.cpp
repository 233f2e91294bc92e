// SPDX-License-Identifier: GPL-3.0-or-later
// The switch for the starting level.
#include "game/frmTanglewit.h"

#include "game/CountdownRing.h"
#include "game/GameForm.h"
#include "game/LevelSeconds.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QString numbersAt(int level)
{
    return u"0 %1 %2 5"_s.arg(level).arg(levelSeconds(level));
}

} // namespace

class frmTanglewit_StartLevel_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_form = std::make_unique<GameForm>();
        m_form->open();
    }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void theUpperArrowRaisesTheLevelAndTheLowerOneLowersIt()
    {
        for (int level = 2; level <= 10; ++level) {
            m_form->raiseStartLevel(1);
            QCOMPARE(m_form->numbers(), numbersAt(level));
            QCOMPARE(m_form->levelSwitch().value(), 0);
        }
        for (int level = 9; level >= 1; --level) {
            m_form->lowerStartLevel(1);
            QCOMPARE(m_form->numbers(), numbersAt(level));
            QCOMPARE(m_form->levelSwitch().value(), 0);
        }
    }

    void theLevelStaysBetweenOneAndTen()
    {
        m_form->lowerStartLevel(3);
        QCOMPARE(m_form->numbers(), numbersAt(1));
        m_form->raiseStartLevel(12);
        QCOMPARE(m_form->numbers(), numbersAt(10));
        m_form->lowerStartLevel(1);
        QCOMPARE(m_form->numbers(), numbersAt(9));
    }

    void theKeysDoTheSame_data()
    {
        QTest::addColumn<Qt::Key>("up");
        QTest::addColumn<Qt::Key>("down");
        QTest::newRow("arrows") << Qt::Key_Up << Qt::Key_Down;
        QTest::newRow("pages") << Qt::Key_PageUp << Qt::Key_PageDown;
        QTest::newRow("ends") << Qt::Key_Home << Qt::Key_End;
    }

    void theKeysDoTheSame()
    {
        QFETCH(Qt::Key, up);
        QFETCH(Qt::Key, down);
        m_form->levelSwitch().setFocus();
        Controls::press(down);
        QCOMPARE(m_form->numbers(), numbersAt(1));
        for (int level = 2; level <= 10; ++level) {
            Controls::press(up);
            QCOMPARE(m_form->numbers(), numbersAt(level));
        }
        Controls::press(up);
        QCOMPARE(m_form->numbers(), numbersAt(10));
        Controls::press(down);
        QCOMPARE(m_form->numbers(), numbersAt(9));
        QVERIFY(m_form->levelSwitch().hasFocus());
    }

    void theWheelGoesOneLevelAtATime()
    {
        QScrollBar &bar = m_form->levelSwitch();
        const auto turn = [&bar](int notches) {
            QWheelEvent event(bar.rect().center(), bar.mapToGlobal(bar.rect().center()), {},
                              {0, 120 * notches}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(&bar, &event);
        };
        turn(1);
        turn(1);
        QCOMPARE(m_form->numbers(), numbersAt(3));
        turn(-1);
        QCOMPARE(m_form->numbers(), numbersAt(2));
    }

    void theSwitchIsFixedDuringTheGame()
    {
        m_form->raiseStartLevel(3);
        m_form->click("cmdStart");
        QVERIFY(!m_form->levelSwitch().isEnabled());
        m_form->raiseStartLevel(1);
        m_form->lowerStartLevel(2);
        QCOMPARE(m_form->numbers(), numbersAt(4));
    }

    void theGameRunsWithTheChosenLimit()
    {
        m_form->raiseStartLevel(5);
        m_form->click("cmdStart");
        QCOMPARE(m_form->numbers(), u"0 6 9 5"_s);
        m_form->passTime(4);
        m_form->answerRight();
        QCOMPARE(m_form->numbers(), u"4 6 9 5"_s);
    }

    void theRingIsWholeAtEachLimit()
    {
        auto &ring = m_form->control<CountdownRing>("lblCountDown");
        // Three quarters of the way round.
        const auto colour = [&ring] {
            return ring.grab().toImage().pixelColor(4, ring.height() / 2);
        };
        QCOMPARE(colour().name(), CountdownRing::colourOf(1, ring.palette()).name());
        m_form->raiseStartLevel(5);
        const QColor whole = CountdownRing::colourOf(6, ring.palette());
        QCOMPARE(colour().name(), whole.name());
        m_form->click("cmdStart");
        m_form->passTime(3);
        QVERIFY(colour().name() != whole.name());
    }

    void restartGoesBackToLevelOneAndFreesTheSwitch()
    {
        m_form->raiseStartLevel(5);
        m_form->click("cmdStart");
        m_form->click("cmdRestart");
        QCOMPARE(m_form->numbers(), numbersAt(1));
        QVERIFY(m_form->levelSwitch().isEnabled());
        m_form->raiseStartLevel(1);
        QCOMPARE(m_form->numbers(), numbersAt(2));
    }

    void restartForgetsAChosenLevelThatWasNotPlayed()
    {
        m_form->raiseStartLevel(5);
        m_form->click("cmdRestart");
        QCOMPARE(m_form->numbers(), numbersAt(1));
        QCOMPARE(m_form->look(), GameForm::ready());
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_StartLevel_test>(argc, argv);
}

#include "frmTanglewit_StartLevel_test.moc"
