// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/EntryTextBox.h"

#include "support/Controls.h"
#include "support/FormTest.h"

#include <QClipboard>
#include <QDropEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <functional>
#include <memory>

namespace {

// A window with the box between two other controls; it notes the Enter keys that reach it.
class Window final : public QWidget
{
public:
    Window()
    {
        auto *column = new QVBoxLayout(this);
        before = new QLineEdit;
        box = new EntryTextBox;
        after = new QLineEdit;
        for (QWidget *control : {static_cast<QWidget *>(before), static_cast<QWidget *>(box),
                                 static_cast<QWidget *>(after)})
            column->addWidget(control);
        show();
        if (!QTest::qWaitForWindowActive(this))
            Controls::fail(QStringLiteral("the window does not become active"));
        box->setFocus();
    }

    QLineEdit *before = nullptr;
    EntryTextBox *box = nullptr;
    QLineEdit *after = nullptr;
    int enters = 0;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            ++enters;
    }
};

// Brings the data to the box; without data the clipboard is empty.
using Way = std::function<void(EntryTextBox &, QMimeData *)>;

} // namespace

class EntryTextBox_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterIsLeftToTheWindow_data();
    void enterIsLeftToTheWindow();
    void withControlOrShiftEnterBreaksTheLine_data();
    void withControlOrShiftEnterBreaksTheLine();
    void aLineBreakReplacesTheSelection();
    void textsComeBackAsTheyWereSet_data();
    void textsComeBackAsTheyWereSet();
    void anUntouchedTextKeepsItsLineBreaks_data();
    void anUntouchedTextKeepsItsLineBreaks();
    void inAChangedTextAllLineBreaksAreCrLf_data() { anUntouchedTextKeepsItsLineBreaks_data(); }
    void inAChangedTextAllLineBreaksAreCrLf();
    void tabLeavesTheBox();
    void aPastedTextKeepsItsLinesAndLosesItsDress();
    void whatHasNoTextChangesNothing_data();
    void whatHasNoTextChangesNothing();
    void aPasteIsUndoneByItself();
    void everyChangeIsSignalled();
};

void EntryTextBox_test::enterIsLeftToTheWindow_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::newRow("Return") << Qt::Key_Return;
    QTest::newRow("Enter of the keypad") << Qt::Key_Enter;
}

void EntryTextBox_test::enterIsLeftToTheWindow()
{
    QFETCH(Qt::Key, key);
    Window window;
    QTest::keyClicks(window.box, QStringLiteral("one"));
    QTest::keyClick(window.box, key, key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
    QTest::keyClicks(window.box, QStringLiteral("two"));
    QCOMPARE(window.box->text(), QStringLiteral("onetwo"));
    QCOMPARE(window.enters, 1);
}

void EntryTextBox_test::withControlOrShiftEnterBreaksTheLine_data()
{
    QTest::addColumn<Qt::Key>("key");
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Ctrl+Return") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Shift+Return") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ShiftModifier);
    QTest::newRow("Ctrl+Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Shift+Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void EntryTextBox_test::withControlOrShiftEnterBreaksTheLine()
{
    QFETCH(Qt::Key, key);
    QFETCH(Qt::KeyboardModifiers, modifiers);
    Window window;
    QTest::keyClicks(window.box, QStringLiteral("a"));
    QTest::keyClick(window.box, key, modifiers);
    QTest::keyClicks(window.box, QStringLiteral("b"));
    QCOMPARE(window.box->text(), QStringLiteral("a\r\nb"));
    QCOMPARE(window.box->text().size(), 4);
    QCOMPARE(window.enters, 0);
}

void EntryTextBox_test::aLineBreakReplacesTheSelection()
{
    Window window;
    window.box->setText(QStringLiteral("abc"));
    window.box->selectAll();
    QTest::keyClick(window.box, Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(window.box->text(), QStringLiteral("\r\n"));
}

void EntryTextBox_test::textsComeBackAsTheyWereSet_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one line") << QStringLiteral("a small animal");
    QTest::newRow("outer blanks") << QStringLiteral("  cat  ");
    QTest::newRow("two lines") << QStringLiteral("one\r\ntwo");
    QTest::newRow("an empty line between and at the end") << QStringLiteral("one\r\n\r\ntwo\r\n");
    QTest::newRow("only a line break") << QStringLiteral("\r\n");
    QTest::newRow("a tab") << QStringLiteral("one\ttwo");
    QTest::newRow("a hard blank") << QStringLiteral("10\u00A0km");
    QTest::newRow("accents") << QStringLiteral("\u00E9t\u00E9, \u0153uf, 5 \u20AC");
    QTest::newRow("marks of hypertext") << QStringLiteral("<b>not bold</b> &amp;");
}

void EntryTextBox_test::textsComeBackAsTheyWereSet()
{
    QFETCH(QString, text);
    EntryTextBox box;
    box.setText(text);
    QCOMPARE(box.text(), text);
}

void EntryTextBox_test::anUntouchedTextKeepsItsLineBreaks_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("LF") << QStringLiteral("one\ntwo");
    QTest::newRow("CR") << QStringLiteral("one\rtwo");
    QTest::newRow("line separator") << QStringLiteral("one\u2028two");
    QTest::newRow("paragraph separator") << QStringLiteral("one\u2029two");
}

