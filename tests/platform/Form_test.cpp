// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Form.h"

#include "platform/DialogForm.h"
#include "runtime/RunTimeError.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QDialog>
#include <QMainWindow>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString Report = u"Run-time error '9':\n\nSubscript out of range"_s;

// A form that records its events. If the test wants it, one event throws once.
template <class Base> class NotingForm final : public Base
{
public:
    NotingForm() { this->setFocusPolicy(Qt::StrongFocus); }

    [[nodiscard]] QStringList takeEvents() { return std::exchange(m_events, {}); }

    QString failIn;
    bool mayUnload = true;

protected:
    void Form_Load() override { note(u"Load"_s); }
    void Form_Activate() override { note(u"Activate"_s); }
    void Form_GotFocus() override { note(u"GotFocus"_s); }
    bool Form_QueryUnload() override
    {
        note(u"QueryUnload"_s);
        return mayUnload;
    }
    void Form_Unload() override { note(u"Unload"_s); }
    void Form_Terminate() override { note(u"Terminate"_s); }

private:
    void note(const QString &event)
    {
        m_events += event;
        if (event == failIn) {
            failIn.clear();
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
        }
    }

    QStringList m_events;
};

using Window = NotingForm<Form<QWidget>>;

// A form with a button whose handler counts the clicks and fails at the first one.
class ClickedForm final : public Form<QWidget>
{
public:
    ClickedForm() { onClick(&button, &ClickedForm::button_Click); }

    QPushButton button{this};
    int clicks = 0;

private:
    void button_Click()
    {
        if (++clicks == 1)
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
    }
};

const QStringList Unloading = {u"QueryUnload"_s, u"Unload"_s, u"Terminate"_s};

template <class Form> void showActive(Form &form)
{
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
}

} // namespace

