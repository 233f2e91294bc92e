// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/EditorModes.h"
#include "editor/MainWindow.h"
#include "support/FormTest.h"

#include <QFileDialog>
#include <QScrollBar>

#include <algorithm>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString EndLesson = u"End current lesson?"_s;

} // namespace

class frmMain_Keyboard_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterInEachBoxIsTheDefaultButton_data()
    {
        QTest::addColumn<Qt::Key>("key");
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
            QTest::addRow("%s Return", box) << Qt::Key_Return;
            QTest::addRow("%s Enter", box) << Qt::Key_Enter;
        }
    }

    void enterInEachBoxIsTheDefaultButton()
    {
        QFETCH(Qt::Key, key);
        const QByteArray box = QByteArray(QTest::currentDataTag()).split(' ').constFirst();
        MainWindow main;
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
        main.control<QWidget>(box).setFocus();
        Controls::press(key);
        QCOMPARE(gVocabList().NumWords(), 1);
        QCOMPARE(main.row(1), (QStringList{u"1"_s, u"cat"_s, u"animal"_s, u"The cat."_s}));
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());

        main.clickCell(1, 1);
        main.type("txtWord", u"dog"_s);
        main.control<QWidget>(box).setFocus();
        Controls::press(key);
        QCOMPARE(main.row(1).at(1), u"dog"_s);
        QCOMPARE(main.look(), EditorModes::idle());
    }

    void enterOnAButtonPressesThatButton()
    {
        MainWindow main;
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s);
        main.control<QWidget>("cmdAbort").setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(main.look(), EditorModes::idle());
        QCOMPARE(gVocabList().NumWords(), 0);
    }

    void enterInTheIdleEditorBeginsANewWord()
    {
        MainWindow main;
        main.window().setFocus();
        Controls::press(Qt::Key_Return);
        QCOMPARE(main.look(), EditorModes::newWord());
    }

    void brokenLinesAreStoredAsCrLf_data()
    {
        QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
        QTest::newRow("Ctrl+Enter") << Qt::KeyboardModifiers(Qt::ControlModifier);
        QTest::newRow("Shift+Enter") << Qt::KeyboardModifiers(Qt::ShiftModifier);
    }

    void brokenLinesAreStoredAsCrLf()
    {
        QFETCH(Qt::KeyboardModifiers, modifiers);
        MainWindow main;
        main.click("cmdNewWord");
        main.type("txtWord", u"cat"_s);
        for (const char *box : {"txtDefinition", "txtSentence"}) {
            main.type(box, u"one"_s);
            Controls::press(Qt::Key_Return, modifiers);
            QTest::keyClicks(&main.control<QWidget>(box), u"two"_s);
        }
        QCOMPARE(gVocabList().NumWords(), 0);
        Controls::press(Qt::Key_Return);
        gVocabList().CurrentWord(1);
        QCOMPARE(gVocabList().Definition(), u"one\r\ntwo"_s);
        QCOMPARE(gVocabList().Sentence(), u"one\r\ntwo"_s);
    }

    void linesComeBackIntoTheBoxAsTheyWereStored()
    {
        MainWindow main;
        const QString text = u"one\r\n\r\n two\u00A0three"_s;
        gVocabList().AddVocab(u"cat"_s, text, text);
        main.bar().setValue(1);
        main.clickCell(1, 1);
        QCOMPARE(main.text("txtDefinition"), text);
        main.click("cmdAdd");
        gVocabList().CurrentWord(1);
        QCOMPARE(gVocabList().Definition(), text);
        QCOMPARE(gVocabList().Sentence(), text);
    }

    void escapeAborts_data()
    {
        QTest::addColumn<QByteArray>("control");
        for (const char *control :
             {"txtWord", "txtDefinition", "txtSentence", "cmdAdd", "MSFlexGrid1"})
            QTest::newRow(control) << QByteArray(control);
    }

    void escapeAborts()
    {
        QFETCH(QByteArray, control);
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.control<QWidget>(control).setFocus();
        Controls::press(Qt::Key_Escape);
        QCOMPARE(main.look(), EditorModes::idle());
        QCOMPARE(main.text("txtWord"), QString());
    }

    void escapeInTheIdleEditorDoesNothing()
    {
        MainWindow main;
        main.fill(3);
        main.grid().setFocus();
        Controls::press(Qt::Key_Escape);
        QCOMPARE(main.look(), EditorModes::idle());
        QVERIFY(main.window().isVisible());
    }

    void menuItemsHaveTheUsualShortcuts_data()
    {
        QTest::addColumn<QString>("keys");
        QTest::newRow("mnuNew") << u"Ctrl+N"_s;
        QTest::newRow("mnuOpen") << u"Ctrl+O"_s;
        QTest::newRow("mnuSave") << u"Ctrl+S"_s;
        QTest::newRow("mnuSaveAs") << u"Ctrl+Shift+S"_s;
        QTest::newRow("mnuPrint") << u"Ctrl+P"_s;
        QTest::newRow("mnuDeleteWord") << u"Ctrl+D"_s;
        QTest::newRow("mnuExit") << u"Ctrl+Q"_s;
    }

    void menuItemsHaveTheUsualShortcuts()
    {
        MainWindow main;
        QTEST(main.action(QTest::currentDataTag()).shortcut().toString(), "keys");
    }

    void controlNAsksAboutTheLesson()
    {
        MainWindow main;
        main.answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
        Controls::press(Qt::Key_N, Qt::ControlModifier);
        QVERIFY(main.answers.allSeen());
    }

    void controlOAsksAboutTheLesson()
    {
        MainWindow main;
        main.answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
        Controls::press(Qt::Key_O, Qt::ControlModifier);
        QVERIFY(main.answers.allSeen());
    }

    void controlSSaves()
    {
        MainWindow main;
        gFileName = main.path(u"list.lwx"_s);
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s);
        main.click("cmdAdd");
        main.answers.expectMsgBox(gFileName + u" has been saved."_s);
        Controls::press(Qt::Key_S, Qt::ControlModifier);
        QVERIFY(main.answers.allSeen());
        QVERIFY(QFile::exists(gFileName));
    }

    void controlShiftSSavesAs()
    {
        MainWindow main;
        main.fill(2);
        main.answers.cancelFileDialog(
            [](QFileDialog &dialog) { QCOMPARE(dialog.windowTitle(), u"Save File As"_s); });
        Controls::press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QVERIFY(main.answers.allSeen());
    }

    void controlDDeletesThePickedWord()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.answers.expectMsgBox(u"Are you sure you want to delete 'word 2' ?"_s,
                                  QMessageBox::Yes);
        Controls::press(Qt::Key_D, Qt::ControlModifier);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 2);
        QCOMPARE(main.row(2).at(1), u"word 3"_s);
    }

    void controlQEndsTheProgram()
    {
        MainWindow main;
        Controls::press(Qt::Key_Q, Qt::ControlModifier);
        QTRY_VERIFY(!main.window().isVisible());
    }

    void controlFSearches()
    {
        MainWindow main;
        main.fill(3);
        Controls::press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(main.look(), EditorModes::searching());
        QTest::keyClicks(QApplication::focusWidget(), u"word 2"_s);
        Controls::press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(main.look(), EditorModes::found());
        QCOMPARE(main.text("txtDefinition"), u"definition 2"_s);
    }

    void controlFDoesNothingWhereSearchIsDisabled()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        Controls::press(Qt::Key_F, Qt::ControlModifier);
        QCOMPARE(main.look(), EditorModes::editing());
    }

    void shortcutsWorkFromTheTextBoxes()
    {
        MainWindow main;
        main.click("cmdNewWord");
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
            main.control<QWidget>(box).setFocus();
            main.answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
            Controls::press(Qt::Key_N, Qt::ControlModifier);
            QVERIFY(main.answers.allSeen());
            QTRY_VERIFY(main.control<QWidget>(box).hasFocus());
            QCOMPARE(main.text(box), QString());
        }
    }

    void tabWalksWordDefinitionSentenceButtons_data()
    {
        QTest::addColumn<QStringList>("round");
        const auto names = [](std::initializer_list<const char *> list) {
            QStringList strings;
            for (const char *name : list)
                strings += QLatin1String(name);
            return strings;
        };
        QTest::newRow("idle") << names(
            {"MSFlexGrid1", "cmdNewWord", "cmdSearch", "cmdQuickFlash", "cmdPlayScramble"});
        QTest::newRow("new word") << names({"txtWord", "txtDefinition", "txtSentence", "cmdAdd",
                                            "cmdAbort", "cmdQuickFlash", "cmdPlayScramble",
                                            "MSFlexGrid1"});
        QTest::newRow("editing") << names({"txtWord", "txtDefinition", "txtSentence", "cmdAdd",
                                           "cmdAbort", "cmdDelete", "cmdQuickFlash",
                                           "cmdPlayScramble", "MSFlexGrid1"});
        QTest::newRow("search") << names({"txtWord", "cmdAbort", "cmdSearch", "cmdQuickFlash",
                                          "cmdPlayScramble", "MSFlexGrid1"});
    }

    void tabWalksWordDefinitionSentenceButtons()
    {
        QFETCH(QStringList, round);
        const QByteArray mode = QTest::currentDataTag();
        MainWindow main;
        main.fill(3);
        if (mode == "new word")
            main.click("cmdNewWord");
        else if (mode == "editing")
            main.clickCell(2, 1);
        else if (mode == "search")
            main.click("cmdSearch");
        main.control<QWidget>(round.constFirst().toLatin1()).setFocus();
        QCOMPARE(Controls::tabRound(Qt::Key_Tab), round);
        // Shift+Tab goes the other way.
        QStringList back = round;
        std::reverse(back.begin() + 1, back.end());
        QCOMPARE(Controls::tabRound(Qt::Key_Backtab, Qt::ShiftModifier), back);
        for (const char *box : {"txtDefinition", "txtSentence"})
            QVERIFY(!main.text(box).contains(QLatin1Char('\t')));
    }

    void aWholeLessonNeedsNoMouse()
    {
        MainWindow main;
        const auto typeIntoFocus = [](const char *text) {
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
        };
        // At the start the grid has the focus.
        Controls::press(Qt::Key_Tab);
        Controls::press(Qt::Key_Return);
        for (const char *word : {"cat", "dog"}) {
            typeIntoFocus(word);
            Controls::press(Qt::Key_Tab);
            typeIntoFocus("animal");
            Controls::press(Qt::Key_Tab);
            typeIntoFocus("Here it is.");
            Controls::press(Qt::Key_Return);
        }
        QCOMPARE(gVocabList().NumWords(), 2);
        Controls::press(Qt::Key_Escape);
        Controls::press(Qt::Key_F, Qt::ControlModifier);
        typeIntoFocus("dog");
        Controls::press(Qt::Key_Return);
        QCOMPARE(main.text("txtWord"), u"dog"_s);
        main.answers.expectMsgBox(u"Are you sure you want to delete 'dog' ?"_s, QMessageBox::Yes);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(gVocabList().NumWords(), 1);
        QVERIFY(main.answers.allSeen());
        QTRY_VERIFY(main.window().isActiveWindow());
        main.grid().setFocus();
        Controls::press(Qt::Key_Home);
        Controls::press(Qt::Key_Space);
        QCOMPARE(main.text("txtWord"), u"cat"_s);
        QCOMPARE(main.look(), EditorModes::editing());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Keyboard_test>(argc, argv);
}

#include "frmMain_Keyboard_test.moc"
