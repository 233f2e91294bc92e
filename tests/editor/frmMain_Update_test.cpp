// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

#include <QPushButton>
#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_Update_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updateTrimsAndOverwritesTheEntry()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.typeEntry(u"  cat  "_s, u" animal "_s, u" The cat. "_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 3);
        const QStringList texts{u"cat"_s, u"animal"_s, u"The cat."_s};
        QCOMPARE(openEntries().at(1), texts);
        QCOMPARE(main.row(2), QStringList{u"2"_s} + texts);
        QVERIFY(gChanged);
        QVERIFY(main.action("mnuSave").isEnabled());
    }

    void updateLeavesTheEditorIdle()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 1);
        main.click("cmdAdd");
        QCOMPARE(main.look(), EditorModes::idle());
        QVERIFY(!gWordSelected);
        QVERIFY(!gNewWord);
        QCOMPARE(main.control<QPushButton>("cmdAdd").text(), u"&Add"_s);
        QVERIFY(!main.control<QPushButton>("cmdAdd").isEnabled());
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());
    }

    void updateKeepsThePage()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(10);
        main.clickCell(3, 1);
        main.type("txtDefinition", u"changed"_s);
        main.click("cmdAdd");
        QCOMPARE(main.bar().value(), 10);
        QCOMPARE(main.row(1), EditorModes::filledRow(10));
        QCOMPARE(main.row(3), (QStringList{u"12"_s, u"word 12"_s, u"changed"_s, u"sentence 12"_s}));
        QCOMPARE(main.row(24), EditorModes::filledRow(33));
    }

    void updateWithoutAWordChangesNothing()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(2, 2);
        main.type("txtWord", {});
        main.control<QWidget>("txtSentence").setFocus();
        main.click("cmdAdd");
        QCOMPARE(openEntries().at(1).constFirst(), u"word 2"_s);
        QVERIFY(!gChanged);
        QVERIFY(gWordSelected);
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
        QCOMPARE(main.look(), EditorModes::editing());
    }

    void updateAsksNothingAboutDuplicates()
    {
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.clickCell(2, 1);
        main.type("txtWord", u"cat"_s);
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(openEntries().at(1).constFirst(), u"cat"_s);
    }

    void updateIsPossibleAtMaxWords()
    {
        MainWindow main;
        main.fill(cVocabList::MaxWords);
        main.clickCell(1, 1);
        main.type("txtWord", u"changed"_s);
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(openEntries().at(0).constFirst(), u"changed"_s);
    }

    void abortLeavesTheEditorIdle_data()
    {
        QTest::addColumn<QString>("mode");
        for (const char *mode : {"new word", "editing", "found", "searching"})
            QTest::newRow(mode) << QString::fromLatin1(mode);
    }

    void abortLeavesTheEditorIdle()
    {
        QFETCH(QString, mode);
        MainWindow main;
        main.fill(3);
        if (mode == u"new word"_s) {
            main.click("cmdNewWord");
            main.typeEntry(u"cat"_s, u"animal"_s, u"Cat."_s);
        } else if (mode == u"editing"_s) {
            main.clickCell(2, 1);
        } else {
            main.click("cmdSearch");
            if (mode == u"found"_s) {
                main.type("txtWord", u"word 2"_s);
                main.click("cmdSearch");
                QCOMPARE(main.text("txtDefinition"), u"definition 2"_s);
            }
        }
        main.click("cmdAbort");
        QCOMPARE(main.look(), EditorModes::idle());
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());
        QCOMPARE(gVocabList().NumWords(), 3);
        QVERIFY(!gChanged);
    }

    void abortLeavesGNewWordAndGWordSelected()
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

    void abortLeavesTheCurrentRowWhereItIs()
    {
        MainWindow main;
        main.fill(5);
        for (const int row : {4, 1}) {
            main.clickCell(row, 2);
            QCOMPARE(main.grid().Row(), row);
            Controls::press(Qt::Key_Escape);
            QCOMPARE(main.grid().Row(), row);
            Controls::press(Qt::Key_Space);
            QCOMPARE(main.text("txtWord"), u"word %1"_s.arg(row));
            QCOMPARE(main.look(), EditorModes::editing());
        }
    }

    void aFailingHandlerIsReportedAndTheProgramGoesOn()
    {
        MainWindow main;
        main.fill(3);
        main.clickCell(3, 1);
        gVocabList().ClearList(); // as another window could
        main.type("txtWord", u"cat"_s);
        main.answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s,
                                  QMessageBox::Ok);
        main.click("cmdAdd");
        QVERIFY(main.answers.allSeen());
        // The handler has stopped at the error.
        QVERIFY(!gChanged);
        QVERIFY(gWordSelected);
        QCOMPARE(gVocabList().NumWords(), 0);
        QCOMPARE(main.text("txtWord"), u"cat"_s);
        QVERIFY(main.window().isVisible());
        main.click("cmdAbort");
        main.click("cmdNewWord");
        main.typeEntry(u"cat"_s);
        main.click("cmdAdd");
        QCOMPARE(openEntries().at(0).constFirst(), u"cat"_s);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Update_test>(argc, argv);
}

#include "frmMain_Update_test.moc"
