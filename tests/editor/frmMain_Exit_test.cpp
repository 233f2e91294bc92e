// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ListFile.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/FormTest.h"
#include "support/MainWindow.h"

#include <QFile>
#include <QFileDialog>
#include <QFileInfo>

using namespace Module1;

namespace {

const QString SaveChanges =
    QStringLiteral("Your changes have not been saved.  Do you want to save them?");

void leave(MainWindow &main, const QString &way)
{
    if (way == QLatin1String("File > Exit"))
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
    main.typeEntry(QStringLiteral("cat"), QStringLiteral("animal"), QStringLiteral("The cat."));
    main.click("cmdAdd");
}

QStringList wordsIn(const QString &path)
{
    QFile file(path);
    QStringList words;
    if (!file.open(QIODevice::ReadOnly))
        return words;
    const ListFile::Content content = ListFile::decode(file.readAll(), cVocabList::MaxWords);
    for (const VocabRecord &record : content.records)
        words += QString(record.Word.constData(), record.Word.size());
    return words;
}

// The path of a file in a folder that does not exist.
QString noSuchPlace(MainWindow &main)
{
    return main.path(QStringLiteral("nowhere/list.lwx"));
}

void expectPathNotFound(MainWindow &main)
{
    main.answers.expectAnyMsgBox(QMessageBox::Ok, [path = noSuchPlace(main)](QMessageBox &box) {
        QVERIFY2(box.text().startsWith(QStringLiteral("Run-time error '76':\n\nPath not found\n")),
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
    void withoutChangesNothingIsAsked();
    void yesSavesUnderTheListsName_data() { addWays(); }
    void yesSavesUnderTheListsName();
    void yesWithoutANameOpensSaveAs_data() { addWays(); }
    void yesWithoutANameOpensSaveAs();
    void aCancelledSaveAsEndsTheProgram_data() { addWays(); }
    void aCancelledSaveAsEndsTheProgram();
    void noSavesNothing_data() { addWays(); }
    void noSavesNothing();
    void theQuestionHasYesAndNoOnly();
    void aSaveThatFailsKeepsTheProgramAndTheWords_data() { addWays(); }
    void aSaveThatFailsKeepsTheProgramAndTheWords();
    void aSaveAsThatFailsKeepsTheProgramAndTheWords_data() { addWays(); }
    void aSaveAsThatFailsKeepsTheProgramAndTheWords();
    void afterAFailedSaveTheQuestionComesAgain();
    void anEmptiedListWritesNothingAndEnds();
    void reallySavedChangesAreNotAskedAbout();
};

void frmMain_Exit_test::withoutChangesNothingIsAsked()
{
    QFETCH(QString, way);
    MainWindow main;
    main.fill(3);
    leave(main, way);
    QVERIFY(main.answers.allSeen());
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::yesSavesUnderTheListsName()
{
    QFETCH(QString, way);
    MainWindow main;
    gFileName = main.path(QStringLiteral("list.lwx"));
    addCat(main);
    main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
    leave(main, way);
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 1);
    QCOMPARE(wordsIn(gFileName), QStringList{QStringLiteral("cat")});
    QVERIFY(!gChanged);
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::yesWithoutANameOpensSaveAs()
{
    QFETCH(QString, way);
    MainWindow main;
    addCat(main);
    const QString path = main.path(QStringLiteral("new.lwx"));
    main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
    main.answers.chooseFile(path, [](QFileDialog &dialog) {
        QCOMPARE(dialog.windowTitle(), QStringLiteral("Save File As"));
    });
    leave(main, way);
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 2);
    QCOMPARE(wordsIn(path), QStringList{QStringLiteral("cat")});
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::aCancelledSaveAsEndsTheProgram()
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

void frmMain_Exit_test::noSavesNothing()
{
    QFETCH(QString, way);
    MainWindow main;
    gFileName = main.path(QStringLiteral("list.lwx"));
    addCat(main);
    main.answers.expectMsgBox(SaveChanges, QMessageBox::No);
    leave(main, way);
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 1);
    QVERIFY(!QFileInfo::exists(gFileName));
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::theQuestionHasYesAndNoOnly()
{
    MainWindow main;
    addCat(main);
    main.answers.expectMsgBox(SaveChanges, QMessageBox::No, [&main](QMessageBox &box) {
        QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        QTest::keyClick(box.defaultButton(), Qt::Key_Escape);
        QVERIFY(box.isVisible()); // No would lose the changes
        // The window stands while it is asked.
        QVERIFY(main.window().isVisible());
    });
    main.choose("mnuExit");
    QVERIFY(main.answers.allSeen());
}

void frmMain_Exit_test::aSaveThatFailsKeepsTheProgramAndTheWords()
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
    QCOMPARE(main.row(1).at(1), QStringLiteral("cat"));
}

void frmMain_Exit_test::aSaveAsThatFailsKeepsTheProgramAndTheWords()
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
    QCOMPARE(main.window().windowTitle(), QStringLiteral("LexiBrook- The Tanglewit: (Untitled)"));
}

void frmMain_Exit_test::afterAFailedSaveTheQuestionComesAgain()
{
    MainWindow main;
    gFileName = noSuchPlace(main);
    addCat(main);
    main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
    expectPathNotFound(main);
    main.choose("mnuExit");
    QVERIFY(main.answers.allSeen());
    // The list is as it was and can be worked on.
    main.typeEntry(QStringLiteral("dog"));
    main.click("cmdAdd");
    QCOMPARE(gVocabList().NumWords(), 2);
    main.answers.expectMsgBox(SaveChanges, QMessageBox::No);
    main.choose("mnuExit");
    QVERIFY(main.answers.allSeen());
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::anEmptiedListWritesNothingAndEnds()
{
    MainWindow main;
    gFileName = main.path(QStringLiteral("list.lwx"));
    main.fill(1);
    main.clickCell(1, 1);
    main.answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'word 1' ?"),
                              QMessageBox::Yes);
    main.click("cmdDelete");
    main.answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
    main.choose("mnuExit");
    QVERIFY(main.answers.allSeen());
    QVERIFY(!QFileInfo::exists(gFileName));
    QVERIFY(!main.window().isVisible());
}

void frmMain_Exit_test::reallySavedChangesAreNotAskedAbout()
{
    MainWindow main;
    gFileName = main.path(QStringLiteral("list.lwx"));
    addCat(main);
    main.answers.expectMsgBox(gFileName + QStringLiteral(" has been saved."));
    main.choose("mnuSave");
    main.choose("mnuExit");
    QVERIFY(main.answers.allSeen());
    QCOMPARE(main.answers.seen(), 1);
    QVERIFY(!main.window().isVisible());
}

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Exit_test>(argc, argv);
}

#include "frmMain_Exit_test.moc"
