// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/LostFocus.h"

#include "runtime/RunTimeError.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QLineEdit>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

class LostFocus_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        auto *layout = new QVBoxLayout(m_window.get());
        m_first = new QLineEdit(u"1"_s);
        m_second = new QLineEdit(u"2"_s);
        layout->addWidget(m_first);
        layout->addWidget(m_second);
        m_events.clear();
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        m_first->setFocus();
        QTRY_VERIFY(m_first->hasFocus());
        new LostFocus(m_first, [this] { m_events += m_first->text(); });
    }

    void cleanup() { m_window.reset(); }

    void losingTheFocusToAnotherControlIsAnEvent_data()
    {
        QTest::addColumn<int>("way");
        QTest::newRow("Tab") << 0;
        QTest::newRow("Shift+Tab") << 1;
        QTest::newRow("a click") << 2;
        QTest::newRow("by the program") << 3;
    }

    void losingTheFocusToAnotherControlIsAnEvent()
    {
        QFETCH(int, way);
        if (way == 0)
            QTest::keyClick(m_first, Qt::Key_Tab);
        else if (way == 1)
            QTest::keyClick(m_first, Qt::Key_Tab, Qt::ShiftModifier);
        else if (way == 2)
            QTest::mouseClick(m_second, Qt::LeftButton);
        else
            m_second->setFocus();
        QVERIFY(m_second->hasFocus());
        QCOMPARE(m_events, QStringList{u"1"_s});
    }

    void theHandlerSeesWhatWasTyped()
    {
        QTest::keyClicks(m_first, u"23"_s);
        QCOMPARE(m_events, QStringList());
        QTest::keyClick(m_first, Qt::Key_Tab);
        QCOMPARE(m_events, QStringList{u"123"_s});
    }

    void eachLossOfTheFocusIsAnEvent()
    {
        for (int i = 0; i < 3; ++i) {
            m_second->setFocus();
            m_first->setFocus();
        }
        QCOMPARE(m_events.size(), 3);
    }

    void theOtherControlsLossIsNoEvent()
    {
        m_second->setFocus();
        m_events.clear();
        m_first->setFocus();
        QVERIFY(m_first->hasFocus());
        QCOMPARE(m_events, QStringList());
    }

    void activatingAnotherWindowIsNoEvent()
    {
        QWidget other;
        other.show();
        other.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&other));
        QVERIFY(!m_first->hasFocus());
        QCOMPARE(m_events, QStringList());

        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(m_first->hasFocus());
        QCOMPARE(m_events, QStringList());
        m_second->setFocus();
        QCOMPARE(m_events.size(), 1);
    }

    void theContextMenuOfTheControlIsNoEvent()
    {
        QFocusEvent menuOpens(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(m_first, &menuOpens);
        QCOMPARE(m_events, QStringList());
        QFocusEvent keyboardLeaves(QEvent::FocusOut, Qt::TabFocusReason);
        QCoreApplication::sendEvent(m_first, &keyboardLeaves);
        QCOMPARE(m_events.size(), 1);
    }

    void anErrorInTheHandlerIsReportedAndTheFocusStillMoves()
    {
        DialogAnswers answers;
        new LostFocus(m_second, [] { throw RunTimeError(RunTimeError::TypeMismatch); });
        m_second->setFocus();
        answers.expectMsgBox(u"Run-time error '13':\n\nType mismatch"_s);
        m_first->setFocus();
        QVERIFY(answers.allSeen());
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        QTRY_VERIFY(m_first->hasFocus());
    }

private:
    std::unique_ptr<QWidget> m_window;
    QLineEdit *m_first = nullptr;
    QLineEdit *m_second = nullptr;
    QStringList m_events; // the text of the first box at each event
};

int main(int argc, char *argv[])
{
    return runFormTest<LostFocus_test>(argc, argv);
}

#include "LostFocus_test.moc"