void EntryTextBox_test::anUntouchedTextKeepsItsLineBreaks()
{
    QFETCH(QString, text);
    EntryTextBox box;
    box.setText(text);
    QCOMPARE(box.text(), text);
}

void EntryTextBox_test::inAChangedTextAllLineBreaksAreCrLf()
{
    QFETCH(QString, text);
    Window window;
    window.box->setText(text);
    window.box->moveCursor(QTextCursor::End);
    QTest::keyClicks(window.box, QStringLiteral("s"));
    QCOMPARE(window.box->text(), QStringLiteral("one\r\ntwos"));
}

void EntryTextBox_test::tabLeavesTheBox()
{
    Window window;
    QTest::keyClick(window.box, Qt::Key_Tab);
    QVERIFY(window.after->hasFocus());
    window.box->setFocus();
    QTest::keyClick(window.box, Qt::Key_Backtab, Qt::ShiftModifier);
    QVERIFY(window.before->hasFocus());
    QCOMPARE(window.box->text(), QString());
}

void EntryTextBox_test::aPastedTextKeepsItsLinesAndLosesItsDress()
{
    Window window;
    auto *data = new QMimeData;
    data->setHtml(QStringLiteral("<p><b>one</b></p><p>two</p>"));
    data->setText(QStringLiteral("one\ntwo"));
    QApplication::clipboard()->setMimeData(data);
    window.box->paste();
    QCOMPARE(window.box->text(), QStringLiteral("one\r\ntwo"));
    QApplication::clipboard()->clear();
}

void EntryTextBox_test::whatHasNoTextChangesNothing_data()
{
    const QList<std::pair<const char *, Way>> ways{
        {"Ctrl+V",
         [](EntryTextBox &box, QMimeData *data) {
             QApplication::clipboard()->setMimeData(data);
             QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
         }},
        {"Shift+Insert",
         [](EntryTextBox &box, QMimeData *data) {
             QApplication::clipboard()->setMimeData(data);
             QTest::keyClick(&box, Qt::Key_Insert, Qt::ShiftModifier);
         }},
        {"the slot of the context menu",
         [](EntryTextBox &box, QMimeData *data) {
             QApplication::clipboard()->setMimeData(data);
             box.paste();
         }},
        {"a drop",
         [](EntryTextBox &box, QMimeData *data) {
             const std::unique_ptr<QMimeData> owned(data);
             const QMimeData none;
             const QMimeData *dropped = data ? data : &none;
             QDragEnterEvent drag({5, 5}, Qt::CopyAction, dropped, Qt::LeftButton, Qt::NoModifier);
             QApplication::sendEvent(box.viewport(), &drag);
             QDropEvent drop({5, 5}, Qt::CopyAction, dropped, Qt::LeftButton, Qt::NoModifier);
             QApplication::sendEvent(box.viewport(), &drop);
         }},
    };
    QTest::addColumn<Way>("way");
    QTest::addColumn<QString>("format");
    for (const auto &[name, way] : ways) {
        QTest::addRow("%s of nothing", name) << way << QString();
        QTest::addRow("%s of no format", name) << way << QStringLiteral("-");
        QTest::addRow("%s of a picture", name) << way << QStringLiteral("image/png");
        QTest::addRow("%s of an empty text", name) << way << QStringLiteral("text/plain");
        QTest::addRow("%s of a formatted text", name) << way << QStringLiteral("text/html");
    }
}

void EntryTextBox_test::whatHasNoTextChangesNothing()
{
    QFETCH(Way, way);
    QFETCH(QString, format);
    Window window;
    window.box->setText(QStringLiteral("one\ntwo"));
    window.box->selectAll();
    QMimeData *data = format.isEmpty() ? nullptr : new QMimeData;
    if (data && format.contains(u'/'))
        data->setData(format, format == u"text/plain" ? QByteArray() : QByteArray("<p>x</p>"));
    way(*window.box, data);
    QCOMPARE(window.box->text(), QStringLiteral("one\ntwo"));
    QApplication::clipboard()->clear();
}

void EntryTextBox_test::aPasteIsUndoneByItself()
{
    Window window;
    QTest::keyClicks(window.box, QStringLiteral("one "));
    QApplication::clipboard()->setText(QStringLiteral("two\nthree"));
    QTest::keyClick(window.box, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(window.box->text(), QStringLiteral("one two\r\nthree"));
    QTest::keyClick(window.box, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(window.box->text(), QStringLiteral("one "));
    QApplication::clipboard()->clear();
}

void EntryTextBox_test::everyChangeIsSignalled()
{
    Window window;
    const QSignalSpy changes(window.box, &QPlainTextEdit::textChanged);
    QTest::keyClicks(window.box, QStringLiteral("a"));
    QCOMPARE(changes.size(), 1);
    QTest::keyClick(window.box, Qt::Key_Return, Qt::ShiftModifier);
    QCOMPARE(changes.size(), 2);
    window.box->setText({});
    QCOMPARE(changes.size(), 3);
}

int main(int argc, char *argv[])
{
    return runFormTest<EntryTextBox_test>(argc, argv);
}

#include "EntryTextBox_test.moc"
