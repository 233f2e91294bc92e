// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EndRequest.h"

#include "platform/DialogForm.h"
#include "platform/MsgBox.h"
#include "platform/ProgressShown.h"
#include "support/FormTest.h"

#include <QDialog>
#include <QEventLoop>
#include <QMenu>
#include <QMessageBox>
#include <QProgressDialog>
#include <QSignalSpy>
#include <QTimer>

#include <csignal>
#include <memory>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

// A window that can refuse to close.
class Window final : public QWidget
{
public:
    bool stays = false;
    int closes = 0;

protected:
    void closeEvent(QCloseEvent *event) override
    {
        ++closes;
        event->setAccepted(!stays);
    }
};

class StubbornDialog final : public DialogForm
{
protected:
    bool Form_QueryUnload() override { return false; }
};

// Counts the close events of a window.
class CloseCounter final : public QObject
{
public:
    int closes = 0;

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        closes += event->type() == QEvent::Close ? 1 : 0;
        return false;
    }
};

// Runs the command in the event loop and returns the exit code of the program.
int run(const std::function<void()> &command)
{
    QTimer::singleShot(0, qApp, command);
    return Application::exec();
}

void (*handlerOf(int signal))(int)
{
    struct sigaction action
    {
    };
    sigaction(signal, nullptr, &action);
    return action.sa_handler;
}

} // namespace

