// SPDX-License-Identifier: GPL-3.0-or-later
// Keys that are held down: the repeated presses type and move, but press no button and answer no
// dialog.
#include "platform/HeldKeys.h"

#include "platform/DefaultButton.h"
#include "platform/EntryTextBox.h"
#include "platform/MsgBox.h"
#include "platform/OneLineBox.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QShortcut>
#include <QSignalSpy>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

enum class Press { First, Repeated };

void press(QWidget &widget, Qt::Key key, Press press, Qt::KeyboardModifiers modifiers = {})
{
    const QString text =
        key >= Qt::Key_Space && key <= Qt::Key_Z ? QString(QChar(key)).toLower() : QString();
    QTest::simulateEvent(&widget, true, key, modifiers, text, press == Press::Repeated);
}

// Presses a key once and sends three repeated presses.
void hold(QWidget &widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    press(widget, key, Press::First, modifiers);
    for (int i = 0; i < 3; ++i)
        press(widget, key, Press::Repeated, modifiers);
    QTest::simulateEvent(&widget, false, key, modifiers, QString(), false);
}

// A window in which Enter presses the default button, whichever control has the focus.
class Window final : public QWidget
{
public:
    Window()
    {
        auto *column = new QVBoxLayout(this);
        for (QWidget *control : {static_cast<QWidget *>(line), static_cast<QWidget *>(lines),
                                 static_cast<QWidget *>(button)})
            column->addWidget(control);
        m_default.set(button);
        show();
    }

    OneLineBox *line = new OneLineBox;
    EntryTextBox *lines = new EntryTextBox;
    QPushButton *button = new QPushButton(u"&Ok"_s);

protected:
    void keyPressEvent(QKeyEvent *event) override { m_default.press(*event, focusWidget()); }

private:
    DefaultButton m_default;
};

} // namespace

