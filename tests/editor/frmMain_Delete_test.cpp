// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QScrollBar>

using namespace Module1;

namespace {

const QString SelectFirst =
    QStringLiteral("Please select a word to delete or execute a search first.");

QString question(const QString &word)
{
    return QStringLiteral("Are you sure you want to delete '") + word + QStringLiteral("' ?");
}

// The words of the list in their order; the position stays.
QStringList words()
{
    cVocabList &list = gVocabList();
    const Integer current = list.CurrentWord();
    QStringList words;
    for (Integer item = 1; item <= list.NumWords(); ++item) {
        list.CurrentWord(item);
        words += list.Word();
    }
    list.CurrentWord(current);
    return words;
}

} // namespace

class frmMain_Delete_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void yesDeletesThePickedEntry();
    void theQuestionHasYesAndNo();
    void noKeepsEverything();
    void theWordMustStandInTheBoxExactly_data();
    void theWordMustStandInTheBoxExactly();
    void theOtherBoxesDoNotMatter();
    void thePageIsFilledFromItsFirstItem();
    void anEntryScrolledOutOfSightIsDeletedAllTheSame();
    void deletingTheOnlyEntryLeavesAnEmptyPage();
    void deletingTheEntryOfTheLastPageShowsTheOneBefore();
    void theEntryBeforeBecomesCurrent_data();
    void theEntryBeforeBecomesCurrent();
    void aWordFoundBySearchCanBeDeleted();
    void aSecondDeleteNeedsANewChoice();
    void theMenuItemSaysThatTheListIsEmpty();
    void theMenuItemDeletesLikeTheButton();
    void withNothingPickedTheMenuItemAsksForAChoice_data();
    void withNothingPickedTheMenuItemAsksForAChoice();
    void outsideTheListNothingIsDeleted_data();
    void outsideTheListNothingIsDeleted();
    void theEntryInTheBoxesIsMeantWhereverThePositionWent_data()
    {
        outsideTheListNothingIsDeleted_data();
    }
    void theEntryInTheBoxesIsMeantWhereverThePositionWent();
};

void frmMain_Delete_test::yesDeletesThePickedEntry()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog"), QStringLiteral("cow")});
    main.clickCell(2, 1);
    main.answers.expectMsgBox(question(QStringLiteral("dog")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(words(), (QStringList{QStringLiteral("cat"), QStringLiteral("cow")}));
    QVERIFY(gChanged);
    QVERIFY(main.action("mnuSave").isEnabled());
    QCOMPARE(main.look(), EditorModes::idle());
    QVERIFY(!gNewWord);
    QVERIFY(!gWordSelected);
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
        QCOMPARE(main.text(box), QString());

    QCOMPARE(main.row(2),
             (QStringList{QStringLiteral("2"), QStringLiteral("cow"),
                          QStringLiteral("definition of cow"), QStringLiteral("sentence of cow")}));
    for (int row = 3; row <= 23; ++row)
        QCOMPARE(main.row(row),
                 (QStringList{QString::number(row), QString(), QString(), QString()}));
    QCOMPARE(main.markedRows(), QList<int>());
    QCOMPARE(main.bar().maximum(), 3);
}

void frmMain_Delete_test::theQuestionHasYesAndNo()
{
    MainWindow main;
    main.fill({QStringLiteral("big cat's")});
    main.clickCell(1, 1);
    main.answers.expectMsgBox(
        question(QStringLiteral("big cat's")), QMessageBox::No, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        });
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
}

void frmMain_Delete_test::noKeepsEverything()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    main.answers.expectMsgBox(question(QStringLiteral("word 2")), QMessageBox::No);
    main.click("cmdDelete");
    main.answers.escapeMsgBox(question(QStringLiteral("word 2")));
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 3);
    QVERIFY(!gChanged);
    QVERIFY(!main.action("mnuSave").isEnabled());
    QCOMPARE(main.look(), EditorModes::editing());
    QCOMPARE(main.text("txtWord"), QStringLiteral("word 2"));
    QCOMPARE(main.markedRows(), QList<int>{2});
}