class EndRequest_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_request = std::make_unique<EndRequest>([] { return true; });
        m_window = std::make_unique<Window>();
        m_window->show();
    }

    void cleanup()
    {
        m_window.reset();
        m_request.reset();
    }

    void eachSignalClosesTheWindowsAndEndsTheProgram_data()
    {
        QTest::addColumn<int>("signal");
        QTest::newRow("SIGTERM") << SIGTERM;
        QTest::newRow("SIGINT") << SIGINT;
        QTest::newRow("SIGHUP") << SIGHUP;
    }

    void eachSignalClosesTheWindowsAndEndsTheProgram()
    {
        QFETCH(int, signal);
        QCOMPARE(run([signal] { raise(signal); }), 0);
        QVERIFY(!m_window->isVisible());
        QCOMPARE(m_window->closes, 1);
    }

    void anIgnoredSignalStaysIgnored()
    {
        m_request.reset();
        const auto before = std::signal(SIGHUP, SIG_IGN);
        m_request = std::make_unique<EndRequest>([] { return true; });
        const auto during = handlerOf(SIGHUP);
        m_request.reset();
        std::signal(SIGHUP, before);
        QVERIFY(during == SIG_IGN);
    }

    void afterwardsTheSignalsDoWhatTheyDidBefore()
    {
        m_request.reset();
        const auto before = handlerOf(SIGTERM);
        m_request = std::make_unique<EndRequest>([] { return true; });
        QVERIFY(handlerOf(SIGTERM) != before);
        m_request.reset();
        QVERIFY(handlerOf(SIGTERM) == before);
    }

    void dialogsAreCancelledFromTheLastOneDown()
    {
        QStringList ended;
        QCOMPARE(run([&] {
                     QDialog first;
                     QTimer::singleShot(0, &first, [&] {
                         QDialog second(&first);
                         QTimer::singleShot(0, &second, [] { raise(SIGTERM); });
                         ended += u"second %1"_s.arg(second.exec());
                         QVERIFY(m_window->isVisible());
                     });
                     ended += u"first %1"_s.arg(first.exec());
                     QVERIFY(m_window->isVisible());
                 }),
                 0);
        QCOMPARE(ended, (QStringList{u"second 0"_s, u"first 0"_s}));
        QVERIFY(!m_window->isVisible());
    }

    void messageBoxesAreCancelled_data()
    {
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<MsgBoxAnswer>("answer");
        QTest::newRow("OK") << MsgBoxButtons::OkOnly << MsgBoxAnswer::Ok;
        QTest::newRow("OK, Cancel") << MsgBoxButtons::OkCancel << MsgBoxAnswer::Cancel;
        QTest::newRow("Yes, No, Cancel") << MsgBoxButtons::YesNoCancel << MsgBoxAnswer::Cancel;
    }

    void messageBoxesAreCancelled()
    {
        QFETCH(MsgBoxButtons, buttons);
        QFETCH(MsgBoxAnswer, answer);
        std::optional<MsgBoxAnswer> given;
        QCOMPARE(run([&] {
                     QTimer::singleShot(0, m_window.get(), [] { raise(SIGTERM); });
                     given = MsgBox(u"text"_s, buttons);
                 }),
                 0);
        QVERIFY(given == answer);
    }

    void aQuestionWithoutCancelWaitsForItsAnswer()
    {
        CloseCounter counter;
        int tries = 0;
        std::optional<MsgBoxAnswer> given;
        QCOMPARE(run([&] {
                     QTimer::singleShot(0, m_window.get(), [&] {
                         QApplication::activeModalWidget()->installEventFilter(&counter);
                         raise(SIGTERM);
                         waitForLooks();
                         tries = counter.closes;
                         auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                         QVERIFY(box && box->isVisible() && m_window->isVisible());
                         QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
                     });
                     given = MsgBox(u"Do you want to save?"_s, MsgBoxButtons::YesNo);
                 }),
                 0);
        QVERIFY(given == MsgBoxAnswer::Yes);
        QVERIFY(!m_window->isVisible());
        QCOMPARE(tries, 1); // it is not tried again
    }

    void aFormThatRefusesToCloseIsEnded()
    {
        int result = -1;
        QCOMPARE(run([&] {
                     StubbornDialog dialog;
                     QTimer::singleShot(0, &dialog, [] { raise(SIGTERM); });
                     result = dialog.exec();
                 }),
                 0);
        QCOMPARE(result, int(QDialog::Rejected));
    }

    void aMenuIsClosed()
    {
        QMenu menu;
        menu.addAction(u"item"_s);
        QCOMPARE(run([&] {
                     menu.popup({});
                     raise(SIGTERM);
                 }),
                 0);
        QVERIFY(!menu.isVisible());
        QVERIFY(!m_window->isVisible());
    }

    void aProgressBarIsWaitedFor()
    {
        bool stops = false;
        int shown = 0;
        connect(m_request.get(), &EndRequest::begun, this, [&stops] { stops = true; });
        QCOMPARE(run([&] {
                     ProgressShown progress(m_window.get());
                     while (!m_window->findChild<QProgressDialog *>())
                         progress.show(0, 1000);
                     raise(SIGTERM);
                     for (int looks = 0; !stops || looks < 3; ++shown) {
                         progress.show(shown % 1000, 1000);
                         looks += stops ? 1 : 0;
                         QTest::qWait(60); // longer than the interval in which the bar is updated
                         QVERIFY(m_window->isVisible());
                     }
                 }),
                 0);
        QVERIFY(shown >= 3);
        QVERIFY(!m_window->isVisible());
    }

    void aCommandThatStillRunsIsWaitedFor()
    {
        QCOMPARE(run([&] {
                     QEventLoop loop;
                     QTimer::singleShot(0, &loop, [&] {
                         raise(SIGTERM);
                         waitForLooks();
                         QVERIFY(m_window->isVisible());
                         loop.quit();
                     });
                     loop.exec();
                     QVERIFY(m_window->isVisible());
                 }),
                 0);
        QVERIFY(!m_window->isVisible());
    }

    void aWindowThatStaysKeepsTheProgramUntilTheNextRequest()
    {
        m_window->stays = true;
        QCOMPARE(run([&] {
                     QTimer::singleShot(0, m_window.get(), [this] {
                         QVERIFY(m_window->isVisible());
                         raise(SIGTERM);
                         QTRY_COMPARE(m_window->closes, 1);
                         QVERIFY(!m_request->findChild<QTimer *>()->isActive());
                         m_window->stays = false;
                         raise(SIGTERM);
                     });
                 }),
                 0);
        QCOMPARE(m_window->closes, 2);
    }

    void theLastQuestionsAreLeftAlone()
    {
        int result = -1;
        QCOMPARE(run([&] {
                     QDialog dialog;
                     QTimer::singleShot(0, &dialog, [&] {
                         raise(SIGTERM);
                         waitForLooks();
                         QVERIFY(dialog.isVisible());
                         dialog.accept();
                     });
                     const LastQuestions asking;
                     result = dialog.exec();
                 }),
                 0);
        QCOMPARE(result, int(QDialog::Accepted));
    }

    void aSecondSignalChangesNothing()
    {
        QSignalSpy begun(m_request.get(), &EndRequest::begun);
        QCOMPARE(run([&] {
                     QTimer::singleShot(0, m_window.get(), [&] {
                         raise(SIGTERM);
                         waitForLooks();
                         raise(SIGTERM);
                         raise(SIGINT);
                         waitForLooks();
                         auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
                         QVERIFY(box && box->isVisible());
                         QTest::mouseClick(box->button(QMessageBox::No), Qt::LeftButton);
                     });
                     MsgBox(u"Do you want to save?"_s, MsgBoxButtons::YesNo);
                 }),
                 0);
        QCOMPARE(begun.size(), 1);
        QCOMPARE(m_window->closes, 1);
    }

    void atLogoutTheWindowsAreClosedAtOnce()
    {
        QCOMPARE(run([this] {
                     QVERIFY(m_request->mayLogOut());
                     QVERIFY(!m_window->isVisible());
                 }),
                 0);
    }

    void aWindowThatStaysHoldsUpTheLogout()
    {
        m_window->stays = true;
        QVERIFY(!m_request->mayLogOut());
        QVERIFY(m_window->isVisible());
        QVERIFY(!m_request->findChild<QTimer *>()->isActive());
    }

    void aDialogHoldsUpTheLogoutAndIsCancelled()
    {
        QCOMPARE(run([this] {
                     QDialog dialog;
                     QTimer::singleShot(0, &dialog, [&] {
                         QVERIFY(!m_request->mayLogOut());
                         QVERIFY(dialog.isVisible());
                     });
                     QCOMPARE(dialog.exec(), int(QDialog::Rejected));
                     QVERIFY(m_window->isVisible());
                 }),
                 0);
        QVERIFY(!m_window->isVisible());
    }

    void theLastQuestionsHoldUpTheLogout()
    {
        const LastQuestions asking;
        QVERIFY(!m_request->mayLogOut());
        QVERIFY(m_window->isVisible());
        QVERIFY(!m_request->findChild<QTimer *>()->isActive());
    }

private:
    // Waits until the request has looked at the windows several times.
    void waitForLooks()
    {
        QSignalSpy looks(m_request->findChild<QTimer *>(), &QTimer::timeout);
        QTRY_VERIFY(looks.size() >= 3);
    }

    std::unique_ptr<EndRequest> m_request;
    std::unique_ptr<Window> m_window;
};

int main(int argc, char *argv[])
{
    return runFormTest<EndRequest_test>(argc, argv);
}

#include "EndRequest_test.moc"
