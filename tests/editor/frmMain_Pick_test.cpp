// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ShownPage.h"
#include "support/FormTest.h"

#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_Pick_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickPicksTheEntryOfTheRow_data()
    {
        QTest::addColumn<int>("row");
        for (const int row : {1, 2, 5, 23})
            QTest::addRow("%d", row) << row;
    }

    void aClickPicksTheEntryOfTheRow()
    {
        QFETCH(int, row);
        MainWindow main;
        main.fill(30);
        main.clickCell(row, 1);
        QCOMPARE(gVocabList().CurrentWord(), row);
        QVERIFY(gWordSelected);
        QVERIFY(!gNewWord);
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word %1"_s.arg(row));
        QCOMPARE(main.text("txtDefinition"), u"definition %1"_s.arg(row));
        QCOMPARE(main.text("txtSentence"), u"sentence %1"_s.arg(row));
        QCOMPARE(main.markedRows(), QList<int>{row});
        QCOMPARE(gHighlightRow, row);
        QVERIFY(!gChanged);
    }

    void aClickFocusesTheBoxOfItsColumn_data()
    {
        QTest::addColumn<int>("column");
        QTest::newRow("txtWord") << 1;
        QTest::newRow("txtDefinition") << 2;
        QTest::newRow("txtSentence") << 3;
    }

    void aClickFocusesTheBoxOfItsColumn()
    {
        QFETCH(int, column);
        MainWindow main;
        main.fill(5);
        main.clickCell(3, column);
        QVERIFY(main.control<QWidget>(QTest::currentDataTag()).hasFocus());
        QCOMPARE(main.grid().Row(), 3);
        QCOMPARE(main.grid().Col(), 1);
    }

    void aClickOnAScrolledPagePicksTheEntryShown()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(40);
        main.clickCell(5, 0);
        QCOMPARE(gVocabList().CurrentWord(), 44);
        QCOMPARE(main.text("txtWord"), u"word 44"_s);
        QCOMPARE(main.markedRows(), QList<int>{5});
    }

    void aClickMovesTheMark()
    {
        MainWindow main;
        main.fill(5);
        main.clickCell(3, 1);
        main.clickCell(5, 2);
        QCOMPARE(main.markedRows(), QList<int>{5});
        QCOMPARE(main.text("txtWord"), u"word 5"_s);
        main.clickCell(5, 2);
        QCOMPARE(main.markedRows(), QList<int>{5});
    }

    void aClickInNewWordModeEditsTheEntry()
    {
        MainWindow main;
        main.fill(5);
        main.click("cmdNewWord");
        main.clickCell(2, 1);
        QCOMPARE(main.look(), EditorModes::editing());
        QVERIFY(!gNewWord);
        QVERIFY(gWordSelected);
        QCOMPARE(main.markedRows(), QList<int>{2});
    }

    void aClickWhereNoEntryIsPicksNothing_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<bool>("isNumbered"); // as after an addition
        QTest::newRow("header") << 0 << false;
        QTest::newRow("first empty row") << 6 << false;
        QTest::newRow("last row") << 23 << false;
        QTest::newRow("number behind the list") << 7 << true;
    }

    void aClickWhereNoEntryIsPicksNothing()
    {
        QFETCH(int, row);
        QFETCH(bool, isNumbered);
        MainWindow main;
        main.fill(5);
        if (isNumbered) {
            main.click("cmdNewWord");
            main.typeEntry(u"cat"_s);
            main.click("cmdAdd");
            QVERIFY(!main.row(row).constFirst().isEmpty());
            main.click("cmdAbort");
        }
        main.clickCell(2, 1);
        main.type("txtWord", u"typed"_s);
        main.clickCell(row, 2);
        QCOMPARE(gVocabList().CurrentWord(), 2);
        QCOMPARE(main.text("txtWord"), u"typed"_s);
        QCOMPARE(main.text("txtDefinition"), u"definition 2"_s);
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.markedRows(), QList<int>{2});
    }

    void aClickIntoAnEmptyListPicksNothing()
    {
        MainWindow main;
        QCOMPARE(main.row(1).constFirst(), u"1"_s);
        main.clickCell(1, 1);
        QCOMPARE(main.look(), EditorModes::idle());
        QVERIFY(!gWordSelected);
        QCOMPARE(main.markedRows(), QList<int>());
        QVERIFY(main.answers.allSeen());
    }

    void aPickedEntryStaysCurrentWhileThePageScrolls()
    {
        MainWindow main;
        main.fill(60);
        main.clickCell(3, 1);
        const auto scroll = [&main](int value, int top, const QList<int> &marked) {
            main.bar().setValue(value);
            comparePage(main, top);
            QCOMPARE(main.markedRows(), marked);
            QCOMPARE(gVocabList().CurrentWord(), 3);
            QCOMPARE(main.text("txtWord"), u"word 3"_s);
        };
        scroll(2, 2, {2});
        scroll(3, 3, {1});
        scroll(4, 4, {});
        scroll(61, 60, {});
        scroll(0, 1, {3});
        scroll(1, 1, {3});
    }

    void whatIsTypedStaysWhileThePageScrolls()
    {
        MainWindow main;
        main.fill(60);
        main.clickCell(3, 1);
        main.typeEntry(u"typed"_s, u"so far"_s, u"Yes."_s);
        main.bar().setValue(30);
        main.bar().setValue(1);
        QCOMPARE(main.text("txtWord"), u"typed"_s);
        QCOMPARE(main.text("txtDefinition"), u"so far"_s);
        QCOMPARE(main.text("txtSentence"), u"Yes."_s);
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.row(3), EditorModes::filledRow(3));
    }

    void anUpdateAfterScrollingChangesThePickedEntry()
    {
        MainWindow main;
        main.fill(60);
        main.clickCell(3, 1);
        main.bar().setValue(30);
        main.type("txtWord", u"cat"_s);
        main.click("cmdAdd");
        comparePage(main, 30);
        main.bar().setValue(1);
        QCOMPARE(main.row(3).mid(0, 2), (QStringList{u"3"_s, u"cat"_s}));
        QCOMPARE(main.row(4), EditorModes::filledRow(4));
    }

    void anAbortedEntryIsNoLongerCurrent()
    {
        MainWindow main;
        main.fill(60);
        main.clickCell(3, 1);
        main.click("cmdAbort");
        main.bar().setValue(2);
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(gHighlightRow, 0);
        QCOMPARE(gVocabList().CurrentWord(), 26);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Pick_test>(argc, argv);
}

#include "frmMain_Pick_test.moc"