void frmMain_Delete_test::theWordMustStandInTheBoxExactly_data()
{
    QTest::addColumn<QString>("typed");
    QTest::newRow("another word") << QStringLiteral("dog");
    QTest::newRow("another case") << QStringLiteral("Cat");
    QTest::newRow("a blank more") << QStringLiteral("cat ");
    QTest::newRow("a letter less") << QStringLiteral("ca");
    QTest::newRow("nothing") << QString();
}

void frmMain_Delete_test::theWordMustStandInTheBoxExactly()
{
    QFETCH(QString, typed);
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.clickCell(1, 1);
    main.type("txtWord", typed);
    main.answers.expectMsgBox(SelectFirst, QMessageBox::Ok, [](QMessageBox &box) {
        QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
    });
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 2);
    QVERIFY(!gChanged);
    QCOMPARE(main.text("txtWord"), typed);
}

void frmMain_Delete_test::theOtherBoxesDoNotMatter()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.clickCell(1, 1);
    main.type("txtDefinition", QStringLiteral("something else"));
    main.answers.expectMsgBox(question(QStringLiteral("cat")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(words(), QStringList{QStringLiteral("dog")});
}

void frmMain_Delete_test::thePageIsFilledFromItsFirstItem()
{
    MainWindow main;
    main.fill(60);
    main.bar().setValue(10);
    main.clickCell(3, 1);
    main.answers.expectMsgBox(question(QStringLiteral("word 12")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.row(2), EditorModes::filledRow(11));
    QCOMPARE(main.row(3),
             (QStringList{QStringLiteral("12"), QStringLiteral("word 13"),
                          QStringLiteral("definition 13"), QStringLiteral("sentence 13")}));
    QCOMPARE(main.row(24).mid(0, 2),
             (QStringList{QStringLiteral("33"), QStringLiteral("word 34")}));
    QCOMPARE(main.bar().value(), 10);
    QCOMPARE(main.bar().maximum(), 60);
}

void frmMain_Delete_test::anEntryScrolledOutOfSightIsDeletedAllTheSame()
{
    MainWindow main;
    main.fill(60);
    main.clickCell(3, 1);
    main.bar().setValue(30);
    main.answers.expectMsgBox(question(QStringLiteral("word 3")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 59);
    QCOMPARE(words().mid(0, 3), (QStringList{QStringLiteral("word 1"), QStringLiteral("word 2"),
                                             QStringLiteral("word 4")}));
    QCOMPARE(main.row(1).mid(0, 2), (QStringList{QStringLiteral("30"), QStringLiteral("word 31")}));
}

void frmMain_Delete_test::deletingTheOnlyEntryLeavesAnEmptyPage()
{
    MainWindow main;
    main.fill(1);
    main.clickCell(1, 1);
    main.answers.expectMsgBox(question(QStringLiteral("word 1")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 0);
    for (int row = 1; row <= 23; ++row)
        QCOMPARE(main.row(row),
                 (QStringList{QString::number(row), QString(), QString(), QString()}));
    QCOMPARE(main.row(0).at(1), QStringLiteral("Vocabulary Word"));
    QCOMPARE(main.markedRows(), QList<int>());
    QCOMPARE(gHighlightRow, 0);
    QCOMPARE(main.bar().maximum(), 1);
    QVERIFY(gChanged);
    QCOMPARE(main.look(), EditorModes::idle());
}

void frmMain_Delete_test::deletingTheEntryOfTheLastPageShowsTheOneBefore()
{
    // The page starts at the entry that goes, and would be empty.
    MainWindow main;
    main.fill(40);
    main.bar().setValue(40);
    main.clickCell(1, 1);
    main.answers.expectMsgBox(question(QStringLiteral("word 40")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 1);
    QCOMPARE(gVocabList().NumWords(), 39);
    QCOMPARE(main.row(1), EditorModes::filledRow(39));
    for (int row = 2; row <= 23; ++row)
        QCOMPARE(main.row(row),
                 (QStringList{QString::number(38 + row), QString(), QString(), QString()}));
    QCOMPARE(main.bar().value(), 39);
    QCOMPARE(main.markedRows(), QList<int>());
}

void frmMain_Delete_test::theEntryBeforeBecomesCurrent_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("left");
    QTest::newRow("first") << 1 << QStringList{QStringLiteral("dog"), QStringLiteral("cow")};
    QTest::newRow("middle") << 2 << QStringList{QStringLiteral("cat"), QStringLiteral("cow")};
    QTest::newRow("last") << 3 << QStringList{QStringLiteral("cat"), QStringLiteral("dog")};
}

void frmMain_Delete_test::theEntryBeforeBecomesCurrent()
{
    QFETCH(int, row);
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog"), QStringLiteral("cow")});
    main.clickCell(row, 1);
    main.answers.expectMsgBox(question(main.row(row).at(1)), QMessageBox::Yes);
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QTEST(words(), "left");
    // The page fill after it leaves the position behind the page.
    QCOMPARE(gVocabList().CurrentWord(), 3);
}

void frmMain_Delete_test::aWordFoundBySearchCanBeDeleted()
{
    MainWindow main;
    main.fill(40);
    main.click("cmdSearch");
    main.type("txtWord", QStringLiteral("word 30"));
    main.click("cmdSearch");
    main.bar().setValue(1);
    main.answers.expectMsgBox(question(QStringLiteral("word 30")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 39);
    QVERIFY(!words().contains(QStringLiteral("word 30")));
    QCOMPARE(main.look(), EditorModes::idle());
}

void frmMain_Delete_test::aSecondDeleteNeedsANewChoice()
{
    MainWindow main;
    main.fill(5);
    main.clickCell(2, 1);
    main.answers.expectMsgBox(question(QStringLiteral("word 2")), QMessageBox::Yes);
    main.choose("mnuDeleteWord");
    main.answers.expectMsgBox(SelectFirst);
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 4);
}

void frmMain_Delete_test::theMenuItemSaysThatTheListIsEmpty()
{
    MainWindow main;
    main.answers.expectMsgBox(QStringLiteral("Cannot delete: Your current wordlist is empty."),
                              QMessageBox::Ok, [](QMessageBox &box) {
                                  QCOMPARE(box.standardButtons(),
                                           QMessageBox::StandardButtons(QMessageBox::Ok));
                              });
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QVERIFY(!gChanged);
}

void frmMain_Delete_test::theMenuItemDeletesLikeTheButton()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.clickCell(1, 1);
    main.answers.expectMsgBox(question(QStringLiteral("cat")), QMessageBox::Yes);
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(words(), QStringList{QStringLiteral("dog")});
    QVERIFY(gChanged);
    QCOMPARE(main.look(), EditorModes::idle());
}

void frmMain_Delete_test::withNothingPickedTheMenuItemAsksForAChoice_data()
{
    QTest::addColumn<int>("entries");
    // After a page fill the position is behind the page: outside the list, or inside it.
    QTest::newRow("short list") << 3;
    QTest::newRow("long list") << 40;
}

void frmMain_Delete_test::withNothingPickedTheMenuItemAsksForAChoice()
{
    QFETCH(int, entries);
    MainWindow main;
    main.fill(entries);
    main.answers.expectMsgBox(SelectFirst);
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), entries);
}

void frmMain_Delete_test::outsideTheListNothingIsDeleted_data()
{
    QTest::addColumn<int>("position");
    for (const int position : {-1, 0, 4, 5, 32767})
        QTest::addRow("%d", position) << position;
}

void frmMain_Delete_test::outsideTheListNothingIsDeleted()
{
    QFETCH(int, position);
    MainWindow main;
    main.fill(3);
    gVocabList().CurrentWord(position);
    main.answers.expectMsgBox(SelectFirst);
    main.choose("mnuDeleteWord");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(gVocabList().NumWords(), 3);
    QVERIFY(!gChanged);
}

void frmMain_Delete_test::theEntryInTheBoxesIsMeantWhereverThePositionWent()
{
    QFETCH(int, position);
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    gVocabList().CurrentWord(position); // as another window could leave it
    main.answers.expectMsgBox(question(QStringLiteral("word 2")), QMessageBox::Yes);
    main.click("cmdDelete");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(words(), (QStringList{QStringLiteral("word 1"), QStringLiteral("word 3")}));
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Delete_test>(argc, argv);
}

#include "frmMain_Delete_test.moc"
