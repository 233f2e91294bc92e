// SPDX-License-Identifier: GPL-3.0-or-later
// Enter held down at the end of a game: each dialog and each button takes only the first press.
#include "game/frmTanglewit.h"

#include "game/GameForm.h"
#include "support/FormTest.h"

using namespace Qt::StringLiterals;

namespace {

enum class Press { First, Repeated };

// Nothing if a dialog has just closed and no window has the keyboard yet.
void pressEnter(Press press)
{
    if (QWidget *focus = QApplication::focusWidget())
        QTest::simulateEvent(focus, true, Qt::Key_Return, {}, u"\r"_s, press == Press::Repeated);
}

// The repeats of a key that is still down go to whatever has the keyboard.
void repeatEnter()
{
    for (int i = 0; i < 5; ++i)
        pressEnter(Press::Repeated);
}

void pressAndHoldEnter()
{
    pressEnter(Press::First);
    repeatEnter();
}

} // namespace

class HeldEnter_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEnterThatIsHeldDoesOneThingOnly()
    {
        GameForm form(QStringList{u"lion"_s});
        form.start();
        form.answerRight();
        for (int life = 5; life > 1; --life)
            form.answerWrong();
        form.answers.useForm("dlgIncorrectAnswer", [](QDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            QTest::keyClicks(dialog.focusWidget(), u"lion"_s);
            pressAndHoldEnter();
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.focusWidget()->objectName(), u"cmdOK"_s);
            pressAndHoldEnter();
            QVERIFY(!dialog.isVisible());
        });
        form.answers.useForm("dlgGameOver", [](QDialog &dialog) {
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            repeatEnter();
            QCOMPARE(dialog.focusWidget()->objectName(), u"txtName"_s);
            pressAndHoldEnter();
            QVERIFY(dialog.isVisible());
            QCOMPARE(dialog.focusWidget()->objectName(), u"cmdClose"_s);
            pressAndHoldEnter();
            QVERIFY(!dialog.isVisible());
        });
        form.answer(u"wrong"_s);
        form.waitForWindow();
        QVERIFY(form.answers.allSeen());

        form.button("cmdRestart").setFocus();
        repeatEnter();
        QCOMPARE(form.look(), GameForm::over());
        pressAndHoldEnter();
        QCOMPARE(form.look(), GameForm::ready());
        pressAndHoldEnter();
        QCOMPARE(form.look(), GameForm::playing());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<HeldEnter_test>(argc, argv);
}

#include "HeldEnter_test.moc"