class Form_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void loadRunsWhenTheFormIsShownNotWhenItIsMade()
    {
        Window form;
        QCoreApplication::processEvents();
        QCOMPARE(form.takeEvents(), QStringList());
        form.show();
        QCOMPARE(form.takeEvents().count(u"Load"_s), 1);
    }

    void loadComesBeforeActivate()
    {
        Window form;
        showActive(form);
        const QStringList events = form.takeEvents();
        QCOMPARE(events.first(), u"Load"_s);
        QVERIFY(events.contains(u"Activate"_s));
    }

    void hidingAndShowingDoesNotLoadAgain()
    {
        Window form;
        showActive(form);
        static_cast<void>(form.takeEvents());
        form.hide();
        QWidget other;
        showActive(other);
        showActive(form);
        const QStringList events = form.takeEvents();
        QVERIFY(!events.contains(u"Load"_s));
        QVERIFY(events.contains(u"Activate"_s));
    }

    void closingUnloadsInOrder()
    {
        Window form;
        showActive(form);
        static_cast<void>(form.takeEvents());
        QVERIFY(form.close());
        QCOMPARE(form.takeEvents(), Unloading);
        QVERIFY(!form.isVisible());
    }

    void afterUnloadingTheFormLoadsAnew()
    {
        Window form;
        showActive(form);
        QVERIFY(form.close());
        static_cast<void>(form.takeEvents());
        form.show();
        QCOMPARE(form.takeEvents().count(u"Load"_s), 1);
    }

    void queryUnloadKeepsTheForm()
    {
        Window form;
        showActive(form);
        static_cast<void>(form.takeEvents());
        form.mayUnload = false;
        QVERIFY(!form.close());
        QVERIFY(form.isVisible());
        QCOMPARE(form.takeEvents(), QStringList{u"QueryUnload"_s});
        form.hide();
        form.show();
        QVERIFY(!form.takeEvents().contains(u"Load"_s));

        form.mayUnload = true;
        QVERIFY(form.close());
        QVERIFY(!form.isVisible());
    }

    void anErrorWhileUnloadingKeepsTheForm_data()
    {
        QTest::addColumn<int>("failing");
        for (int i = 0; i < Unloading.size(); ++i)
            QTest::newRow(qPrintable(Unloading.at(i))) << i;
    }

    void anErrorWhileUnloadingKeepsTheForm()
    {
        QFETCH(int, failing);
        DialogAnswers answers;
        Window form;
        showActive(form);
        static_cast<void>(form.takeEvents());
        form.failIn = Unloading.at(failing);
        answers.expectMsgBox(Report);
        QVERIFY(!form.close());
        QVERIFY(answers.allSeen());
        QVERIFY(form.isVisible());
        QStringList events = form.takeEvents();
        events.removeAll(u"Activate"_s); // comes again after the message box
        events.removeAll(u"GotFocus"_s);
        QCOMPARE(events, Unloading.mid(0, failing + 1));

        form.hide();
        form.show();
        QVERIFY(!form.takeEvents().contains(u"Load"_s));
        QVERIFY(form.close());
        QVERIFY(!form.isVisible());
    }

    void everyActivationIsAnEvent()
    {
        Window form;
        QWidget other;
        showActive(form);
        showActive(other);
        static_cast<void>(form.takeEvents());
        form.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&form));
        QCOMPARE(form.takeEvents().count(u"Activate"_s), 1);
    }

    void theFocusOfTheFormItselfIsAnEvent()
    {
        Window form;
        auto *box = new QWidget(&form);
        box->setFocusPolicy(Qt::StrongFocus);
        showActive(form);
        box->setFocus();
        static_cast<void>(form.takeEvents());
        form.setFocus();
        QCOMPARE(form.takeEvents(), QStringList{u"GotFocus"_s});
        box->setFocus();
        QCOMPARE(form.takeEvents(), QStringList());
    }

    void anErrorInAnyOtherEventIsReportedAndTheFormShows_data()
    {
        QTest::addColumn<QString>("event");
        QTest::newRow("Load") << u"Load"_s;
        QTest::newRow("Activate") << u"Activate"_s;
        QTest::newRow("GotFocus") << u"GotFocus"_s;
    }

    void anErrorInAnyOtherEventIsReportedAndTheFormShows()
    {
        QFETCH(QString, event);
        DialogAnswers answers;
        Window form;
        form.failIn = event;
        answers.expectMsgBox(Report);
        form.show();
        form.setFocus();
        QTRY_COMPARE(answers.seen(), 1);
        QTRY_VERIFY(!QApplication::activeModalWidget());
        QVERIFY(answers.allSeen());
        QVERIFY(form.isVisible());
        QVERIFY(form.close());
    }

    void anErrorInTheHandlerOfAClickIsReported()
    {
        DialogAnswers answers;
        ClickedForm form;
        showActive(form);
        answers.expectMsgBox(Report);
        QTest::mouseClick(&form.button, Qt::LeftButton);
        QVERIFY(answers.allSeen());
        QTest::mouseClick(&form.button, Qt::LeftButton);
        QCOMPARE(form.clicks, 2);
    }

    void aDialogAndAMainWindowAreFormsToo()
    {
        NotingForm<DialogForm> dialog;
        showActive(dialog);
        QVERIFY(dialog.takeEvents().contains(u"Load"_s));
        QVERIFY(dialog.close());
        QCOMPARE(dialog.takeEvents(), Unloading);

        NotingForm<Form<QMainWindow>> window;
        showActive(window);
        QVERIFY(window.takeEvents().contains(u"Load"_s));
        QVERIFY(window.close());
        QCOMPARE(window.takeEvents(), Unloading);
    }

    void aDialogThatRefusesToUnloadStaysOpen()
    {
        NotingForm<DialogForm> dialog;
        showActive(dialog);
        dialog.mayUnload = false;
        QVERIFY(!dialog.close());
        QVERIFY(dialog.isVisible());
    }

    // Esc closes a dialog in the same way as its close box.
    void escClosesADialogThroughItsUnloading()
    {
        NotingForm<DialogForm> dialog;
        showActive(dialog);
        static_cast<void>(dialog.takeEvents());
        dialog.mayUnload = false;
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible());
        QCOMPARE(dialog.takeEvents(), QStringList{u"QueryUnload"_s});
        dialog.mayUnload = true;
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.takeEvents(), Unloading);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<Form_test>(argc, argv);
}

#include "Form_test.moc"
