// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgressShown.h"

#include "support/FormTest.h"

#include <QDeadlineTimer>
#include <QLabel>
#include <QProgressBar>
#include <QProgressDialog>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int Total = 1000;
constexpr int LongEnough = 10'000; // ms, for a slow machine

} // namespace

class ProgressShown_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_window = std::make_unique<QWidget>();
        m_button = new QPushButton(u"Command"_s, m_window.get());
        m_button->setGeometry(20, 20, 120, 40);
        m_window->setGeometry(50, 50, 400, 300);
        m_commands = 0;
        connect(m_button, &QPushButton::clicked, this, [this] { ++m_commands; });
        auto *shortcut = new QShortcut(Qt::CTRL | Qt::Key_N, m_window.get());
        connect(shortcut, &QShortcut::activated, this, [this] { ++m_commands; });
        m_window->show();
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
    }

    void cleanup() { m_window.reset(); }

    void theCursorWaitsFromTheStartToTheEnd()
    {
        const Qt::CursorShape before = m_window->cursor().shape();
        {
            const ProgressShown progress(m_window.get());
            QCOMPARE(m_window->cursor().shape(), Qt::WaitCursor);
        }
        QCOMPARE(m_window->cursor().shape(), before);
    }

    void aShortLoopShowsNoBar()
    {
        ProgressShown progress(m_window.get());
        for (int i = 1; i <= 100; ++i)
            progress.show(i, 100);
        QVERIFY(!bar());
    }

    void aLongLoopShowsABarWithItsProgress()
    {
        ProgressShown progress(m_window.get());
        const int shownAt = showUntilBar(progress);
        QVERIFY(shownAt > 0);
        QCOMPARE(bar()->windowTitle(), Application::Title());
        auto *line = bar()->findChild<QProgressBar *>();
        QVERIFY(line);
        QCOMPARE(line->maximum(), Total);
        QCOMPARE(line->value(), shownAt);
        QCOMPARE(label(), u"%1 of 1000"_s.arg(shownAt));

        // The bar is updated soon, though not at every step.
        const QDeadlineTimer deadline(LongEnough);
        while (line->value() != 700 && !deadline.hasExpired())
            progress.show(700, Total);
        QCOMPARE(line->value(), 700);
        QCOMPARE(label(), u"700 of 1000"_s);
    }

    void theBarStaysUntilTheLoopIsOver()
    {
        {
            ProgressShown progress(m_window.get());
            QVERIFY(showUntilBar(progress) > 0);
            // All steps are done, but the loop may still show a message.
            showFor100Milliseconds(progress, Total);
            QVERIFY(bar() && bar()->isVisible());
        }
        QVERIFY(!bar());
    }

    // During a question there is no bar, and the time of the question does not count.
    void aPauseTakesTheBarAwayAndStartsTheClockAgain()
    {
        ProgressShown progress(m_window.get());
        QVERIFY(showUntilBar(progress) > 0);
        progress.pause();
        QVERIFY(!bar());
        progress.show(600, Total);
        QVERIFY(!bar());
        QVERIFY(showUntilBar(progress) > 0);
    }

    void theWindowIsPaintedMeanwhile()
    {
        ProgressShown progress(m_window.get());
        QVERIFY(showUntilBar(progress) > 0);
        m_button->setText(u"Painted"_s);
        PaintCounter paints;
        m_button->installEventFilter(&paints);
        const QDeadlineTimer deadline(LongEnough);
        for (int i = 0; paints.count == 0 && !deadline.hasExpired(); ++i)
            progress.show(i % Total, Total);
        QVERIFY(paints.count > 0);
    }

    void noCommandCanBeGivenMeanwhile()
    {
        {
            ProgressShown progress(m_window.get());
            QVERIFY(showUntilBar(progress) > 0);
            QCOMPARE(QApplication::activeModalWidget(), static_cast<QWidget *>(bar()));
            tryCommands();
            showFor100Milliseconds(progress, 500);
            QCOMPARE(m_commands, 0);
        }
        QCoreApplication::processEvents();
        QCOMPARE(m_commands, 0);
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
        tryCommands();
        QTRY_COMPARE(m_commands, 2);
    }

    // The bar has no Cancel: the loop goes on, and commands stay blocked.
    void theBarCannotBeDismissed_data()
    {
        QTest::addColumn<bool>("byEscape");
        QTest::newRow("Esc") << true;
        QTest::newRow("close box") << false;
    }

    void theBarCannotBeDismissed()
    {
        QFETCH(bool, byEscape);
        ProgressShown progress(m_window.get());
        QVERIFY(showUntilBar(progress) > 0);
        if (byEscape)
            QTest::keyClick(bar(), Qt::Key_Escape);
        else
            bar()->close();
        showFor100Milliseconds(progress, 500);
        QVERIFY(bar() && bar()->isVisible());
        tryCommands();
        showFor100Milliseconds(progress, 600);
        QCOMPARE(m_commands, 0);
    }

    void aWindowWithoutALoopHasItsCommands()
    {
        tryCommands();
        QTRY_COMPARE(m_commands, 2);
    }

private:
    class PaintCounter final : public QObject
    {
    public:
        int count = 0;
        bool eventFilter(QObject *, QEvent *event) override
        {
            count += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    };

    [[nodiscard]] QProgressDialog *bar() const { return m_window->findChild<QProgressDialog *>(); }
    [[nodiscard]] QString label() const { return bar()->findChild<QLabel *>()->text(); }

    // Shows steps until the bar appears. Returns the step of that moment; 0 if there is no bar.
    int showUntilBar(ProgressShown &progress)
    {
        const QDeadlineTimer deadline(LongEnough);
        int step = 0;
        while (!bar() && !deadline.hasExpired()) {
            step = step % (Total / 2) + 1;
            progress.show(step, Total);
        }
        return bar() && bar()->isVisible() ? step : 0;
    }

    // That is twice the interval in which the bar is updated.
    static void showFor100Milliseconds(ProgressShown &progress, int done)
    {
        const QDeadlineTimer deadline(100);
        while (!deadline.hasExpired())
            progress.show(done, Total);
    }

    // Through the window handle, as the window system does it: a modal dialog blocks these events.
    void tryCommands()
    {
        QTest::mouseClick(m_window->windowHandle(), Qt::LeftButton, {},
                          m_button->geometry().center());
        QTest::keyClick(m_window->windowHandle(), Qt::Key_N, Qt::ControlModifier);
    }

    std::unique_ptr<QWidget> m_window;
    QPushButton *m_button = nullptr;
    int m_commands = 0;
};

int main(int argc, char *argv[])
{
    return runFormTest<ProgressShown_test>(argc, argv);
}

#include "ProgressShown_test.moc"
