// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MsgBox.h"

#include "runtime/Notice.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QLabel>
#include <QPushButton>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

using Buttons = QMessageBox::StandardButtons;

Buttons expectedButtons(MsgBoxButtons buttons)
{
    switch (buttons) {
    case MsgBoxButtons::OkOnly:
        return QMessageBox::Ok;
    case MsgBoxButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgBoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgBoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return {};
}

} // namespace

Q_DECLARE_METATYPE(MsgBoxButtons)
Q_DECLARE_METATYPE(MsgBoxAnswer)

class MsgBox_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsShownAsItIs_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("plain") << u"End current lesson?"_s;
        QTest::newRow("markup") << u"<b>x</b> is not in the list."_s;
        QTest::newRow("two blanks") << u"Word already exist.  Add word anyway?"_s;
        QTest::newRow("lines") << u"Run-time error '9':\n\nSubscript out of range"_s;
        QTest::newRow("ampersand") << u"a & b && c is not in the list."_s;
        QTest::newRow("accents") << u"\u00E9t\u00E9 is not in the list."_s;
    }

    void theTextIsShownAsItIs()
    {
        QFETCH(QString, text);
        DialogAnswers answers;
        answers.expectMsgBox(text, QMessageBox::Ok, [&text](QMessageBox &box) {
            QCOMPARE(box.windowTitle(), u"Tanglewit"_s);
            QCOMPARE(box.textFormat(), Qt::PlainText);
            QCOMPARE(box.informativeText(), QString());
            const auto *label = box.findChild<QLabel *>(u"lblText"_s);
            QVERIFY(label && label->isVisible());
            QCOMPARE(label->text(), text);
            QCOMPARE(label->textFormat(), Qt::PlainText);
        });
        MsgBox(text);
        QVERIFY(answers.allSeen());
    }

    void eachButtonIsItsAnswer_data()
    {
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<int>("pressed");
        QTest::addColumn<MsgBoxAnswer>("answer");
        using enum MsgBoxButtons;
        QTest::newRow("OK") << OkOnly << int(QMessageBox::Ok) << MsgBoxAnswer::Ok;
        QTest::newRow("OK/Cancel: OK") << OkCancel << int(QMessageBox::Ok) << MsgBoxAnswer::Ok;
        QTest::newRow("OK/Cancel: Cancel")
            << OkCancel << int(QMessageBox::Cancel) << MsgBoxAnswer::Cancel;
        QTest::newRow("Yes/No: Yes") << YesNo << int(QMessageBox::Yes) << MsgBoxAnswer::Yes;
        QTest::newRow("Yes/No: No") << YesNo << int(QMessageBox::No) << MsgBoxAnswer::No;
        QTest::newRow("Yes/No/Cancel: Yes")
            << YesNoCancel << int(QMessageBox::Yes) << MsgBoxAnswer::Yes;
        QTest::newRow("Yes/No/Cancel: No")
            << YesNoCancel << int(QMessageBox::No) << MsgBoxAnswer::No;
        QTest::newRow("Yes/No/Cancel: Cancel")
            << YesNoCancel << int(QMessageBox::Cancel) << MsgBoxAnswer::Cancel;
    }

    void eachButtonIsItsAnswer()
    {
        QFETCH(MsgBoxButtons, buttons);
        QFETCH(int, pressed);
        DialogAnswers answers;
        answers.expectMsgBox(u"Well?"_s, QMessageBox::StandardButton(pressed),
                             [buttons](QMessageBox &box) {
                                 QCOMPARE(box.standardButtons(), expectedButtons(buttons));
                             });
        QTEST(MsgBox(u"Well?"_s, buttons), "answer");
        QVERIFY(answers.allSeen());
    }

    void withoutAKindThereIsOnlyOk()
    {
        DialogAnswers answers;
        answers.expectMsgBox(u"Well."_s, QMessageBox::Ok, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), Buttons(QMessageBox::Ok));
        });
        QCOMPARE(MsgBox(u"Well."_s), MsgBoxAnswer::Ok);
        QVERIFY(answers.allSeen());
    }

    void enterPressesTheFirstButton_data()
    {
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<MsgBoxAnswer>("answer");
        QTest::newRow("OK") << MsgBoxButtons::OkOnly << MsgBoxAnswer::Ok;
        QTest::newRow("OK/Cancel") << MsgBoxButtons::OkCancel << MsgBoxAnswer::Ok;
        QTest::newRow("Yes/No") << MsgBoxButtons::YesNo << MsgBoxAnswer::Yes;
        QTest::newRow("Yes/No/Cancel") << MsgBoxButtons::YesNoCancel << MsgBoxAnswer::Yes;
    }

    void enterPressesTheFirstButton()
    {
        QFETCH(MsgBoxButtons, buttons);
        withBox([](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Return); });
        QTEST(MsgBox(u"Well?"_s, buttons), "answer");
    }

    void escAndTheCloseBoxDismissWhatCanBeDismissed_data()
    {
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<MsgBoxAnswer>("answer");
        QTest::newRow("OK") << MsgBoxButtons::OkOnly << MsgBoxAnswer::Ok;
        QTest::newRow("OK/Cancel") << MsgBoxButtons::OkCancel << MsgBoxAnswer::Cancel;
        QTest::newRow("Yes/No/Cancel") << MsgBoxButtons::YesNoCancel << MsgBoxAnswer::Cancel;
    }

    void escAndTheCloseBoxDismissWhatCanBeDismissed()
    {
        QFETCH(MsgBoxButtons, buttons);
        withBox([](QMessageBox &box) { QTest::keyClick(box.defaultButton(), Qt::Key_Escape); });
        QTEST(MsgBox(u"Well?"_s, buttons), "answer");
        withBox([](QMessageBox &box) { box.close(); });
        QTEST(MsgBox(u"Well?"_s, buttons), "answer");
    }

    void escAndTheCloseBoxMeanNoWhereNoIsHarmless()
    {
        const auto ask = [] {
            return MsgBox(u"Well?"_s, MsgBoxButtons::YesNo, MsgBoxEsc::MeansNo);
        };
        withBox([](QMessageBox &box) {
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::Yes));
            QTest::keyClick(box.defaultButton(), Qt::Key_Escape);
        });
        QCOMPARE(ask(), MsgBoxAnswer::No);
        withBox([](QMessageBox &box) { QVERIFY(box.close()); });
        QCOMPARE(ask(), MsgBoxAnswer::No);
    }

    void noCanBeTheDefault()
    {
        withBox([](QMessageBox &box) {
            QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
            QTest::keyClick(&box, Qt::Key_Return);
        });
        QCOMPARE(MsgBox(u"Well?"_s, MsgBoxButtons::YesNo, MsgBoxEsc::MeansNo, MsgBoxDefault::No),
                 MsgBoxAnswer::No);
    }

    void aBoxEndedWithoutAButtonIsNeverAYes_data()
    {
        QTest::addColumn<MsgBoxButtons>("buttons");
        QTest::addColumn<MsgBoxAnswer>("answer");
        QTest::newRow("OK") << MsgBoxButtons::OkOnly << MsgBoxAnswer::Ok;
        QTest::newRow("OK/Cancel") << MsgBoxButtons::OkCancel << MsgBoxAnswer::Cancel;
        QTest::newRow("Yes/No") << MsgBoxButtons::YesNo << MsgBoxAnswer::No;
        QTest::newRow("Yes/No/Cancel") << MsgBoxButtons::YesNoCancel << MsgBoxAnswer::Cancel;
    }

    void aBoxEndedWithoutAButtonIsNeverAYes()
    {
        QFETCH(MsgBoxButtons, buttons);
        for (const int end : {int(QDialog::Rejected), int(QDialog::Accepted), -1, 77}) {
            withBox([end](QMessageBox &box) { box.done(end); });
            QTEST(MsgBox(u"Well?"_s, buttons), "answer");
        }
        withBox([](QMessageBox &box) { box.hide(); });
        QTEST(MsgBox(u"Well?"_s, buttons), "answer");
    }

    void aYesNoQuestionIsNotDismissed()
    {
        withBox([](QMessageBox &box) {
            QTest::keyClick(box.defaultButton(), Qt::Key_Escape);
            QVERIFY(box.isVisible());
            QTest::keyClick(&box, Qt::Key_Escape);
            QVERIFY(box.isVisible());
            QVERIFY(!box.close());
            QVERIFY(box.isVisible());
            QTest::mouseClick(box.button(QMessageBox::Yes), Qt::LeftButton);
        });
        QCOMPARE(MsgBox(u"Well?"_s, MsgBoxButtons::YesNo), MsgBoxAnswer::Yes);
    }

    void theBoxIsShownOverTheActiveWindow()
    {
        QWidget window;
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        DialogAnswers answers;
        answers.expectMsgBox(u"Well."_s, QMessageBox::Ok, [&window](QMessageBox &box) {
            QCOMPARE(box.parentWidget(), &window);
            QVERIFY(box.isModal());
        });
        MsgBox(u"Well."_s);
        QVERIFY(answers.allSeen());
    }

    void theBoxIsShownOverAWindowThatStays_data()
    {
        QTest::addColumn<Qt::WindowType>("type");
        QTest::newRow("a tool tip") << Qt::ToolTip;
        QTest::newRow("a menu") << Qt::Popup;
        QTest::newRow("a splash") << Qt::SplashScreen;
        QTest::newRow("a tool window") << Qt::Tool;
    }

    void theBoxIsShownOverAWindowThatStays()
    {
        QFETCH(Qt::WindowType, type);
        QWidget above(nullptr, type);
        above.show();
        above.activateWindow();
        withBox([](QMessageBox &box) {
            QCOMPARE(box.parentWidget(), nullptr);
            box.accept();
        });
        MsgBox(u"Well."_s);
        QWidget window;
        window.show();
        above.activateWindow();
        withBox([&window](QMessageBox &box) {
            QCOMPARE(box.parentWidget(), &window);
            box.accept();
        });
        MsgBox(u"Well."_s);
    }

    void theBoxIsShownOverTheDialogThatIsOpen()
    {
        QWidget window;
        window.show();
        QDialog dialog(&window);
        QTimer::singleShot(0, &dialog, [&] {
            window.activateWindow();
            withBox([&dialog](QMessageBox &box) {
                QCOMPARE(box.parentWidget(), &dialog);
                box.accept();
            });
            MsgBox(u"Well."_s);
            dialog.accept();
        });
        dialog.exec();
    }

    void noticesAreShownInMessageBoxes()
    {
        DialogAnswers answers;
        answers.expectMsgBox(u"Cannot add any more words."_s);
        notice(u"Cannot add any more words."_s);
        QVERIFY(answers.allSeen());
    }

private:
    // Calls the function with the next message box when it is shown.
    void withBox(const std::function<void(QMessageBox &)> &deed)
    {
        auto *timer = new QTimer(this);
        connect(timer, &QTimer::timeout, timer, [timer, deed] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (!box || !box->isVisible())
                return;
            timer->stop();
            timer->deleteLater();
            deed(*box);
        });
        timer->start(0);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<MsgBox_test>(argc, argv);
}

#include "MsgBox_test.moc"
