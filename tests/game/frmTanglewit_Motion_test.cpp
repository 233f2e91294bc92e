// SPDX-License-Identifier: GPL-3.0-or-later
// The game's motions run beside the play: they are short, change nothing, and leave nothing behind.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"
#include "support/MotionStyle.h"
#include "support/Motions.h"
#include "support/SteppedTime.h"

#include <QAbstractEventDispatcher>
#include <QVariantAnimation>

#include <algorithm>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// What a person and an assistive tool find in the window: a line for each control with a name.
QStringList stateOf(const QWidget &window)
{
    QStringList state{u"focus "_s + Controls::focusedControl()};
    for (const QWidget *control : window.findChildren<QWidget *>()) {
        const QString name = control->objectName();
        if (name.isEmpty() || name.startsWith(u"qt_"_s) || control->window() != &window)
            continue;
        QString text = control->property("text").toString();
        if (name == u"lblScrambledWord")
            std::sort(text.begin(), text.end());
        state += QStringList{name, text, control->accessibleName(),
                             QString::number(control->isEnabled()),
                             QString::number(control->isVisible())}
                     .join(u'|');
    }
    return state;
}

// The objects that have a timer running.
QStringList timersOf(const QWidget &window)
{
    QStringList running;
    for (QObject *object : window.findChildren<QObject *>())
        if (!QAbstractEventDispatcher::instance()->registeredTimers(object).isEmpty())
            running += object->objectName();
    return running;
}

} // namespace

class frmTanglewit_Motion_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QApplication::setCursorFlashTime(0); }

    void init() { newGame(200); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void aHitsMotionsAreOverIn400Milliseconds()
    {
        m_form->answerRight();
        verifyShort();
    }

    void aMissesMotionsAreOverIn400Milliseconds()
    {
        m_form->expectMiss([this](QDialog &) { verifyShort(); });
        m_form->answer(u"wrong"_s);
        verifyShortOrNone();
    }

    void aTimeOutsMotionsAreOverIn400Milliseconds()
    {
        m_form->expectMiss([this](QDialog &) { verifyShort(); });
        m_form->passTime(30);
        verifyShortOrNone();
    }

    void aTurnedUpLettersMotionIsOverIn400Milliseconds()
    {
        m_form->passTime(8);
        verifyShort();
    }

    void aLastSecondsMotionIsOverIn400Milliseconds()
    {
        m_form->passTime(23);
        m_time.pass(400);
        m_form->passTime(2);
        verifyShort();
    }

    void aNewLevelsMotionsAreOverIn400Milliseconds()
    {
        m_form->answerRight(19);
        m_form->answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok,
                                     [this](QDialog &) { verifyShort(); });
        m_form->answerRight();
    }

    void aSlowStylesMotionsAreOverIn400Milliseconds()
    {
        newGame(5000);
        m_form->passTime(8);
        verifyShort();
        m_form->answerRight();
        verifyShort();
    }

    void theTop10sMotionIsOverIn400Milliseconds()
    {
        m_form->answerRight();
        m_time.pass(400);
        m_form->expectTop10Entry(u"Ann"_s, [this](QDialog &dialog) {
            const auto &celebration = *dialog.findChild<QVariantAnimation *>();
            QCOMPARE(celebration.state(), QAbstractAnimation::Running);
            waitForFocus();
            m_time.pass(0);
            const QStringList before = stateOf(dialog);
            for (int passed = 0; passed < 400; passed += 40) {
                m_time.pass(40);
                QCOMPARE(stateOf(dialog), before);
            }
            QCOMPARE(celebration.state(), QAbstractAnimation::Stopped);
        });
        m_form->click("cmdQuit");
        QTRY_VERIFY(!m_time.isNeeded());
    }

    void theNextWordEndsThePoints()
    {
        m_form->answerRight();
        const int playing = motions(m_form->window());
        m_form->answerRight();
        QCOMPARE(motions(m_form->window()), playing);
    }

    // A game with motions and one without show the same, at each moment.
    void motionsChangeNothing()
    {
        const std::vector<QStringList> moving = wholeGame();
        newGame(0);
        const std::vector<QStringList> still = wholeGame();
        QCOMPARE(moving.size(), still.size());
        for (std::size_t i = 0; i < still.size(); ++i)
            QCOMPARE(moving[i], still[i]);
    }

    void nothingRunsWhenNothingMoves()
    {
        QTRY_COMPARE(timersOf(m_form->window()), QStringList(u"Timer1"_s));
        m_form->answerRight();
        m_form->answerWrong();
        m_form->timeOut();
        m_time.pass(400);
        QTRY_VERIFY(!m_time.isNeeded());
        QTRY_COMPARE(timersOf(m_form->window()), QStringList(u"Timer1"_s));
        m_form->click("cmdRestart");
        QTRY_VERIFY(!m_time.isNeeded());
        QTRY_COMPARE(timersOf(m_form->window()), QStringList());
    }

    void nothingPlaysInAHiddenWindow()
    {
        m_form->window().hide();
        m_form->passTime(8);
        QCOMPARE(motions(m_form->window()), 0);
        QTRY_VERIFY(!m_time.isNeeded());
    }

private:
    void newGame(int motion)
    {
        m_form.reset();
        QApplication::setStyle(new MotionStyle(motion));
        m_form = std::make_unique<GameForm>(QStringList{u"lighthouse"_s});
        m_form->start();
    }

    // A window is not active at once when it opens, or when a dialog over it closes.
    void waitForFocus()
    {
        QWidget *dialog = QApplication::activeModalWidget();
        Controls::waitUntilActive(dialog ? *dialog : m_form->window());
    }

    void verifyShort()
    {
        QVERIFY(motions(m_form->window()) > 0);
        verifyShortOrNone();
    }

    void verifyShortOrNone()
    {
        waitForFocus();
        m_time.pass(0); // what has just been started begins now
        const QStringList before = stateOf(m_form->window());
        for (int passed = 0; passed < 400; passed += 40) {
            m_time.pass(40);
            QCOMPARE(stateOf(m_form->window()), before);
        }
        QCOMPARE(motions(m_form->window()), 0);
        QTRY_VERIFY(!m_time.isNeeded());
    }

    // The states of the window, with a moment of each motion between them.
    std::vector<QStringList> wholeGame()
    {
        std::vector<QStringList> states;
        const auto look = [this, &states] {
            waitForFocus();
            states.push_back(stateOf(m_form->window()));
            m_time.pass(150);
            states.push_back(stateOf(m_form->window()));
        };
        look();
        m_form->answerRight();
        look();
        m_form->answerRight();
        look();
        for (int second = 0; second < 29; ++second) {
            m_form->passTime();
            look();
        }
        m_form->expectMiss([look](QDialog &) { look(); });
        m_form->passTime();
        look();
        m_form->expectMiss([look](QDialog &) { look(); });
        m_form->answer(u"wrong"_s);
        look();
        m_form->answerRight(17);
        m_form->answers.expectMsgBox(u"Level 2"_s, QMessageBox::Ok, [look](QDialog &) { look(); });
        m_form->answerRight();
        look();
        m_form->loseAllLives(u"Ann"_s);
        look();
        return states;
    }

    SteppedTime m_time;
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Motion_test>(argc, argv);
}

#include "frmTanglewit_Motion_test.moc"
