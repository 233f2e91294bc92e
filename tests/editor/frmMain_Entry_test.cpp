// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QGroupBox>
#include <QScrollBar>

using namespace Module1;

namespace {

const QString Duplicate = QStringLiteral("Word already exist.  Add word anyway?");

QStringList entry(Integer position)
{
    cVocabList &list = gVocabList();
    const Integer current = list.CurrentWord();
    list.CurrentWord(position);
    QStringList texts{list.Word(), list.Definition(), list.Sentence()};
    list.CurrentWord(current);
    return texts;
}

} // namespace

class frmMain_Entry_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newWordOpensEmptyBoxes();
    void newWordScrollsToTheEndAndMarksTheNextRow_data();
    void newWordScrollsToTheEndAndMarksTheNextRow();
    void newWordUnmarksThePickedRow();
    void newWordForgetsThePickedEntry();

    void addAppendsTheTextsAsTheyStand();
    void addStaysReadyForTheNextWord();
    void addShowsThePageThatEndsWithTheNewEntry_data();
    void addShowsThePageThatEndsWithTheNewEntry();
    void inAnEmptiedBoxUndoBringsNothingBack_data();
    void inAnEmptiedBoxUndoBringsNothingBack();
    void addWithoutAWordChangesNothing();
    void addWithoutAWordEnablesSaveForEarlierChanges();
    void aWordOfBlanksCounts();
    void wordsCanBeTypedOneAfterAnother();
    void aDuplicateIsAskedAbout_data();
    void aDuplicateIsAskedAbout();
    void noToTheDuplicateKeepsWhatWasTyped();
    void yesToTheDuplicateAddsIt();
    void blanksMakeAnotherWord();
    void addBeyondMaxWordsIsRefused();

    void theFramesCountTheCharacters();
};

void frmMain_Entry_test::newWordOpensEmptyBoxes()
{
    MainWindow main;
    main.click("cmdNewWord");
    QCOMPARE(main.look(), EditorModes::newWord());
    QVERIFY(gNewWord);
    QVERIFY(!gWordSelected);
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
        QCOMPARE(main.text(box), QString());
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    QVERIFY(!gChanged);
    QVERIFY(!main.action("mnuSave").isEnabled());
}

void frmMain_Entry_test::newWordScrollsToTheEndAndMarksTheNextRow_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("markedRow");
    QTest::newRow("empty list") << 0 << 1 << 1;
    QTest::newRow("1 entry") << 1 << 1 << 2;
    QTest::newRow("5 entries") << 5 << 1 << 6;
    QTest::newRow("22 entries") << 22 << 1 << 23;
    QTest::newRow("23 entries") << 23 << 2 << 23;
    QTest::newRow("24 entries") << 24 << 3 << 23;
    QTest::newRow("30 entries") << 30 << 9 << 23;
    QTest::newRow("100 entries") << 100 << 79 << 23;
}

void frmMain_Entry_test::newWordScrollsToTheEndAndMarksTheNextRow()
{
    QFETCH(int, entries);
    QFETCH(int, top);
    QFETCH(int, markedRow);
    MainWindow main;
    if (entries > 0)
        main.fill(entries);
    main.click("cmdNewWord");
    QCOMPARE(main.markedRows(), QList<int>{markedRow});
    QCOMPARE(gHighlightRow, markedRow);
    QCOMPARE(main.row(markedRow),
             (QStringList{QString::number(entries + 1), QString(), QString(), QString()}));
    for (int row = 1; row < markedRow; ++row)
        QCOMPARE(main.row(row), EditorModes::filledRow(top + row - 1));
    if (entries > 0)
        QCOMPARE(main.bar().value(), top);
}

void frmMain_Entry_test::newWordUnmarksThePickedRow()
{
    MainWindow main;
    main.fill(5);
    main.clickCell(2, 1);
    main.click("cmdAbort");
    main.click("cmdNewWord");
    QCOMPARE(main.markedRows(), QList<int>{6});
}

void frmMain_Entry_test::newWordForgetsThePickedEntry()
{
    MainWindow main;
    main.fill(5);
    main.clickCell(2, 1);
    main.click("cmdAbort");
    QVERIFY(gWordSelected);
    main.click("cmdNewWord");
    QVERIFY(!gWordSelected);
    main.typeEntry(QStringLiteral("cat"));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 6);
    QCOMPARE(entry(2).constFirst(), QStringLiteral("word 2"));
}

