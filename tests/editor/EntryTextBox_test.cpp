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

using namespace Qt::StringLiterals;

namespace {

// A window with the box between two other controls; it records the Enter keys that reach it.
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
        Controls::waitUntilActive(*this);
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

// Pastes or drops the data; without data the clipboard is empty.
using Way = std::function<void(EntryTextBox &, QMimeData *)>;

} // namespace

class EntryTextBox_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterIsLeftToTheWindow_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter of the keypad") << Qt::Key_Enter;
    }

    void enterIsLeftToTheWindow()
    {
        QFETCH(Qt::Key, key);
        Window window;
        QTest::keyClicks(window.box, u"one"_s);
        QTest::keyClick(window.box, key,
                        key == Qt::Key_Enter ? Qt::KeypadModifier : Qt::NoModifier);
        QTest::keyClicks(window.box, u"two"_s);
        QCOMPARE(window.box->text(), u"onetwo"_s);
        QCOMPARE(window.enters, 1);
    }

    void withControlOrShiftEnterBreaksTheLine_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Ctrl+Return")
            << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift+Return") << Qt::Key_Return << Qt::KeyboardModifiers(Qt::ShiftModifier);
        QTest::newRow("Ctrl+Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift+Enter") << Qt::Key_Enter << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void withControlOrShiftEnterBreaksTheLine()
    {
        QFETCH(Qt::Key, key);
        QFETCH(Qt::KeyboardModifiers, modifiers);
        Window window;
        QTest::keyClicks(window.box, u"a"_s);
        QTest::keyClick(window.box, key, modifiers);
        QTest::keyClicks(window.box, u"b"_s);
        QCOMPARE(window.box->text(), u"a\r\nb"_s);
        QCOMPARE(window.box->text().size(), 4);
        QCOMPARE(window.enters, 0);
    }

    void aLineBreakReplacesTheSelection()
    {
        Window window;
        window.box->setText(u"abc"_s);
        window.box->selectAll();
        QTest::keyClick(window.box, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(window.box->text(), u"\r\n"_s);
    }

    void textsComeBackAsTheyWereSet_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("one line") << u"a small animal"_s;
        QTest::newRow("outer blanks") << u"  cat  "_s;
        QTest::newRow("two lines") << u"one\r\ntwo"_s;
        QTest::newRow("an empty line between and at the end") << u"one\r\n\r\ntwo\r\n"_s;
        QTest::newRow("only a line break") << u"\r\n"_s;
        QTest::newRow("a tab") << u"one\ttwo"_s;
        QTest::newRow("a hard blank") << u"10\u00A0km"_s;
        QTest::newRow("accents") << u"\u00E9t\u00E9, \u0153uf, 5 \u20AC"_s;
        QTest::newRow("marks of hypertext") << u"<b>not bold</b> &amp;"_s;
    }

    void textsComeBackAsTheyWereSet()
    {
        QFETCH(QString, text);
        EntryTextBox box;
        box.setText(text);
        QCOMPARE(box.text(), text);
    }

    void anUntouchedTextKeepsItsLineBreaks_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("LF") << u"one\ntwo"_s;
        QTest::newRow("CR") << u"one\rtwo"_s;
        QTest::newRow("line separator") << u"one\u2028two"_s;
        QTest::newRow("paragraph separator") << u"one\u2029two"_s;
    }

    void anUntouchedTextKeepsItsLineBreaks()
    {
        QFETCH(QString, text);
        EntryTextBox box;
        box.setText(text);
        QCOMPARE(box.text(), text);
    }

    void inAChangedTextAllLineBreaksAreCrLf_data() { anUntouchedTextKeepsItsLineBreaks_data(); }

    void inAChangedTextAllLineBreaksAreCrLf()
    {
        QFETCH(QString, text);
        Window window;
        window.box->setText(text);
        window.box->moveCursor(QTextCursor::End);
        QTest::keyClicks(window.box, u"s"_s);
        QCOMPARE(window.box->text(), u"one\r\ntwos"_s);
    }

    void tabLeavesTheBox()
    {
        Window window;
        QTest::keyClick(window.box, Qt::Key_Tab);
        QVERIFY(window.after->hasFocus());
        window.box->setFocus();
        QTest::keyClick(window.box, Qt::Key_Backtab, Qt::ShiftModifier);
        QVERIFY(window.before->hasFocus());
        QCOMPARE(window.box->text(), QString());
    }

    void aPastedTextKeepsItsLinesAndLosesItsFormat()
    {
        Window window;
        auto *data = new QMimeData;
        data->setHtml(u"<p><b>one</b></p><p>two</p>"_s);
        data->setText(u"one\ntwo"_s);
        QApplication::clipboard()->setMimeData(data);
        window.box->paste();
        QCOMPARE(window.box->text(), u"one\r\ntwo"_s);
        QApplication::clipboard()->clear();
    }

    void whatHasNoTextChangesNothing_data()
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
                 QDragEnterEvent drag({5, 5}, Qt::CopyAction, dropped, Qt::LeftButton,
                                      Qt::NoModifier);
                 QApplication::sendEvent(box.viewport(), &drag);
                 QDropEvent drop({5, 5}, Qt::CopyAction, dropped, Qt::LeftButton, Qt::NoModifier);
                 QApplication::sendEvent(box.viewport(), &drop);
             }},
        };
        QTest::addColumn<Way>("way");
        QTest::addColumn<QString>("format");
        for (const auto &[name, way] : ways) {
            QTest::addRow("%s of nothing", name) << way << QString();
            QTest::addRow("%s of no format", name) << way << u"-"_s;
            QTest::addRow("%s of a picture", name) << way << u"image/png"_s;
            QTest::addRow("%s of an empty text", name) << way << u"text/plain"_s;
            QTest::addRow("%s of a formatted text", name) << way << u"text/html"_s;
        }
    }

    void whatHasNoTextChangesNothing()
    {
        QFETCH(Way, way);
        QFETCH(QString, format);
        Window window;
        window.box->setText(u"one\ntwo"_s);
        window.box->selectAll();
        QMimeData *data = format.isEmpty() ? nullptr : new QMimeData;
        if (data && format.contains(u'/'))
            data->setData(format, format == u"text/plain" ? QByteArray() : "<p>x</p>"_ba);
        way(*window.box, data);
        QCOMPARE(window.box->text(), u"one\ntwo"_s);
        QApplication::clipboard()->clear();
    }

    void aPasteIsOneStepOfUndo()
    {
        Window window;
        QTest::keyClicks(window.box, u"one "_s);
        QApplication::clipboard()->setText(u"two\nthree"_s);
        QTest::keyClick(window.box, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(window.box->text(), u"one two\r\nthree"_s);
        QTest::keyClick(window.box, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(window.box->text(), u"one "_s);
        QApplication::clipboard()->clear();
    }

    void charactersThatAFileCannotKeepAreUnderlined()
    {
        const auto marked = [](const EntryTextBox &box) {
            QStringList texts;
            for (const auto &mark : box.extraSelections()) {
                if (mark.format.underlineStyle() == QTextCharFormat::WaveUnderline)
                    texts += mark.cursor.selectedText();
            }
            return texts;
        };
        Window window;
        window.box->setText(u"na\u00EFve \u0142\u00F3d\u017A\r\n\u6F22\u5B57 \u20AC"_s);
        QCOMPARE(marked(*window.box), (QStringList{u"\u0142"_s, u"\u017A"_s, u"\u6F22\u5B57"_s}));
        window.box->selectAll();
        QTest::keyClicks(window.box, u"plain"_s);
        QCOMPARE(marked(*window.box), QStringList());
        window.box->setText(QString::fromUcs4(U"a \U0001F600 b"));
        QCOMPARE(marked(*window.box), QStringList{QString::fromUcs4(U"\U0001F600")});
        window.box->setText(u"\u0142 "_s.repeated(30'000));
        QCOMPARE(marked(*window.box).size(), 200);
    }

    void everyChangeIsSignalled()
    {
        Window window;
        const QSignalSpy changes(window.box, &QPlainTextEdit::textChanged);
        QTest::keyClicks(window.box, u"a"_s);
        QCOMPARE(changes.size(), 1);
        QTest::keyClick(window.box, Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(changes.size(), 2);
        window.box->setText({});
        QCOMPARE(changes.size(), 3);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<EntryTextBox_test>(argc, argv);
}

#include "EntryTextBox_test.moc"
