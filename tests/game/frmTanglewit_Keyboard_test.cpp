// SPDX-License-Identifier: GPL-3.0-or-later
// The game by keyboard alone, and what a screen reader gets.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

#include <QAccessible>

#include <algorithm>
#include <set>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

void typeIntoFocus(const QString &text)
{
    QTest::keyClicks(QApplication::focusWidget(), text);
}

void checkMnemonics(QWidget &window)
{
    std::set<QString> seen;
    int buttons = 0;
    const QList<QWidget *> controls = window.findChildren<QWidget *>();
    for (const QWidget *control : controls) {
        QString caption;
        if (const auto *button = qobject_cast<const QAbstractButton *>(control))
            caption = button->text();
        else if (const auto *label = qobject_cast<const QLabel *>(control); label && label->buddy())
            caption = label->text();
        const QString keys = QKeySequence::mnemonic(caption).toString();
        if (keys.isEmpty())
            continue;
        ++buttons;
        QVERIFY2(seen.insert(keys).second, qUtf8Printable(keys + u" is there twice"_s));
    }
    QVERIFY(buttons >= 3);
}

QString accessibleName(QWidget &control)
{
    const QAccessibleInterface *found = QAccessible::queryAccessibleInterface(&control);
    return found ? found->text(QAccessible::Name) : QString();
}

// Every control that Tab reaches has an accessible name.
void checkNames(QWidget &window)
{
    const QList<QWidget *> controls = window.findChildren<QWidget *>();
    int checked = 0;
    for (QWidget *control : controls) {
        if ((control->focusPolicy() & Qt::TabFocus) == 0 ||
            control->objectName().startsWith(u"qt_"_s))
            continue;
        ++checked;
        QVERIFY2(!accessibleName(*control).isEmpty(), qUtf8Printable(control->objectName()));
    }
    QVERIFY(checked >= 3);
}

} // namespace

