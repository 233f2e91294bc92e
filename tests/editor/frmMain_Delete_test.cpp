// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString SelectFirst = u"Please select a word to delete or execute a search first."_s;

QString question(const QString &word)
{
    return u"Are you sure you want to delete '"_s + word + u"' ?"_s;
}

// All words of the list, in their order.
QStringList words()
{
    QStringList words;
    for (const QStringList &entry : openEntries())
        words += entry.constFirst();
    return words;
}

} // namespace

class frmMain_Delete_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void yesDeletesThePickedEntry()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s, u"cow"_s});
        main.clickCell(2, 1);
        main.answers.expectMsgBox(question(u"dog"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(words(), (QStringList{u"cat"_s, u"cow"_s}));
        QVERIFY(gChanged);
        QVERIFY(main.action("mnuSave").isEnabled());
        QCOMPARE(main.look(), EditorModes::idle());
        QVERIFY(!gNewWord);
        QVERIFY(!gWordSelected);
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());

        QCOMPARE(main.row(2),
                 (QStringList{u"2"_s, u"cow"_s, u"definition of cow"_s, u"sentence of cow"_s}));
        for (int row = 3; row <= 23; ++row)
            QCOMPARE(main.row(row), EditorModes::numberedRow(row));
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(main.bar().maximum(), 3);
    }

    void theQuestionHasYesAndNo()
    {
        MainWindow main;
        main.fill({u"big cat's"_s});
        main.clickCell(1, 1);
        main.answers.expectMsgBox(question(u"big cat's"_s), QMessageBox::No, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        });
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
    }

    void noKeepsEverything()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.answers.expectMsgBox(question(u"word 2"_s), QMessageBox::No);
        main.click("cmdDelete");
        main.answers.escapeMsgBox(question(u"word 2"_s));
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 3);
        QVERIFY(!gChanged);
        QVERIFY(!main.action("mnuSave").isEnabled());
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word 2"_s);
        QCOMPARE(main.markedRows(), QList<int>{2});
    }

    void theWordBoxMustHoldTheWordExactly_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::newRow("another word") << u"dog"_s;
        QTest::newRow("another case") << u"Cat"_s;
        QTest::newRow("a blank more") << u"cat "_s;
        QTest::newRow("a letter less") << u"ca"_s;
        QTest::newRow("nothing") << QString();
    }

    void theWordBoxMustHoldTheWordExactly()
    {
        QFETCH(QString, typed);
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
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

    void theOtherBoxesDoNotMatter()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.clickCell(1, 1);
        main.type("txtDefinition", u"something else"_s);
        main.answers.expectMsgBox(question(u"cat"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(words(), QStringList{u"dog"_s});
    }

    void thePageIsFilledFromItsFirstItem()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(10);
        main.clickCell(3, 1);
        main.answers.expectMsgBox(question(u"word 12"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.row(2), EditorModes::filledRow(11));
        QCOMPARE(main.row(3),
                 (QStringList{u"12"_s, u"word 13"_s, u"definition 13"_s, u"sentence 13"_s}));
        QCOMPARE(main.row(24).mid(0, 2), (QStringList{u"33"_s, u"word 34"_s}));
        QCOMPARE(main.bar().value(), 10);
        QCOMPARE(main.bar().maximum(), 60);
    }

    void anEntryScrolledOutOfSightIsDeletedToo()
    {
        MainWindow main;
        main.fill(60);
        main.clickCell(3, 1);
        main.bar().setValue(30);
        main.answers.expectMsgBox(question(u"word 3"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 59);
        QCOMPARE(words().mid(0, 3), (QStringList{u"word 1"_s, u"word 2"_s, u"word 4"_s}));
        QCOMPARE(main.row(1).mid(0, 2), (QStringList{u"30"_s, u"word 31"_s}));
    }

    void deletingTheOnlyEntryLeavesAnEmptyPage()
    {
        MainWindow main;
        main.fill(1);
        main.clickCell(1, 1);
        main.answers.expectMsgBox(question(u"word 1"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 0);
        for (int row = 1; row <= 23; ++row)
            QCOMPARE(main.row(row), EditorModes::numberedRow(row));
        QCOMPARE(main.row(0).at(1), u"Vocabulary Word"_s);
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(gHighlightRow, 0);
        QCOMPARE(main.bar().maximum(), 1);
        QVERIFY(gChanged);
        QCOMPARE(main.look(), EditorModes::idle());
    }

    void deletingTheEntryOfTheLastPageShowsTheOneBefore()
    {
        // The page begins with the deleted entry and would be empty.
        MainWindow main;
        main.fill(40);
        main.bar().setValue(40);
        main.clickCell(1, 1);
        main.answers.expectMsgBox(question(u"word 40"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 1);
        QCOMPARE(gVocabList().NumWords(), 39);
        QCOMPARE(main.row(1), EditorModes::filledRow(39));
        for (int row = 2; row <= 23; ++row)
            QCOMPARE(main.row(row), EditorModes::numberedRow(38 + row));
        QCOMPARE(main.bar().value(), 39);
        QCOMPARE(main.markedRows(), QList<int>());
    }

    void theEntryBeforeBecomesCurrent_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QStringList>("left");
        QTest::newRow("first") << 1 << QStringList{u"dog"_s, u"cow"_s};
        QTest::newRow("middle") << 2 << QStringList{u"cat"_s, u"cow"_s};
        QTest::newRow("last") << 3 << QStringList{u"cat"_s, u"dog"_s};
    }

    void theEntryBeforeBecomesCurrent()
    {
        QFETCH(int, row);
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s, u"cow"_s});
        main.clickCell(row, 1);
        main.answers.expectMsgBox(question(main.row(row).at(1)), QMessageBox::Yes);
        main.choose("mnuDeleteWord");
        QVERIFY(main.answers.allSeen());
        QTEST(words(), "left");
        // After filling the page, the current position is the one after its last entry.
        QCOMPARE(gVocabList().CurrentWord(), 3);
    }

    void aWordFoundBySearchCanBeDeleted()
    {
        MainWindow main;
        main.fill(40);
        main.click("cmdSearch");
        main.type("txtWord", u"word 30"_s);
        main.click("cmdSearch");
        main.bar().setValue(1);
        main.answers.expectMsgBox(question(u"word 30"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 39);
        QVERIFY(!words().contains(u"word 30"_s));
        QCOMPARE(main.look(), EditorModes::idle());
    }

    void aSecondDeleteNeedsANewChoice()
    {
        MainWindow main;
        main.fill(5);
        main.clickCell(2, 1);
        main.answers.expectMsgBox(question(u"word 2"_s), QMessageBox::Yes);
        main.choose("mnuDeleteWord");
        main.answers.expectMsgBox(SelectFirst);
        main.choose("mnuDeleteWord");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), 4);
    }

    void theMenuItemSaysThatTheListIsEmpty()
    {
        MainWindow main;
        main.answers.expectMsgBox(u"Cannot delete: Your current wordlist is empty."_s,
                                  QMessageBox::Ok, [](QMessageBox &box) {
                                      QCOMPARE(box.standardButtons(),
                                               QMessageBox::StandardButtons(QMessageBox::Ok));
                                  });
        main.choose("mnuDeleteWord");
        QVERIFY(main.answers.allSeen());
        QVERIFY(!gChanged);
    }

    void theMenuItemDeletesLikeTheButton()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.clickCell(1, 1);
        main.answers.expectMsgBox(question(u"cat"_s), QMessageBox::Yes);
        main.choose("mnuDeleteWord");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(words(), QStringList{u"dog"_s});
        QVERIFY(gChanged);
        QCOMPARE(main.look(), EditorModes::idle());
    }

    void withNothingPickedTheMenuItemAsksForAChoice_data()
    {
        QTest::addColumn<int>("entries");
        // After filling a page, the current position is the one after its last row: outside a short
        // list, inside a long one.
        QTest::newRow("short list") << 3;
        QTest::newRow("long list") << 40;
    }

    void withNothingPickedTheMenuItemAsksForAChoice()
    {
        QFETCH(int, entries);
        MainWindow main;
        main.fill(entries);
        main.answers.expectMsgBox(SelectFirst);
        main.choose("mnuDeleteWord");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(gVocabList().NumWords(), entries);
    }

    void outsideTheListNothingIsDeleted_data()
    {
        QTest::addColumn<int>("position");
        for (const int position : {-1, 0, 4, 5, 32767})
            QTest::addRow("%d", position) << position;
    }

    void outsideTheListNothingIsDeleted()
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

    void theEntryInTheBoxesIsDeletedWhateverTheCurrentPosition_data()
    {
        outsideTheListNothingIsDeleted_data();
    }

    void theEntryInTheBoxesIsDeletedWhateverTheCurrentPosition()
    {
        QFETCH(int, position);
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        gVocabList().CurrentWord(position); // as another window could leave it
        main.answers.expectMsgBox(question(u"word 2"_s), QMessageBox::Yes);
        main.click("cmdDelete");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(words(), (QStringList{u"word 1"_s, u"word 3"_s}));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Delete_test>(argc, argv);
}

#include "frmMain_Delete_test.moc"
