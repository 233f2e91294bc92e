// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QFileDialog>
#include <QScrollBar>

#include <algorithm>

using namespace Module1;

namespace {

const QString EndLesson = QStringLiteral("End current lesson?");

} // namespace

class frmMain_Keyboard_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enterInEachBoxIsTheDefaultButton_data();
    void enterInEachBoxIsTheDefaultButton();
    void enterOnAButtonPressesThatButton();
    void enterInTheIdleEditorBeginsANewWord();
    void brokenLinesAreStoredAsCrLf_data();
    void brokenLinesAreStoredAsCrLf();
    void linesComeBackIntoTheBoxAsTheyWereStored();

    void escapeAborts_data();
    void escapeAborts();
    void escapeInTheIdleEditorDoesNothing();

    void menuItemsHaveTheUsualShortcuts_data();
    void menuItemsHaveTheUsualShortcuts();
    void controlNAsksAboutTheLesson();
    void controlOAsksAboutTheLesson();
    void controlSSaves();
    void controlShiftSSavesAs();
    void controlQEndsTheProgram();
    void controlFSearches();
    void controlFDoesNothingWhereSearchIsDisabled();
    void shortcutsWorkFromTheTextBoxes();

    void tabWalksWordDefinitionSentenceButtons_data();
    void tabWalksWordDefinitionSentenceButtons();
    void aWholeLessonNeedsNoMouse();
};

void frmMain_Keyboard_test::enterInEachBoxIsTheDefaultButton_data()
{
    QTest::addColumn<Qt::Key>("key");
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
        QTest::addRow("%s Return", box) << Qt::Key_Return;
        QTest::addRow("%s Enter", box) << Qt::Key_Enter;
    }
}

void frmMain_Keyboard_test::enterInEachBoxIsTheDefaultButton()
{
    QFETCH(Qt::Key, key);
    const QByteArray box = QByteArray(QTest::currentDataTag()).split(' ').constFirst();
    MainWindow main;
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.control<QWidget>(box).setFocus();
    Controls::press(key);
    QCOMPARE(gVocabList().NumWords(), 1);
    QCOMPARE(main.row(1), (QStringList{QStringLiteral("1"), QStringLiteral("cat"),
                                       QStringLiteral("animal"), QStringLiteral("The cat.")}));
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());

    main.clickCell(1, 1);
    main.type("txtWord", QStringLiteral("dog"));
    main.control<QWidget>(box).setFocus();
    Controls::press(key);
    QCOMPARE(main.row(1).at(1), QStringLiteral("dog"));
    QCOMPARE(main.look(), EditorModes::idle());
}

void frmMain_Keyboard_test::enterOnAButtonPressesThatButton()
{
    MainWindow main;
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"));
    main.control<QWidget>("cmdAbort").setFocus();
    Controls::press(Qt::Key_Return);
    QCOMPARE(main.look(), EditorModes::idle());
    QCOMPARE(gVocabList().NumWords(), 0);
}

void frmMain_Keyboard_test::enterInTheIdleEditorBeginsANewWord()
{
    MainWindow main;
    main.window().setFocus();
    Controls::press(Qt::Key_Return);
    QCOMPARE(main.look(), EditorModes::newWord());
}

void frmMain_Keyboard_test::brokenLinesAreStoredAsCrLf_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::newRow("Ctrl+Enter") << Qt::KeyboardModifiers(Qt::ControlModifier);
    QTest::newRow("Shift+Enter") << Qt::KeyboardModifiers(Qt::ShiftModifier);
}

void frmMain_Keyboard_test::brokenLinesAreStoredAsCrLf()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    MainWindow main;
    main.click("cmdNewWord");
    main.type("txtWord", QStringLiteral("cat"));
    for (const char *box : {"txtDefinition", "txtSentence"}) {
        main.type(box, QStringLiteral("one"));
        Controls::press(Qt::Key_Return, modifiers);
        QTest::keyClicks(&main.control<QWidget>(box), QStringLiteral("two"));
    }
    QCOMPARE(gVocabList().NumWords(), 0);
    Controls::press(Qt::Key_Return);
    gVocabList().CurrentWord(1);
    QCOMPARE(gVocabList().Definition(), QStringLiteral("one\r\ntwo"));
    QCOMPARE(gVocabList().Sentence(), QStringLiteral("one\r\ntwo"));
}

void frmMain_Keyboard_test::linesComeBackIntoTheBoxAsTheyWereStored()
{
    MainWindow main;
    const QString text = QStringLiteral("one\r\n\r\n two\u00A0three");
    gVocabList().AddVocab(QStringLiteral("cat"), text, text);
    main.bar().setValue(1);
    main.clickCell(1, 1);
    QCOMPARE(main.text("txtDefinition"), text);
    main.click("cmdAdd");
    gVocabList().CurrentWord(1);
    QCOMPARE(gVocabList().Definition(), text);
    QCOMPARE(gVocabList().Sentence(), text);
}

