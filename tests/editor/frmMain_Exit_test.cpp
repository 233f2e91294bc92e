// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ListFile.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <QFileDialog>
#include <QFileInfo>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString SaveChanges = u"Your changes have not been saved.  Do you want to save them?"_s;

void leave(MainWindow &main, const QString &way)
{
    if (way == u"File > Exit"_s)
        main.choose("mnuExit");
    else
        main.window().close();
}

void addWays()
{
    QTest::addColumn<QString>("way");
    for (const char *way : {"File > Exit", "close box"})
        QTest::newRow(way) << QString::fromLatin1(way);
}

void addCat(MainWindow &main)
{
    main.click("cmdNewWord");
    main.typeEntry(u"cat"_s, u"animal"_s, u"The cat."_s);
    main.click("cmdAdd");
}

QStringList wordsIn(const QString &path)
{
    const ListFile::Content content = ListFile::decode(readFile(path), cVocabList::MaxWords);
    QStringList words;
    for (const VocabRecord &record : content.records)
        words += QString(record.Word.constData(), record.Word.size());
    return words;
}

// The path of a file in a folder that does not exist.
QString noSuchPlace(MainWindow &main)
{
    return main.path(u"nowhere/list.lwx"_s);
}

void expectPathNotFound(MainWindow &main)
{
    main.answers.expectAnyMsgBox(QMessageBox::Ok, [path = noSuchPlace(main)](QMessageBox &box) {
        QVERIFY2(box.text().startsWith(u"Run-time error '76':\n\nPath not found\n"_s),
                 qUtf8Printable(box.text()));
        QVERIFY(box.text().contains(path));
    });
}

} // namespace

class frmMain_Exit_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutChangesNothingIsAsked_data() { addWays(); }

    void withoutChangesNothingIsAsked()
    {
        QFETCH(QString, way);
        MainWindow main;
        main.fill(3);
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QVERIFY(!main.window().isVisible());
    }

    void yesSavesUnderTheListsName_data() { addWays(); }

    void yesSavesUnderTheListsName()
    {
        QFETCH(QString, way);
        MainWindow main;
        gFileName = main.path(u"list.lwx"_s);
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 1);
        QCOMPARE(wordsIn(gFileName), QStringList{u"cat"_s});
        QVERIFY(!gChanged);
        QVERIFY(!main.window().isVisible());
    }

    void yesWithoutANameOpensSaveAs_data() { addWays(); }

    void yesWithoutANameOpensSaveAs()
    {
        QFETCH(QString, way);
        MainWindow main;
        addCat(main);
        const QString path = main.path(u"new.lwx"_s);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        main.answers.chooseFile(
            path, [](QFileDialog &dialog) { QCOMPARE(dialog.windowTitle(), u"Save File As"_s); });
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 2);
        QCOMPARE(wordsIn(path), QStringList{u"cat"_s});
        QVERIFY(!main.window().isVisible());
    }

    void aCancelledSaveAsEndsTheProgram_data() { addWays(); }

    void aCancelledSaveAsEndsTheProgram()
    {
        QFETCH(QString, way);
        MainWindow main;
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        main.answers.cancelFileDialog();
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 2);
        QVERIFY(!main.window().isVisible());
    }

    void noSavesNothing_data() { addWays(); }

    void noSavesNothing()
    {
        QFETCH(QString, way);
        MainWindow main;
        gFileName = main.path(u"list.lwx"_s);
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::No);
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 1);
        QVERIFY(!QFileInfo::exists(gFileName));
        QVERIFY(!main.window().isVisible());
    }

    void theQuestionHasYesAndNoOnly()
    {
        MainWindow main;
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::No, [&main](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
            QTest::keyClick(box.defaultButton(), Qt::Key_Escape);
            QVERIFY(box.isVisible()); // No would lose the changes
            // The window is still open during the question.
            QVERIFY(main.window().isVisible());
        });
        main.choose("mnuExit");
        QVERIFY(main.answers.allSeen());
    }

    void aSaveThatFailsKeepsTheProgramAndTheWords_data() { addWays(); }

    void aSaveThatFailsKeepsTheProgramAndTheWords()
    {
        QFETCH(QString, way);
        MainWindow main;
        gFileName = noSuchPlace(main);
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        expectPathNotFound(main);
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QVERIFY(main.window().isVisible());
        QCOMPARE(gVocabList().NumWords(), 1);
        QVERIFY(gChanged);
        QCOMPARE(gFileName, noSuchPlace(main));
        QCOMPARE(main.row(1).at(1), u"cat"_s);
    }

    void aSaveAsThatFailsKeepsTheProgramAndTheWords_data() { addWays(); }

    void aSaveAsThatFailsKeepsTheProgramAndTheWords()
    {
        QFETCH(QString, way);
        MainWindow main;
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        main.answers.chooseFile(noSuchPlace(main));
        expectPathNotFound(main);
        leave(main, way);
        QVERIFY(main.answers.allSeen());
        QVERIFY(main.window().isVisible());
        QCOMPARE(gVocabList().NumWords(), 1);
        QVERIFY(gChanged);
        QCOMPARE(gFileName, QString());
        QCOMPARE(main.window().windowTitle(), u"LexiBrook- The Tanglewit: (Untitled)"_s);
    }

    void afterAFailedSaveTheQuestionComesAgain()
    {
        MainWindow main;
        gFileName = noSuchPlace(main);
        addCat(main);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        expectPathNotFound(main);
        main.choose("mnuExit");
        QVERIFY(main.answers.allSeen());
        // The list is as it was and can be edited.
        main.typeEntry(u"dog"_s);
        main.click("cmdAdd");
        QCOMPARE(gVocabList().NumWords(), 2);
        main.answers.expectMsgBox(SaveChanges, QMessageBox::No);
        main.choose("mnuExit");
        QVERIFY(main.answers.allSeen());
        QVERIFY(!main.window().isVisible());
    }

    void anEmptiedListWritesNothingAndEnds()
    {
        MainWindow main;
        gFileName = main.path(u"list.lwx"_s);
        main.fill(1);
        main.clickCell(1, 1);
        main.answers.expectMsgBox(u"Are you sure you want to delete 'word 1' ?"_s,
                                  QMessageBox::Yes);
        main.click("cmdDelete");
        main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        main.choose("mnuExit");
        QVERIFY(main.answers.allSeen());
        QVERIFY(!QFileInfo::exists(gFileName));
        QVERIFY(!main.window().isVisible());
    }

    void savedChangesAreNotAskedAbout()
    {
        MainWindow main;
        gFileName = main.path(u"list.lwx"_s);
        addCat(main);
        main.answers.expectMsgBox(gFileName + u" has been saved."_s);
        main.choose("mnuSave");
        main.choose("mnuExit");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(main.answers.seen(), 1);
        QVERIFY(!main.window().isVisible());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Exit_test>(argc, argv);
}

#include "frmMain_Exit_test.moc"
