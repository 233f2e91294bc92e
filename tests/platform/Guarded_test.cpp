// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Guarded.h"

#include "runtime/RunTimeError.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QEventLoop>
#include <QPushButton>
#include <QScrollBar>

#include <functional>
#include <new>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

struct Failure
{
    std::function<void()> fail;
};

// A form whose handlers throw if the test wants it.
class Window final : public QWidget
{
public:
    Window()
    {
        connect(&button, &QPushButton::clicked, this, guarded(this, &Window::button_Click));
        connect(&bar, &QScrollBar::valueChanged, this, guarded(this, &Window::bar_Change));
    }

    void button_Click()
    {
        ++entered;
        if (error != 0)
            throw RunTimeError(RunTimeError::Number(error));
        ++completed;
    }
    void bar_Change(int value) { values += value; }
    void hint(const QString &text, int row, bool strong)
    {
        hints += u"%1 %2 %3"_s.arg(text).arg(row).arg(strong);
    }

    QPushButton button;
    QScrollBar bar;
    int error = 0;
    int entered = 0;
    int completed = 0;
    QList<int> values;
    QStringList hints;
};

} // namespace

Q_DECLARE_METATYPE(Failure)

class Guarded_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHandlerThatEndsIsTrueAndSaysNothing()
    {
        DialogAnswers answers;
        bool ran = false;
        QVERIFY(runGuarded([&ran] { ran = true; }));
        QVERIFY(ran);
        QVERIFY(answers.allSeen());
        QCOMPARE(answers.seen(), 0);
    }

    void aHandlerIsAtWorkExceptDuringItsDialogs()
    {
        QVERIFY(!isHandlerAtWork());
        runGuarded([] {
            QVERIFY(isHandlerAtWork());
            QTimer::singleShot(0, [] { QVERIFY(isHandlerAtWork()); });
            QCoreApplication::processEvents();
            QEventLoop dialog;
            bool waited = false;
            QTimer::singleShot(0, [&] {
                waited = !isHandlerAtWork();
                runGuarded([] { QVERIFY(isHandlerAtWork()); });
                waited = waited && !isHandlerAtWork();
                dialog.quit();
            });
            dialog.exec();
            QVERIFY(waited);
            QVERIFY(isHandlerAtWork());
        });
        DialogAnswers answers;
        answers.expectMsgBox(u"Run-time error '6':\n\nOverflow"_s);
        runGuarded([] { throw RunTimeError(RunTimeError::Overflow); });
        QVERIFY(!isHandlerAtWork());
    }

    void everyErrorIsReportedAndEndsTheHandler_data()
    {
        QTest::addColumn<Failure>("failure");
        QTest::addColumn<QString>("report");

        const auto row = [](int number, const char *words) {
            QTest::addRow("error %d", number)
                << Failure{[number] { throw RunTimeError(RunTimeError::Number(number)); }}
                << u"Run-time error '%1':\n\n%2"_s.arg(number).arg(QLatin1String(words));
        };
        row(5, "Invalid procedure call or argument");
        row(6, "Overflow");
        row(7, "Out of memory");
        row(9, "Subscript out of range");
        row(13, "Type mismatch");
        row(53, "File not found");
        row(61, "Disk full");
        row(70, "Permission denied");
        row(75, "Path/File access error");
        row(76, "Path not found");
        row(482, "Printer error");

        QTest::newRow("with a detail") << Failure{[] {
            throw RunTimeError(RunTimeError::PathNotFound, u"/a/<b>c</b>.lwx: no such folder"_s);
        }}
                                       << u"Run-time error '76':\n\nPath not found\n"
                                          "/a/<b>c</b>.lwx: no such folder"_s;
        QTest::newRow("no memory")
            << Failure{[] { throw std::bad_alloc(); }} << u"Run-time error '7':\n\nOut of memory"_s;
        QTest::newRow("an exception of the library")
            << Failure{[] { throw std::out_of_range("element 24 of 24"); }}
            << u"element 24 of 24"_s;
    }

    void everyErrorIsReportedAndEndsTheHandler()
    {
        QFETCH(Failure, failure);
        QFETCH(QString, report);
        DialogAnswers answers;
        answers.expectMsgBox(report, QMessageBox::Ok, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        });
        bool wentOn = false;
        QVERIFY(!runGuarded([&] {
            failure.fail();
            wentOn = true;
        }));
        QVERIFY(!wentOn);
        QVERIFY(answers.allSeen());
    }

    void aSlotThatFailsIsAbandonedAndTheNextClickWorks()
    {
        DialogAnswers answers;
        Window window;
        window.error = 9;
        answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s);
        window.button.click();
        QVERIFY(answers.allSeen());
        QCOMPARE(window.entered, 1);
        QCOMPARE(window.completed, 0);

        window.error = 0;
        window.button.click();
        QCOMPARE(window.entered, 2);
        QCOMPARE(window.completed, 1);
    }

    void aSlotGetsTheSignalsArguments()
    {
        Window window;
        window.bar.setValue(42);
        window.bar.setValue(7);
        QCOMPARE(window.values, (QList<int>{42, 7}));
    }

    void severalArgumentsArePassedInTheirOrder()
    {
        Window window;
        const auto hint = guarded(&window, &Window::hint);
        hint(u"cat"_s, 3, true);
        QCOMPARE(window.hints, QStringList{u"cat 3 1"_s});
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<Guarded_test>(argc, argv);
}

#include "Guarded_test.moc"