void frmMain_Keyboard_test::escapeAborts_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const char *control : {"txtWord", "txtDefinition", "txtSentence", "cmdAdd", "MSFlexGrid1"})
        QTest::newRow(control) << QByteArray(control);
}

void frmMain_Keyboard_test::escapeAborts()
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

void frmMain_Keyboard_test::escapeInTheIdleEditorDoesNothing()
{
    MainWindow main;
    main.fill(3);
    main.grid().setFocus();
    Controls::press(Qt::Key_Escape);
    QCOMPARE(main.look(), EditorModes::idle());
    QVERIFY(main.window().isVisible());
}

void frmMain_Keyboard_test::menuItemsHaveTheUsualShortcuts_data()
{
    QTest::addColumn<QString>("keys");
    QTest::newRow("mnuNew") << QStringLiteral("Ctrl+N");
    QTest::newRow("mnuOpen") << QStringLiteral("Ctrl+O");
    QTest::newRow("mnuSave") << QStringLiteral("Ctrl+S");
    QTest::newRow("mnuSaveAs") << QStringLiteral("Ctrl+Shift+S");
    QTest::newRow("mnuPrint") << QStringLiteral("Ctrl+P");
    QTest::newRow("mnuExit") << QStringLiteral("Ctrl+Q");
}

void frmMain_Keyboard_test::menuItemsHaveTheUsualShortcuts()
{
    MainWindow main;
    QTEST(main.action(QTest::currentDataTag()).shortcut().toString(), "keys");
}

void frmMain_Keyboard_test::controlNAsksAboutTheLesson()
{
    MainWindow main;
    main.answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
    Controls::press(Qt::Key_N, Qt::ControlModifier);
    QVERIFY(main.answers.allSeen());
}

void frmMain_Keyboard_test::controlOAsksAboutTheLesson()
{
    MainWindow main;
    main.answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
    Controls::press(Qt::Key_O, Qt::ControlModifier);
    QVERIFY(main.answers.allSeen());
}

void frmMain_Keyboard_test::controlSSaves()
{
    MainWindow main;
    gFileName = main.path(QStringLiteral("list.lwx"));
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"));
    main.click("cmdAdd");
    main.answers.expectMsgBox(gFileName + QStringLiteral(" has been saved."));
    Controls::press(Qt::Key_S, Qt::ControlModifier);
    QVERIFY(main.answers.allSeen());
    QVERIFY(QFile::exists(gFileName));
}

void frmMain_Keyboard_test::controlShiftSSavesAs()
{
    MainWindow main;
    main.fill(2);
    main.answers.cancelFileDialog([](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Save File As"));
    });
    Controls::press(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
    QVERIFY(main.answers.allSeen());
}

void frmMain_Keyboard_test::controlQEndsTheProgram()
{
    MainWindow main;
    Controls::press(Qt::Key_Q, Qt::ControlModifier);
    QTRY_VERIFY(!main.window().isVisible());
}

void frmMain_Keyboard_test::controlFSearches()
{
    MainWindow main;
    main.fill(3);
    Controls::press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(main.look(), EditorModes::searching());
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("word 2"));
    Controls::press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(main.look(), EditorModes::found());
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition 2"));
}

void frmMain_Keyboard_test::controlFDoesNothingWhereSearchIsDisabled()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    Controls::press(Qt::Key_F, Qt::ControlModifier);
    QCOMPARE(main.look(), EditorModes::editing());
}

void frmMain_Keyboard_test::shortcutsWorkFromTheTextBoxes()
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

void frmMain_Keyboard_test::tabWalksWordDefinitionSentenceButtons_data()
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
                                       "cmdAbort", "cmdDelete", "cmdQuickFlash", "cmdPlayScramble",
                                       "MSFlexGrid1"});
    QTest::newRow("search") << names(
        {"txtWord", "cmdAbort", "cmdSearch", "cmdQuickFlash", "cmdPlayScramble", "MSFlexGrid1"});
}

void frmMain_Keyboard_test::tabWalksWordDefinitionSentenceButtons()
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

void frmMain_Keyboard_test::aWholeLessonNeedsNoMouse()
{
    MainWindow main;
    const auto typeIntoFocus = [](const char *text) {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(text));
    };
    // The start focus is on the grid.
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
    QCOMPARE(main.text("txtWord"), QStringLiteral("dog"));
    main.answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'dog' ?"),
                              QMessageBox::Yes);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_D, Qt::AltModifier);
    QTRY_COMPARE(gVocabList().NumWords(), 1);
    QVERIFY(main.answers.allSeen());
    QTRY_VERIFY(main.window().isActiveWindow());
    main.grid().setFocus();
    Controls::press(Qt::Key_Home);
    Controls::press(Qt::Key_Space);
    QCOMPARE(main.text("txtWord"), QStringLiteral("cat"));
    QCOMPARE(main.look(), EditorModes::editing());
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Keyboard_test>(argc, argv);
}

#include "frmMain_Keyboard_test.moc"
