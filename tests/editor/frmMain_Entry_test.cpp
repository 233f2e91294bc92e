// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <QGroupBox>
#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString Duplicate = u"Word already exist.  Add word anyway?"_s;

} // namespace

class frmMain_Entry_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newWordOpensEmptyBoxes()
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

    void newWordScrollsToTheEndAndMarksTheNextRow_data()
    {
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("markedRow");
        QTest::newRow("empty list") << 0 << 1 << 1;
        QTest::newRow("5 entries") << 5 << 1 << 6;
        QTest::newRow("30 entries") << 30 << 9 << 23;
    }

    void newWordScrollsToTheEndAndMarksTheNextRow()
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
        QCOMPARE(main.row(markedRow), EditorModes::numberedRow(entries + 1));
        for (int row = 1; row < markedRow; ++row)
            QCOMPARE(main.row(row), EditorModes::filledRow(top + row - 1));
        if (entries > 0)
            QCOMPARE(main.bar().value(), top);
    }

    void newWordUnmarksThePickedRow()
    {
        MainWindow main;
        main.fill(5);
        main.clickCell(2, 1);
        main.click("cmdAbort");
        main.click("cmdNewWord");
        QCOMPARE(main.markedRows(), QList<int>{6});
    }

    void newWordForgetsThePickedEntry()
    {
        MainWindow main;
        main.fill(5);
        main.clickCell(2, 1);
        main.click("cmdAbort");
        QVERIFY(gWordSelected);
        main.click("cmdNewWord");
        QVERIFY(!gWordSelected);
        main.typeEntry(u"cat"_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 6);
        QCOMPARE(openEntries().at(1).constFirst(), u"word 2"_s);
    }

    void addAppendsTheTextsAsTheyAreTyped()
    {
        MainWindow main;
        main.fill(2);
        main.click("cmdNewWord");
        main.typeEntry(u"  cat  "_s, u" small animal "_s, u" The cat sat. "_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 3);
        QCOMPARE(openEntries().at(2),
                 (QStringList{u"  cat  "_s, u" small animal "_s, u" The cat sat. "_s}));
        QVERIFY(gChanged);
        QVERIFY(main.action("mnuSave").isEnabled());
    }

    void addStaysReadyForTheNextWord()
    {
        MainWindow main;
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
        main.click("cmdAdd");
        QCOMPARE(main.look(), EditorModes::newWord());
        QVERIFY(gNewWord);
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    }

    void addShowsThePageThatEndsWithTheNewEntry_data()
    {
        QTest::addColumn<int>("entries"); // before
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("newRow");
        QTest::newRow("1st") << 0 << 1 << 1;
        QTest::newRow("6th") << 5 << 1 << 6;
        QTest::newRow("31st") << 30 << 10 << 22;
    }

    void addShowsThePageThatEndsWithTheNewEntry()
    {
        QFETCH(int, entries);
        QFETCH(int, top);
        QFETCH(int, newRow);
        MainWindow main;
        if (entries > 0)
            main.fill(entries);
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
        main.click("cmdAdd");
        QCOMPARE(main.bar().value(), entries + 1);
        QCOMPARE(main.bar().maximum(), entries + 2);
        for (int row = 1; row < newRow; ++row)
            QCOMPARE(main.row(row), EditorModes::filledRow(top + row - 1));
        QCOMPARE(main.row(newRow),
                 (QStringList{QString::number(entries + 1), u"cat"_s, u"animal"_s, u"The cat."_s}));
        // The rows below are numbered, too, and that of the next word is marked.
        for (int row = newRow + 1; row <= 23; ++row)
            QCOMPARE(main.row(row), (QStringList{QString::number(top + row - 1), QString(),
                                                 QString(), QString()}));
        QCOMPARE(main.markedRows(), QList<int>{newRow + 1});
    }

    void undoBringsNothingBackIntoAnEmptiedBox_data()
    {
        QTest::addColumn<QByteArray>("button");
        QTest::newRow("Add") << "cmdAdd"_ba;
        QTest::newRow("Abort and New Word") << "cmdAbort"_ba;
    }

    void undoBringsNothingBackIntoAnEmptiedBox()
    {
        QFETCH(QByteArray, button);
        MainWindow main;
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
        main.click(button.constData());
        if (button == "cmdAbort")
            main.click("cmdNewWord");
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
            main.control<QWidget>(box).setFocus();
            Controls::press(Qt::Key_Z, Qt::ControlModifier);
            QCOMPARE(main.text(box), QString());
        }
    }

    void addWithoutAWordChangesNothing()
    {
        MainWindow main;
        main.fill(3);
        main.click("cmdNewWord");
        main.type("txtDefinition", u"animal"_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 3);
        QVERIFY(!gChanged);
        QVERIFY(!main.action("mnuSave").isEnabled());
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
        QCOMPARE(main.text("txtDefinition"), u"animal"_s);
        QCOMPARE(main.look(), EditorModes::newWord());
    }

    void addWithoutAWordEnablesSaveForEarlierChanges()
    {
        MainWindow main;
        gChanged = true;
        main.click("cmdNewWord");
        main.click("cmdAdd");
        QVERIFY(main.action("mnuSave").isEnabled());
    }

    void aWordOfBlanksCounts()
    {
        MainWindow main;
        main.click("cmdNewWord");
        main.typeEntry(u"  "_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 1);
        QCOMPARE(openEntries().at(0).constFirst(), u"  "_s);
    }

    void wordsCanBeTypedOneAfterAnother()
    {
        MainWindow main;
        main.click("cmdNewWord");
        for (const char *word : {"cat", "dog", "cow"}) {
            QTest::keyClicks(QApplication::focusWidget(), QLatin1String(word));
            Controls::press(Qt::Key_Return);
        }
        QCOMPARE(gVocabList().NumWords(), 3);
        QCOMPARE(openEntries().at(0).constFirst(), u"cat"_s);
        QCOMPARE(openEntries().at(1).constFirst(), u"dog"_s);
        QCOMPARE(openEntries().at(2).constFirst(), u"cow"_s);
    }

    void aDuplicateIsAskedAbout_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("the same") << u"cat"_s;
        QTest::newRow("another case") << u"CAT"_s;
        QTest::newRow("the last one") << u"Dog"_s;
    }

    void aDuplicateIsAskedAbout()
    {
        QFETCH(QString, word);
        MainWindow main;
        main.fill({u"Cat"_s, u"cow"_s, u"dog"_s});
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

    void noToTheDuplicateKeepsWhatWasTyped()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.click("cmdNewWord");
        main.typeEntry(u"Cat"_s, u"animal"_s, u"The cat."_s);
        main.answers.expectMsgBox(Duplicate, QMessageBox::No);
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 2);
        QVERIFY(!gChanged);
        QVERIFY(!main.action("mnuSave").isEnabled());
        QCOMPARE(main.text("txtWord"), u"Cat"_s);
        QCOMPARE(main.text("txtDefinition"), u"animal"_s);
        QCOMPARE(main.text("txtSentence"), u"The cat."_s);
        QTRY_VERIFY(main.control<QWidget>("txtWord").hasFocus());
        QCOMPARE(main.look(), EditorModes::newWord());
        QCOMPARE(main.markedRows(), QList<int>{3});
    }

    void yesToTheDuplicateAddsIt()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.click("cmdNewWord");
        main.typeEntry(u"Cat"_s);
        main.answers.expectMsgBox(Duplicate, QMessageBox::Yes);
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 3);
        QCOMPARE(openEntries().at(2).constFirst(), u"Cat"_s);
        QCOMPARE(main.text("txtWord"), QString());
    }

    void blanksMakeAnotherWord()
    {
        MainWindow main;
        main.fill({u"cat"_s});
        main.click("cmdNewWord");
        main.typeEntry(u" cat"_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 2);
        QVERIFY(main.answers.allSeen());
    }

    void addBeyondMaxWordsIsRefused()
    {
        MainWindow main;
        main.fill(cVocabList::MaxWords - 1);
        main.click("cmdNewWord");
        main.typeEntry(u"last"_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), cVocabList::MaxWords);
        gChanged = false;
        const QStringList page{main.row(1)};

        main.typeEntry(u"one more"_s, u"too many"_s, u"No."_s);
        main.answers.expectMsgBox(u"Cannot add any more words. Maximum number of words= 32000"_s,
                                  QMessageBox::Ok, [](QMessageBox &box) {
                                      QCOMPARE(box.standardButtons(),
                                               QMessageBox::StandardButtons(QMessageBox::Ok));
                                  });
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 1);
        QCOMPARE(gVocabList().NumWords(), 32000);
        QVERIFY(!gChanged);
        QCOMPARE(main.text("txtWord"), u"one more"_s);
        QCOMPARE(main.text("txtDefinition"), u"too many"_s);
        QCOMPARE(QStringList{main.row(1)}, page);
        QCOMPARE(main.look(), EditorModes::newWord());
    }

    void theFramesCountTheCharacters()
    {
        MainWindow main;
        const auto &frameDef = main.control<QGroupBox>("FrameDef");
        const auto &frameSen = main.control<QGroupBox>("FrameSen");
        QCOMPARE(frameDef.title(), u"Definition: 0"_s);
        QCOMPARE(frameSen.title(), u"Sentence: 0"_s);
        main.click("cmdNewWord");
        main.type("txtDefinition", QString(42, QLatin1Char('x')));
        QCOMPARE(frameDef.title(), u"Definition: 42"_s);
        main.type("txtSentence", u" a "_s);
        QCOMPARE(frameSen.title(), u"Sentence: 3"_s);
        // A line break is CR LF.
        QTest::keyClick(&main.control<QWidget>("txtSentence"), Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(frameSen.title(), u"Sentence: 5"_s);
        main.type("txtDefinition", {});
        QCOMPARE(frameDef.title(), u"Definition: 0"_s);
        main.click("cmdAbort");
        QCOMPARE(frameSen.title(), u"Sentence: 0"_s);
        main.fill(1);
        main.clickCell(1, 1);
        QCOMPARE(frameDef.title(), u"Definition: 12"_s);
        QCOMPARE(frameSen.title(), u"Sentence: 10"_s);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Entry_test>(argc, argv);
}

#include "frmMain_Entry_test.moc"
