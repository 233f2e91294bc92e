// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/EditorModes.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QPushButton>
#include <QScrollBar>

using namespace Module1;

namespace {

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

class frmMain_Update_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updateTrimsAndOverwritesTheEntry();
    void updateLeavesTheEditorIdle();
    void updateKeepsThePage();
    void updateWithoutAWordChangesNothing();
    void updateAsksNothingAboutDuplicates();
    void updateIsPossibleAtMaxWords();
    void abortLeavesTheEditorIdle_data();
    void abortLeavesTheEditorIdle();
    void abortLeavesTheModesToTheNextCommand();
    void abortLeavesTheCurrentRowWhereItIs();
    void aFailingHandlerIsReportedAndTheProgramGoesOn();
};

void frmMain_Update_test::updateTrimsAndOverwritesTheEntry()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    main.typeEntry(QStringLiteral("  cat  "), QStringLiteral(" animal "),
                   QStringLiteral(" The cat. "));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 3);
    const QStringList texts{QStringLiteral("cat"), QStringLiteral("animal"),
                            QStringLiteral("The cat.")};
    QCOMPARE(entry(2), texts);
    QCOMPARE(main.row(2), QStringList{QStringLiteral("2")} + texts);
    QVERIFY(gChanged);
    QVERIFY(main.action("mnuSave").isEnabled());
}

void frmMain_Update_test::updateLeavesTheEditorIdle()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 1);
    main.click("cmdAdd");
    QCOMPARE(main.look(), EditorModes::idle());
    QVERIFY(!gWordSelected);
    QVERIFY(!gNewWord);
    QCOMPARE(main.control<QPushButton>("cmdAdd").text(), QStringLiteral("&Add"));
    QVERIFY(!main.control<QPushButton>("cmdAdd").isEnabled());
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
        QCOMPARE(main.text(box), QString());
}

void frmMain_Update_test::updateKeepsThePage()
{
    MainWindow main;
    main.fill(60);
    main.bar().setValue(10);
    main.clickCell(3, 1);
    main.type("txtDefinition", QStringLiteral("changed"));
    main.click("cmdAdd");
    QCOMPARE(main.bar().value(), 10);
    QCOMPARE(main.row(1), EditorModes::filledRow(10));
    QCOMPARE(main.row(3), (QStringList{QStringLiteral("12"), QStringLiteral("word 12"),
                                       QStringLiteral("changed"), QStringLiteral("sentence 12")}));
    QCOMPARE(main.row(24), EditorModes::filledRow(33));
}

void frmMain_Update_test::updateWithoutAWordChangesNothing()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(2, 2);
    main.type("txtWord", {});
    main.control<QWidget>("txtSentence").setFocus();
    main.click("cmdAdd");
    QCOMPARE(entry(2).constFirst(), QStringLiteral("word 2"));
    QVERIFY(!gChanged);
    QVERIFY(gWordSelected);
    QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    QCOMPARE(main.look(), EditorModes::editing());
}

void frmMain_Update_test::updateAsksNothingAboutDuplicates()
{
    MainWindow main;
    main.fill({QStringLiteral("cat"), QStringLiteral("dog")});
    main.clickCell(2, 1);
    main.type("txtWord", QStringLiteral("cat"));
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(entry(2).constFirst(), QStringLiteral("cat"));
}

void frmMain_Update_test::updateIsPossibleAtMaxWords()
{
    MainWindow main;
    main.fill(cVocabList::MaxWords);
    main.clickCell(1, 1);
    main.type("txtWord", QStringLiteral("changed"));
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(entry(1).constFirst(), QStringLiteral("changed"));
}

void frmMain_Update_test::abortLeavesTheEditorIdle_data()
{
    QTest::addColumn<QString>("mode");
    for (const char *mode : {"new word", "editing", "found", "searching"})
        QTest::newRow(mode) << QString::fromLatin1(mode);
}

void frmMain_Update_test::abortLeavesTheEditorIdle()
{
    QFETCH(QString, mode);
    MainWindow main;
    main.fill(3);
    if (mode == QLatin1String("new word")) {
        main.click("cmdNewWord");
        main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("Cat."));
    } else if (mode == QLatin1String("editing")) {
        main.clickCell(2, 1);
    } else {
        main.click("cmdSearch");
        if (mode == QLatin1String("found")) {
            main.type("txtWord", QStringLiteral("word 2"));
            main.click("cmdSearch");
            QCOMPARE(main.text("txtDefinition"), QStringLiteral("definition 2"));
        }
    }
    main.click("cmdAbort");
    QCOMPARE(main.look(), EditorModes::idle());
    for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
        QCOMPARE(main.text(box), QString());
    QCOMPARE(gVocabList().NumWords(), 3);
    QVERIFY(!gChanged);
}

void frmMain_Update_test::abortLeavesTheModesToTheNextCommand()
{
    MainWindow main;
    main.fill(3);
    main.click("cmdNewWord");
    main.click("cmdAbort");
    QVERIFY(gNewWord);
    QVERIFY(!gWordSelected);
    main.clickCell(2, 1);
    main.click("cmdAbort");
    QVERIFY(!gNewWord);
    QVERIFY(gWordSelected);
}

void frmMain_Update_test::abortLeavesTheCurrentRowWhereItIs()
{
    MainWindow main;
    main.fill(5);
    for (const int row : {4, 1}) {
        main.clickCell(row, 2);
        QCOMPARE(main.grid().Row(), row);
        Controls::press(Qt::Key_Escape);
        QCOMPARE(main.grid().Row(), row);
        Controls::press(Qt::Key_Space);
        QCOMPARE(main.text("txtWord"), QStringLiteral("word %1").arg(row));
        QCOMPARE(main.look(), EditorModes::editing());
    }
}

void frmMain_Update_test::aFailingHandlerIsReportedAndTheProgramGoesOn()
{
    MainWindow main;
    main.fill(3);
    main.clickCell(3, 1);
    gVocabList().ClearList(); // as another window could
    main.type("txtWord", QStringLiteral("cat"));
    main.answers.expectMsgBox(QStringLiteral("Run-time error '9':\n\nSubscript out of range"),
                              QMessageBox::Ok);
    main.click("cmdAdd");
    QVERIFY(main.answers.allSeen());
    // The handler is abandoned where it was.
    QVERIFY(!gChanged);
    QVERIFY(gWordSelected);
    QCOMPARE(gVocabList().NumWords(), 0);
    QCOMPARE(main.text("txtWord"), QStringLiteral("cat"));
    QVERIFY(main.window().isVisible());
    main.click("cmdAbort");
    main.click("cmdNewWord");
    main.typeEntry(QStringLiteral("cat"));
    main.click("cmdAdd");
    QCOMPARE(entry(1).constFirst(), QStringLiteral("cat"));
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Update_test>(argc, argv);
}

#include "frmMain_Update_test.moc"