class frmTanglewit_Keyboard_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_form = std::make_unique<GameForm>(); }

    void cleanup()
    {
        QVERIFY(m_form->answers.allSeen());
        m_form.reset();
    }

    void aWholeGameNeedsNoMouse()
    {
        m_form->open();
        // Level 2, then Enter: Start is the default button also while the switch has the focus.
        QTest::keyClick(&m_form->window(), Qt::Key_L, Qt::AltModifier);
        QVERIFY(m_form->levelSwitch().hasFocus());
        Controls::press(Qt::Key_Up);
        Controls::press(Qt::Key_Return);
        QCOMPARE(m_form->numbers(), u"0 2 25 5"_s);
        QCOMPARE(Controls::focusedControl(), u"txtUserAnswer"_s);
        typeIntoFocus(GameForm::word());
        Controls::press(Qt::Key_Enter);
        QCOMPARE(m_form->numbers(), u"4 2 25 5"_s);

        QTest::keyClick(&m_form->window(), Qt::Key_H, Qt::AltModifier);
        QTRY_VERIFY(!m_form->control<QWidget>("lblScrambledWord").isVisible());
        QTest::keyClick(&m_form->window(), Qt::Key_W, Qt::AltModifier);
        QTRY_VERIFY(m_form->control<QWidget>("lblScrambledWord").isVisible());
        QCOMPARE(Controls::focusedControl(), u"txtUserAnswer"_s);

        for (int lives = 4; lives >= 0; --lives) {
            m_form->answers.useForm("dlgIncorrectAnswer", [](QDialog &dialog) {
                QTest::keyClick(&dialog, Qt::Key_H, Qt::AltModifier); // hide the word
                QTRY_VERIFY(!Controls::find<QLabel>(dialog, "lblAnswerIs").isVisible());
                QCOMPARE(Controls::focusedControl(), u"txtUserAnswer"_s);
                typeIntoFocus(GameForm::word());
                Controls::press(Qt::Key_Return);
            });
            if (lives == 0)
                m_form->answers.useForm("dlgGameOver", [](QDialog &) {
                    QTRY_COMPARE(Controls::focusedControl(), u"txtName"_s);
                    typeIntoFocus(u"Ann"_s);
                    Controls::press(Qt::Key_Return);
                    Controls::press(Qt::Key_Return);
                });
            typeIntoFocus(u"wrong"_s);
            Controls::press(Qt::Key_Return);
            QVERIFY(m_form->answers.allSeen());
            QCOMPARE(m_form->text("lblNumLifes"), QString::number(lives));
            m_form->waitForWindow();
            QTRY_COMPARE(Controls::focusedControl(),
                         lives > 0 ? u"txtUserAnswer"_s : u"cmdRestart"_s);
        }
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);

        m_form->answers.useForm("dlgGameOver",
                                [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::keyClick(&m_form->window(), Qt::Key_T, Qt::AltModifier);
        QTRY_COMPARE(m_form->answers.seen(), 7);
        m_form->waitForWindow();
        QTest::keyClick(&m_form->window(), Qt::Key_R, Qt::AltModifier);
        QTRY_COMPARE(m_form->look(), GameForm::ready());
        QTest::keyClick(&m_form->window(), Qt::Key_S, Qt::AltModifier);
        QTRY_COMPARE(m_form->look(), GameForm::playing());
        m_form->answers.useForm("dlgGameOver",
                                [](QDialog &dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
        QTest::keyClick(&m_form->window(), Qt::Key_Q, Qt::AltModifier);
        QTRY_VERIFY(!m_form->window().isVisible());
        QTRY_VERIFY(m_form->answers.allSeen());
    }

    void theAnswerButtonHasAKeyOfItsOwn()
    {
        m_form->start();
        typeIntoFocus(GameForm::word());
        QTest::keyClick(&m_form->window(), Qt::Key_E, Qt::AltModifier);
        QTRY_COMPARE(m_form->text("lblScore"), u"4"_s);
        m_form->control<QWidget>("lstHits").setFocus();
        QTest::keyClick(&m_form->window(), Qt::Key_A, Qt::AltModifier);
        QTRY_COMPARE(Controls::focusedControl(), u"txtUserAnswer"_s);
    }

    void enterAnswersWhereverTheKeyboardIs_data()
    {
        QTest::addColumn<QByteArray>("name");
        for (const char *name : {"txtUserAnswer", "lstHits", "lstMisses", "cmdEnter"})
            QTest::newRow(name) << QByteArray(name);
    }

    void enterAnswersWhereverTheKeyboardIs()
    {
        QFETCH(QByteArray, name);
        m_form->start();
        m_form->answerRight();
        typeIntoFocus(GameForm::word());
        m_form->control<QWidget>(name).setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(m_form->text("lblScore"), u"8"_s);
    }

    void enterOnAnotherButtonPressesThatButton()
    {
        m_form->start();
        typeIntoFocus(GameForm::word());
        m_form->button("cmdRestart").setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(m_form->look(), GameForm::ready());
    }

    void escLeavesTheGameAsItIs()
    {
        m_form->start();
        Controls::press(Qt::Key_Escape);
        QCOMPARE(m_form->look(), GameForm::playing());
        QVERIFY(m_form->window().isVisible());
    }

    void tabWalksThroughWhatCanBeUsed_data()
    {
        QTest::addColumn<QString>("state");
        QTest::addColumn<QString>("round");
        QTest::newRow("ready")
            << u"ready"_s
            << u"cmdStart lstHits lstMisses cmdRestart cmdViewTop10 cmdQuit VScroll1 cmdHide"_s;
        QTest::newRow("playing")
            << u"playing"_s
            << u"txtUserAnswer cmdEnter lstHits lstMisses cmdRestart cmdViewTop10 cmdQuit cmdHide"_s;
        QTest::newRow("hidden word")
            << u"hidden word"_s
            << u"txtUserAnswer cmdEnter lstHits lstMisses cmdRestart cmdViewTop10 cmdQuit cmdShow"_s;
        QTest::newRow("over") << u"over"_s
                              << u"cmdRestart cmdViewTop10 cmdQuit cmdHide lstHits lstMisses"_s;
    }

    void tabWalksThroughWhatCanBeUsed()
    {
        QFETCH(QString, state);
        QFETCH(QString, round);
        m_form->open();
        if (state != u"ready"_s)
            m_form->click("cmdStart");
        if (state == u"hidden word"_s)
            m_form->click("cmdHide");
        if (state == u"over"_s)
            m_form->loseAllLives();
        QStringList names = round.split(u' ');
        QCOMPARE(Controls::tabRound(Qt::Key_Tab), names);
        std::reverse(names.begin() + 1, names.end());
        QCOMPARE(Controls::tabRound(Qt::Key_Backtab, Qt::ShiftModifier), names);
    }

    void longTextsAreScrolledByKeyboard()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"apple"_s, u"clue "_s.repeated(400), u"text "_s.repeated(400));
        m_form->start();
        for (const char *name : {"clueArea", "sentenceArea"}) {
            auto &area = m_form->control<QAbstractScrollArea>(name);
            QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);
            QVERIFY(Controls::tabRound(Qt::Key_Tab).contains(QLatin1String(name)));
            area.setFocus();
            Controls::press(Qt::Key_Down);
            QVERIFY(area.verticalScrollBar()->value() > 0);
            m_form->answerBox().setFocus();
        }
    }

    void aNewTextIsReadFromItsBeginning()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"apple"_s, u"clue "_s.repeated(400), u"text "_s.repeated(400));
        m_form->start();
        for (const char *name : {"clueArea", "sentenceArea"}) {
            auto &area = m_form->control<QAbstractScrollArea>(name);
            QTRY_VERIFY(area.verticalScrollBar()->maximum() > 0);
            area.verticalScrollBar()->setValue(area.verticalScrollBar()->maximum());
        }
        m_form->answerRight();
        for (const char *name : {"clueArea", "sentenceArea"})
            QCOMPARE(m_form->control<QAbstractScrollArea>(name).verticalScrollBar()->value(), 0);
    }

    void mnemonicsAreUnique()
    {
        m_form->start();
        checkMnemonics(m_form->window());
        m_form->expectMiss([](QDialog &dialog) { checkMnemonics(dialog); });
        m_form->answer(u"wrong"_s);
        m_form->waitForWindow();
        m_form->expectTop10([](QDialog &dialog) { checkMnemonics(dialog); });
        m_form->click("cmdViewTop10");
    }

    void everythingThatIsUsedHasAnAccessibleName()
    {
        m_form->start();
        checkNames(m_form->window());
        QCOMPARE(accessibleName(m_form->answerBox()), u"Your answer"_s);
        QCOMPARE(accessibleName(m_form->levelSwitch()), u"Starting level"_s);
        QCOMPARE(accessibleName(m_form->control<QWidget>("lstHits")), u"Hits of this level"_s);
        QCOMPARE(accessibleName(m_form->control<QWidget>("lstMisses")), u"Misses of this game"_s);
        m_form->answerRight();
        m_form->expectMiss([](QDialog &dialog) { checkNames(dialog); });
        m_form->answer(u"wrong"_s);
        m_form->waitForWindow();
        m_form->expectTop10Entry(u"Ann"_s, [](QDialog &dialog) { checkNames(dialog); });
        m_form->click("cmdQuit");
    }

    void whatIsShownHasAnAccessibleName()
    {
        m_form->start();
        for (const char *name :
             {"lblScrambledWord", "lblClue", "lblSentence", "lblScore", "lblLevel", "lblNumLifes"})
            QCOMPARE(accessibleName(m_form->control<QLabel>(name)), m_form->text(name));
        QCOMPARE(accessibleName(m_form->control<QLabel>("lblCountDown")),
                 m_form->text("lblCountDown") + u" seconds left"_s);
        m_form->passTime(8);
        const QString tile = m_form->tiles().constFirst();
        QCOMPARE(accessibleName(m_form->button("cmdLetters_13")), tile.last(1));
    }

private:
    std::unique_ptr<GameForm> m_form;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmTanglewit_Keyboard_test>(argc, argv);
}

#include "frmTanglewit_Keyboard_test.moc"