class HeldKeys_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<Window>();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void enterPressesTheDefaultButtonOnce_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<QString>("focus");
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            for (const char *focus : {"line", "lines", "button"})
                QTest::addRow("%s in %s", key == Qt::Key_Return ? "Return" : "Enter", focus)
                    << key << QString::fromLatin1(focus);
        }
    }

    void enterPressesTheDefaultButtonOnce()
    {
        QFETCH(Qt::Key, key);
        QFETCH(QString, focus);
        QWidget &control = focus == u"line"    ? static_cast<QWidget &>(*m_window->line)
                           : focus == u"lines" ? static_cast<QWidget &>(*m_window->lines)
                                               : *m_window->button;
        control.setFocus();
        const QSignalSpy clicks(m_window->button, &QPushButton::clicked);
        hold(control, key);
        QCOMPARE(clicks.count(), 1);
        hold(control, key);
        QCOMPARE(clicks.count(), 2);
    }

    void aPressInTheMomentOfTheReleaseIsARepeat()
    {
        m_window->line->setFocus();
        const QSignalSpy clicks(m_window->button, &QPushButton::clicked);
        const auto send = [this](QEvent::Type type, quint64 time) {
            QKeyEvent event(type, Qt::Key_Return, Qt::NoModifier);
            event.setTimestamp(time);
            QApplication::sendEvent(m_window->line, &event);
        };
        send(QEvent::KeyPress, 1000);
        QCOMPARE(clicks.count(), 1);
        send(QEvent::KeyRelease, 1660);
        send(QEvent::KeyPress, 1660);
        QCOMPARE(clicks.count(), 1);
        send(QEvent::KeyRelease, 1700);
        send(QEvent::KeyPress, 1790);
        QCOMPARE(clicks.count(), 2);
    }

    void theMnemonicOfAButtonPressesItOnce()
    {
        m_window->line->setFocus();
        const QSignalSpy clicks(m_window->button, &QPushButton::clicked);
        press(*m_window->line, Qt::Key_O, Press::First, Qt::AltModifier);
        QVERIFY(m_window->button->isDown());
        QTRY_COMPARE(clicks.count(), 1); // animateClick() shows the button pressed for a moment
        press(*m_window->line, Qt::Key_O, Press::Repeated, Qt::AltModifier);
        QVERIFY(!m_window->button->isDown());
        QCOMPARE(m_window->line->text(), QString());
    }

    void aShortcutIsTakenOnce()
    {
        m_window->line->setFocus();
        const QSignalSpy taken(new QShortcut(Qt::CTRL | Qt::Key_PageDown, m_window.get()),
                               &QShortcut::activated);
        hold(*m_window->line, Qt::Key_PageDown, Qt::ControlModifier);
        QCOMPARE(taken.count(), 1);
    }

    void spacePressesAButtonOnce()
    {
        m_window->button->setFocus();
        const QSignalSpy clicks(m_window->button, &QPushButton::clicked);
        hold(*m_window->button, Qt::Key_Space);
        QCOMPARE(clicks.count(), 1);
    }

    void escThatIsRepeatedClosesNoDialog()
    {
        QDialog dialog(m_window.get());
        dialog.show();
        press(dialog, Qt::Key_Escape, Press::Repeated);
        QVERIFY(dialog.isVisible());
        press(dialog, Qt::Key_Escape, Press::First);
        QVERIFY(!dialog.isVisible());
    }

    void typingIsRepeated()
    {
        for (const Qt::Key key : {Qt::Key_A, Qt::Key_Space}) {
            m_window->line->setFocus();
            m_window->line->clear();
            hold(*m_window->line, key);
            QCOMPARE(m_window->line->text().size(), 4);
            m_window->lines->setFocus();
            m_window->lines->setText({});
            hold(*m_window->lines, key);
            QCOMPARE(m_window->lines->text().size(), 4);
        }
    }

    void movingAndDeletingAreRepeated()
    {
        m_window->line->setText(u"abcdefgh"_s);
        m_window->line->setFocus();
        hold(*m_window->line, Qt::Key_Left);
        QCOMPARE(m_window->line->cursorPosition(), 4);
        hold(*m_window->line, Qt::Key_Backspace);
        QCOMPARE(m_window->line->text(), u"efgh"_s);
    }

    void undoingIsRepeated()
    {
        m_window->lines->setFocus();
        for (const char *part : {"a", "b"}) {
            QTest::keyClicks(m_window->lines, QLatin1String(part));
            QTest::keyClick(m_window->lines, Qt::Key_Return, Qt::ControlModifier);
        }
        hold(*m_window->lines, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->lines->text(), QString());
    }

    void lineBreaksAreRepeated()
    {
        m_window->lines->setFocus();
        const QSignalSpy clicks(m_window->button, &QPushButton::clicked);
        hold(*m_window->lines, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(m_window->lines->text(), u"\r\n\r\n\r\n\r\n"_s);
        QCOMPARE(clicks.count(), 0);
    }

    void aHeldKeyAnswersOneQuestionOnly_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Return") << Qt::Key_Return << Qt::KeyboardModifiers();
        QTest::newRow("Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::KeypadModifier);
        QTest::newRow("Space") << Qt::Key_Space << Qt::KeyboardModifiers();
        QTest::newRow("Esc") << Qt::Key_Escape << Qt::KeyboardModifiers();
        QTest::newRow("a letter") << Qt::Key_Y << Qt::KeyboardModifiers();
        QTest::newRow("a letter with Alt") << Qt::Key_Y << Qt::KeyboardModifiers(Qt::AltModifier);
    }

    // The second question gets only repeated presses. It is answered with the mouse.
    void aHeldKeyAnswersOneQuestionOnly()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        QStringList questions;
        QTimer keyboard;
        connect(&keyboard, &QTimer::timeout, this, [&] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isActiveWindow() || questions.contains(box->text()))
                return;
            questions += box->text();
            if (questions.size() == 1) {
                press(*box->defaultButton(), key, Press::First, modifiers);
                QTest::simulateEvent(box->defaultButton(), false, key, modifiers, QString(), false);
                return;
            }
            for (int i = 0; i < 5; ++i) {
                press(*box->defaultButton(), key, Press::Repeated, modifiers);
                QVERIFY(box->isVisible());
                QVERIFY(
                    !box->defaultButton()->isDown()); // after a mnemonic it is pressed for a moment
            }
            QTest::mouseClick(box->button(QMessageBox::Cancel), Qt::LeftButton);
        });
        keyboard.start(0);
        const MsgBoxAnswer first = MsgBox(u"First?"_s, MsgBoxButtons::YesNoCancel);
        QCOMPARE(first, key == Qt::Key_Escape ? MsgBoxAnswer::Cancel : MsgBoxAnswer::Yes);
        QCOMPARE(MsgBox(u"Second?"_s, MsgBoxButtons::YesNoCancel), MsgBoxAnswer::Cancel);
        QCOMPARE(questions, QStringList({u"First?"_s, u"Second?"_s}));
    }

private:
    std::unique_ptr<Window> m_window;
};

int main(int argc, char *argv[])
{
    return runFormTest<HeldKeys_test>(argc, argv);
}

#include "HeldKeys_test.moc"