void frmMain_Entry_test::addAppendsTheTextsAsTheyStand()
{
    MainWindow main;
    main.fill(2);
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("  cat  "), QStringLiteral(" small animal "),
                   QStringLiteral(" The cat sat. "));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 3);
    QCOMPARE(entry(3), (QStringList{QStringLiteral("  cat  "), QStringLiteral(" small animal "),
                                    QStringLiteral(" The cat sat. ")}));
    QVERIFY(gChanged);
    QVERIFY(main.action("mnuSave").isEnabled());
}

void frmMain_Entry_test::addStaysReadyForTheNextWord()
{
    MainWindow main;
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.click("cmdAdd");
    QCOMPARE(main.look(), EditorModes::newWord());
    QVERIFY(gNewWord);
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
        QCOMPARE(main.text(box), QString());
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
}

void frmMain_Entry_test::addShowsThePageThatEndsWithTheNewEntry_data()
{
    QTest::addColumn<int>("entries"); // before
    QTest::addColumn<int>("top");
    QTest::addColumn<int>("newRow");
    QTest::newRow("1st") << 0 << 1 << 1;
    QTest::newRow("6th") << 5 << 1 << 6;
    QTest::newRow("22nd") << 21 << 1 << 22;
    QTest::newRow("23rd") << 22 << 2 << 22;
    QTest::newRow("24th") << 23 << 3 << 22;
    QTest::newRow("31st") << 30 << 10 << 22;
    QTest::newRow("101st") << 100 << 80 << 22;
}

void frmMain_Entry_test::addShowsThePageThatEndsWithTheNewEntry()
{
    QFETCH(int, entries);
    QFETCH(int, top);
    QFETCH(int, newRow);
    MainWindow main;
    if (entries > 0)
        main.fill(entries);
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.click("cmdAdd");
    QCOMPARE(main.bar().value(), entries + 1);
    QCOMPARE(main.bar().maximum(), entries + 2);
    for (int row = 1; row < newRow; ++row)
        QCOMPARE(main.row(row), EditorModes::filledRow(top + row - 1));
    QCOMPARE(main.row(newRow), (QStringList{QString::number(entries + 1), QStringLiteral("cat"),
                                            QStringLiteral("animal"), QStringLiteral("The cat.")}));
    // All rows are numbered on, and the next word's is marked.
    for (int row = newRow + 1; row <= 23; ++row)
        QCOMPARE(main.row(row),
                 (QStringList{QString::number(top + row - 1), QString(), QString(), QString()}));
    QCOMPARE(main.markedRows(), QList<int>{newRow + 1});
}

void frmMain_Entry_test::inAnEmptiedBoxUndoBringsNothingBack_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::newRow("Add") << QByteArrayLiteral("cmdAdd");
    QTest::newRow("Abort and New Word") << QByteArrayLiteral("cmdAbort");
}

void frmMain_Entry_test::inAnEmptiedBoxUndoBringsNothingBack()
{
    QFETCH(QByteArray, button);
    MainWindow main;
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.click(button.constData());
    if (button == "cmdAbort")
        main.click("cmdNewWord");
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
        main.control<QWidget>(box).setFocus();
        Controls::press(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(main.text(box), QString());
    }
}

void frmMain_Entry_test::addWithoutAWordChangesNothing()
{
    MainWindow main;
    main.fill(3);
    main.click("cmdNewWord");
    main.type("txtDefinition", QStringLiteral("animal"));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 3);
    QVERIFY(!gChanged);
    QVERIFY(!main.action("mnuSave").isEnabled());
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("animal"));
    QCOMPARE(main.look(), EditorModes::newWord());
}

void frmMain_Entry_test::addWithoutAWordEnablesSaveForEarlierChanges()
{
    MainWindow main;
    gChanged = true;
    main.click("cmdNewWord");
    main.click("cmdAdd");
    QVERIFY(main.action("mnuSave").isEnabled());
}

void frmMain_Entry_test::aWordOfBlanksCounts()
{
    MainWindow main;
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("  "));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 1);
    QCOMPARE(entry(1).constFirst(), QStringLiteral("  "));
}

void frmMain_Entry_test::wordsCanBeTypedOneAfterAnother()
{
    MainWindow main;
    main.click("cmdNewWord");
    for (const char *word : {"cat", "dog", "cow"}) {
        QTest::keyClicks(QApplication::focusWidget(), QLatin1String(word));
        Controls::press(Qt::Key_Return);
    }
    QCOMPARE(gVocabList().NumWords(), 3);
    QCOMPARE(entry(1).constFirst(), QStringLiteral("cat"));
    QCOMPARE(entry(2).constFirst(), QStringLiteral("dog"));
    QCOMPARE(entry(3).constFirst(), QStringLiteral("cow"));
}

