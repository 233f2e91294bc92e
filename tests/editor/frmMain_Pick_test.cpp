// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QScrollBar>

using namespace Module1;

namespace {

const QStringList EmptyRow{QString(), QString(), QString(), QString()};

// The page of MainWindow::fill that begins with entry `top`, to its last row.
void comparePage(MainWindow &main, int top)
{
    const int count = gVocabList().NumWords().toInt();
    for (int row = 1; row <= 24; ++row)
        QCOMPARE(main.row(row),
                 top + row - 1 <= count ? EditorModes::filledRow(top + row - 1) : EmptyRow);
}

} // namespace

class frmMain_Pick_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickPicksTheEntryOfTheRow_data();
    void aClickPicksTheEntryOfTheRow();
    void aClickTakesTheBoxOfItsColumn_data();
    void aClickTakesTheBoxOfItsColumn();
    void aClickOnAScrolledPagePicksTheNumberShown();
    void aClickMovesTheMark();
    void aClickInNewWordModeEditsTheEntry();
    void aClickWhereNoEntryIsPicksNothing_data();
    void aClickWhereNoEntryIsPicksNothing();
    void aClickIntoAnEmptyListPicksNothing();
    void aPickedEntryStaysCurrentWhileThePageScrolls();
    void whatIsTypedStaysWhileThePageScrolls();
    void anUpdateAfterScrollingChangesThePickedEntry();
    void anAbortedEntryIsNoLongerKept();
};

void frmMain_Pick_test::aClickPicksTheEntryOfTheRow_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {1, 2, 5, 23})
        QTest::addRow("%d", row) << row;
}

void frmMain_Pick_test::aClickPicksTheEntryOfTheRow()
{
    QFETCH(int, row);
    MainWindow main;
    main.fill(30);
    main.clickCell(row, 1);
    QCOMPARE(gVocabList().CurrentWord(), row);
    QVERIFY(gWordSelected);
    QVERIFY(!gNewWord);
    QCOMPARE(main.look(), EditorModes::editing());
    QCOMPARE(main.text("txtWord"), QStringLiteral("word %1").arg(row));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition %1").arg(row));
    QCOMPARE(main.text("txtSentence"), QStringLiteral("sentence %1").arg(row));
    QCOMPARE(main.markedRows(), QList<int>{row});
    QCOMPARE(gHighlightRow, row);
    QVERIFY(!gChanged);
}

void frmMain_Pick_test::aClickTakesTheBoxOfItsColumn_data()
{
    QTest::addColumn<int>("column");
    QTest::newRow("txtWord") << 1;
    QTest::newRow("txtDefinition") << 2;
    QTest::newRow("txtSentence") << 3;
}

void frmMain_Pick_test::aClickTakesTheBoxOfItsColumn()
{
    QFETCH(int, column);
    MainWindow main;
    main.fill(5);
    main.clickCell(3, column);
    QVERIFY(main.control<QWidget>(QTest::currentDataTag()).hasFocus());
    QCOMPARE(main.grid().Row(), 3);
    QCOMPARE(main.grid().Col(), 1);
}

void frmMain_Pick_test::aClickOnAScrolledPagePicksTheNumberShown()
{
    MainWindow main;
    main.fill(60);
    main.bar().setValue(40);
    main.clickCell(5, 0);
    QCOMPARE(gVocabList().CurrentWord(), 44);
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 44"));
    QCOMPARE(main.markedRows(), QList<int>{5});
}

void frmMain_Pick_test::aClickMovesTheMark()
{
    MainWindow main;
    main.fill(5);
    main.clickCell(3, 1);
    main.clickCell(5, 2);
    QCOMPARE(main.markedRows(), QList<int>{5});
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 5"));
    main.clickCell(5, 2);
    QCOMPARE(main.markedRows(), QList<int>{5});
}

void frmMain_Pick_test::aClickInNewWordModeEditsTheEntry()
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

void frmMain_Pick_test::aClickWhereNoEntryIsPicksNothing_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<bool>("isNumbered"); // as after an addition
    QTest::newRow("header") << 0 << false;
    QTest::newRow("first empty row") << 6 << false;
    QTest::newRow("last row") << 23 << false;
    QTest::newRow("number behind the list") << 7 << true;
}

void frmMain_Pick_test::aClickWhereNoEntryIsPicksNothing()
{
    QFETCH(int, row);
    QFETCH(bool, isNumbered);
    MainWindow main;
    main.fill(5);
    if (isNumbered) {
        main.click("cmdNewWord");
        main.typeEntry(QStringLiteral("cat"));
        main.click("cmdAdd");
        QVERIFY(!main.row(row).constFirst().isEmpty());
        main.click("cmdAbort");
    }
    main.clickCell(2, 1);
    main.type("txtWord", QStringLiteral("typed"));
    main.clickCell(row, 2);
    QCOMPARE(gVocabList().CurrentWord(), 2);
    QCOMPARE(main.text("txtWord"), QStringLiteral("typed"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition 2"));
    QCOMPARE(main.look(), EditorModes::editing());
    QCOMPARE(main.markedRows(), QList<int>{2});
}

void frmMain_Pick_test::aClickIntoAnEmptyListPicksNothing()
{
    MainWindow main;
    QCOMPARE(main.row(1).constFirst(), QStringLiteral("1"));
    main.clickCell(1, 1);
    QCOMPARE(main.look(), EditorModes::idle());
    QVERIFY(!gWordSelected);
    QCOMPARE(main.markedRows(), QList<int>());
    QVERIFY(main.answers.allSeen());
}

void frmMain_Pick_test::aPickedEntryStaysCurrentWhileThePageScrolls()
{
    MainWindow main;
    main.fill(60);
    main.clickCell(3, 1);
    const auto scroll = [&main](int value, int top, const QList<int> &marked) {
        main.bar().setValue(value);
        comparePage(main, top);
        QCOMPARE(main.markedRows(), marked);
        QCOMPARE(gVocabList().CurrentWord(), 3);
        QCOMPARE(main.text("txtWord"), QStringLiteral("word 3"));
    };
    scroll(2, 2, {2});
    scroll(3, 3, {1});
    scroll(4, 4, {});
    scroll(61, 60, {});
    scroll(0, 1, {3});
    scroll(1, 1, {3});
}

void frmMain_Pick_test::whatIsTypedStaysWhileThePageScrolls()
{
    MainWindow main;
    main.fill(60);
    main.clickCell(3, 1);
    main.typeEntry(QStringLiteral("typed"), QStringLiteral("so far"), QStringLiteral("Yes."));
    main.bar().setValue(30);
    main.bar().setValue(1);
    QCOMPARE(main.text("txtWord"), QStringLiteral("typed"));
    QCOMPARE(main.text("txtDefinition"), QStringLiteral("so far"));
    QCOMPARE(main.text("txtSentence"), QStringLiteral("Yes."));
    QCOMPARE(main.look(), EditorModes::editing());
    QCOMPARE(main.row(3), EditorModes::filledRow(3));
}

void frmMain_Pick_test::anUpdateAfterScrollingChangesThePickedEntry()
{
    MainWindow main;
    main.fill(60);
    main.clickCell(3, 1);
    main.bar().setValue(30);
    main.type("txtWord", QStringLiteral("cat"));
    main.click("cmdAdd");
    comparePage(main, 30);
    main.bar().setValue(1);
    QCOMPARE(main.row(3).mid(0, 2), (QStringList{QStringLiteral("3"), QStringLiteral("cat")}));
    QCOMPARE(main.row(4), EditorModes::filledRow(4));
}

void frmMain_Pick_test::anAbortedEntryIsNoLongerKept()
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

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Pick_test>(argc, argv);
}

#include "frmMain_Pick_test.moc"