void frmMain_Entry_test::aDuplicateIsAskedAbout_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("the same") << QStringLiteral("cat");
    QTest::newRow("another case") << QStringLiteral("CAT");
    QTest::newRow("the last one") << QStringLiteral("Dog");
}

void frmMain_Entry_test::aDuplicateIsAskedAbout()
{
    QFETCH(QString, word);
    MainWindow main;
    main.fill({QStringLiteral("Cat"), QStringLiteral("cow"), QStringLiteral("dog")});
    main.click("cmdNewWord");
    main.typeEntry(word);
    main.answers.expectMsgBox(Duplicate, QMessageBox::No, [](QMessageBox &box) {
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QCOMPARE(box.defaultButton(), box.button(QMessageBox::No));
    });
    main.click("cmdAdd");
    main.answers.escapeMsgBox(Duplicate);
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 3);
}

void frmMain_Entry_test::noToTheDuplicateKeepsWhatWasTyped()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("Cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.answers.expectMsgBox(Duplicate, QMessageBox::No);
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 2);
    QVERIFY(!gChanged);
    QVERIFY(!main.action("mnuSave").isEnabled());
    QCOMPARE(main.text("txtWord"), QStringLiteral("Cat"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("animal"));
    QCOMPARE(main.text("txtSentence"), QStringLiteral("The cat."));
    QTRY_VERIFY(main.control<QWidget>("txtWord").hasFocus());
    QCOMPARE(main.look(), EditorModes::newWord());
    QCOMPARE(main.markedRows(), QList<int>{3});
}

void frmMain_Entry_test::yesToTheDuplicateAddsIt()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("Cat"));
    main.answers.expectMsgBox(Duplicate, QMessageBox::Yes);
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 3);
    QCOMPARE(entry(3).constFirst(), QStringLiteral("Cat"));
    QCOMPARE(main.text("txtWord"), QString());
}

void frmMain_Entry_test::blanksMakeAnotherWord()
{
    MainWindow main;
    main.fill({QStringLiteral("cat")});
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral(" cat"));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 2);
    QVERIFY(main.answers.allSeen());
}

void frmMain_Entry_test::addBeyondMaxWordsIsRefused()
{
    MainWindow main;
    main.fill(cVocabList::MaxWords - 1);
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("last"));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), cVocabList::MaxWords);
    gChanged = false;
    const QStringList page{main.row(1)};

    main.typeEntry(QStringLiteral("one more"), QStringLiteral("too many"), QStringLiteral("No."));
    main.answers.expectMsgBox(
        QStringLiteral("Cannot add any more words. Maximum number of words= 32000"),
        QMessageBox::Ok, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
        });
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 1);
    QCOMPARE(gVocabList().NumWords(), 32000);
    QVERIFY(!gChanged);
    QCOMPARE(main.text("txtWord"), QStringLiteral("one more"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("too many"));
    QCOMPARE(QStringList{main.row(1)}, page);
    QCOMPARE(main.look(), EditorModes::newWord());
}

void frmMain_Entry_test::theFramesCountTheCharacters()
{
    MainWindow main;
    const auto &frameDef = main.control<QGroupBox>("FrameDef");
    const auto &frameSen = main.control<QGroupBox>("FrameSen");
    QCOMPARE(frameDef.title(), QStringLiteral("Definition: 0"));
    QCOMPARE(frameSen.title(), QStringLiteral("Sentence: 0"));
    main.click("cmdNewWord");
    main.type("txtDefinition", QString(42, QLatin1Char('x')));
    QCOMPARE(frameDef.title(), QStringLiteral("Definition: 42"));
    main.type("txtSentence", QStringLiteral(" a "));
    QCOMPARE(frameSen.title(), QStringLiteral("Sentence: 3"));
    // A line break is CR LF.
    QTest::keyClick(&main.control<QWidget>("txtSentence"), Qt::Key_Return, Qt::ControlModifier);
    QCOMPARE(frameSen.title(), QStringLiteral("Sentence: 5"));
    main.type("txtDefinition", {});
    QCOMPARE(frameDef.title(), QStringLiteral("Definition: 0"));
    main.click("cmdAbort");
    QCOMPARE(frameSen.title(), QStringLiteral("Sentence: 0"));
    main.fill(1);
    main.clickCell(1, 1);
    QCOMPARE(frameDef.title(), QStringLiteral("Definition: 12"));
    QCOMPARE(frameSen.title(), QStringLiteral("Sentence: 10"));
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Entry_test>(argc, argv);
}

#include "frmMain_Entry_test.moc"
