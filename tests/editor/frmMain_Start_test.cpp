// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/ShownPage.h"
#include "platform/Paths.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <QDir>
#include <QFile>
#include <QMenu>
#include <QScrollBar>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_Start_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theListIsEmptiedAndUntitled()
    {
        MainWindow main(MainWindow::Start::Hidden);
        gVocabList().AddVocab(u"cat"_s, {}, {});
        gFileName = u"/somewhere/list.lwx"_s;
        gFileTitle = u"list.lwx"_s;
        gOpenedFile = gFileName;
        main.show();
        QCOMPARE(gVocabList().NumWords(), 0);
        QCOMPARE(gFileName, QString());
        QCOMPARE(gFileTitle, QString());
        QCOMPARE(gOpenedFile, QString());
    }

    void theSharedStateGetsItsValues()
    {
        MainWindow main(MainWindow::Start::Hidden);
        gNewWord = gWordSelected = gChanged = true;
        gLastItem = 99;
        gHighlightRow = 7;
        gUpbeatMusic = gMusicOff = PrintItemNumber = false;
        PrintOrientation = u"Landscape"_s;
        main.show();
        QVERIFY(!gNewWord);
        QVERIFY(!gWordSelected);
        QVERIFY(!gChanged);
        QCOMPARE(gLastItem, 1);
        QCOMPARE(gHighlightRow, 0);
        QCOMPARE(gRowHeight, main.grid().RowHeight(1));
        QVERIFY(gRowHeight > 0);
        QVERIFY(gUpbeatMusic);
        QVERIFY(gMusicOff);
        QVERIFY(PrintItemNumber);
        QCOMPARE(PrintOrientation, u"Portrait"_s);
    }

    void nothingIsLoadedBeforeTheWindowIsShown()
    {
        MainWindow main(MainWindow::Start::Hidden);
        gVocabList().AddVocab(u"cat"_s, {}, {});
        QApplication::processEvents();
        QCOMPARE(gVocabList().NumWords(), 1);
        QVERIFY(!QFile::exists(pathOf(Place::Top10)));
    }

    void hidingAndShowingDoesNotLoadAgain()
    {
        MainWindow main;
        main.fill(2);
        gChanged = true;
        main.window().hide();
        main.show();
        QCOMPARE(gVocabList().NumWords(), 2);
        QVERIFY(gChanged);
    }

    void theCaptionSaysUntitled()
    {
        MainWindow main;
        QCOMPARE(main.window().windowTitle(), u"LexiBrook- The Tanglewit: (Untitled)"_s);
    }

    void theEditorIsIdle()
    {
        MainWindow main;
        QCOMPARE(main.look(), EditorModes::idle());
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());
    }

    void theGridIsAnEmptyNumberedPage()
    {
        MainWindow main;
        MSFlexGrid &grid = main.grid();
        QCOMPARE(grid.rowCount(), 25);
        QCOMPARE(grid.columnCount(), 4);
        compareEmptyPage(main);
        QCOMPARE(main.bar().minimum(), 0);
        QCOMPARE(main.bar().maximum(), 1);
    }

    void eachControlExists_data()
    {
        QTest::addColumn<QByteArray>("type");
        const auto add = [](const char *type, std::initializer_list<const char *> names) {
            for (const char *name : names)
                QTest::newRow(name) << QByteArray(type);
        };
        add("MSFlexGrid", {"MSFlexGrid1"});
        add("QScrollBar", {"VScroll1"});
        add("QGroupBox", {"Frame1", "FrameDef", "FrameSen"});
        add("QLabel", {"Label1"});
        add("QLineEdit", {"txtWord"});
        add("QPlainTextEdit", {"txtDefinition", "txtSentence"});
        add("QPushButton", {"cmdNewWord", "cmdAdd", "cmdAbort", "cmdDelete", "cmdSearch",
                            "cmdPlayScramble", "cmdQuickFlash"});
        add("QMenu", {"mnuFile", "mnuEdit", "mnuGame", "mnuMusic"});
        add("QAction", {"mnuNew",
                        "mnuOpen",
                        "mnuSave",
                        "mnuSaveAs",
                        "mnuCreateTextFile",
                        "mnuPageSetup",
                        "mnuPrinterSetup",
                        "mnuPrint",
                        "mnuPrintWholeList",
                        "mnuExport",
                        "mnuImport",
                        "mnuExit",
                        "sep1",
                        "sep2",
                        "sep",
                        "mnuDeleteWord",
                        "mnuPlayScramble",
                        "mnuQuickFlash",
                        "mnuUpbeat",
                        "mnuSoothing",
                        "mnuMusicOff"});
    }

    void eachControlExists()
    {
        QFETCH(QByteArray, type);
        MainWindow main;
        const auto found =
            main.window().findChildren<QObject *>(QLatin1String(QTest::currentDataTag()));
        QCOMPARE(found.size(), 1);
        QVERIFY(found.constFirst()->inherits(type));
    }

    void menusHoldTheirItemsInOrder_data()
    {
        QTest::addColumn<QList<QByteArray>>("items");
        QTest::newRow("mnuFile") << QList<QByteArray>{
            "mnuNew", "mnuOpen",      "mnuSave",         "mnuSaveAs", "mnuCreateTextFile",
            "sep1",   "mnuPageSetup", "mnuPrinterSetup", "mnuPrint",  "mnuPrintWholeList",
            "sep2",   "mnuExport",    "mnuImport",       "sep",       "mnuExit"};
        QTest::newRow("mnuEdit") << QList<QByteArray>{"mnuDeleteWord"};
        QTest::newRow("mnuGame") << QList<QByteArray>{"mnuPlayScramble", "mnuQuickFlash",
                                                      "mnuMusic"};
        QTest::newRow("mnuMusic") << QList<QByteArray>{"mnuUpbeat", "mnuSoothing", "mnuMusicOff"};
    }

    void menusHoldTheirItemsInOrder()
    {
        QFETCH(QList<QByteArray>, items);
        MainWindow main;
        QList<QByteArray> found;
        const QList<QAction *> actions = main.control<QMenu>(QTest::currentDataTag()).actions();
        for (const QAction *item : actions) {
            const QString name = item->menu() ? item->menu()->objectName() : item->objectName();
            found += name.toLatin1();
            QCOMPARE(item->isSeparator(), name.startsWith(u"sep"_s));
            QVERIFY(item->isSeparator() || !item->text().isEmpty());
        }
        QCOMPARE(found, items);
    }

    void onlySaveIsDisabledAmongTheCommands()
    {
        MainWindow main;
        QVERIFY(!main.action("mnuSave").isEnabled());
        for (const char *item : {"mnuNew", "mnuOpen", "mnuSaveAs", "mnuCreateTextFile", "mnuExport",
                                 "mnuImport", "mnuPageSetup", "mnuPrinterSetup", "mnuPrint",
                                 "mnuPrintWholeList", "mnuExit", "mnuDeleteWord", "mnuPlayScramble",
                                 "mnuQuickFlash", "mnuUpbeat", "mnuSoothing", "mnuMusicOff"})
            QVERIFY2(main.action(item).isEnabled(), item);
    }

    void theTop10TableHasTenUnusedRowsOfToday()
    {
        MainWindow main(MainWindow::Start::Hidden);
        gTop10.fill({QDate(2000, 1, 1), u"Ann"_s, 5});
        const QDate before = QDate::currentDate();
        main.show();
        QCOMPARE(gTop10.size(), std::size_t(10));
        for (const Top10Entry &entry : gTop10) {
            QVERIFY(entry.EntryDate >= before && entry.EntryDate <= QDate::currentDate());
            QCOMPARE(entry.PlayerName, QString());
            QCOMPARE(entry.Points, 0);
        }
    }

    void theTop10FileIsReadOverThem()
    {
        MainWindow main(MainWindow::Start::Hidden);
        // 36526 days after 30 December 1899, "Ann", 12 points.
        writeFile(pathOf(Place::Top10), QByteArray::fromHex("00000000c0d5e140"
                                                            "0300"
                                                            "416e6e"
                                                            "0c00"));
        main.show();
        QCOMPARE(gTop10[0].EntryDate, QDate(2000, 1, 1));
        QCOMPARE(gTop10[0].PlayerName, u"Ann"_s);
        QCOMPARE(gTop10[0].Points, 12);
        QCOMPARE(gTop10[1].PlayerName, QString());
        QCOMPARE(gTop10[1].Points, 0);
    }

    void aTop10FileThatCannotBeReadIsReportedAndLeavesTheDefaults()
    {
        MainWindow main(MainWindow::Start::Hidden);
        QVERIFY(QDir().mkpath(pathOf(Place::Top10)));
        main.answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY(box.text().startsWith(u"Run-time error '75':\n\nPath/File access error\n"_s));
            QVERIFY(box.text().contains(u"top10.bin"_s));
        });
        main.show();
        QVERIFY(main.answers.allSeen());
        for (const Top10Entry &entry : gTop10)
            QCOMPARE(entry.Points, 0);
        QCOMPARE(gTop10[9].EntryDate, QDate::currentDate());
        QVERIFY(main.window().isVisible());
        QCOMPARE(PrintOrientation, u"Portrait"_s);
        main.click("cmdNewWord");
        QVERIFY(main.control<QWidget>("txtWord").isEnabled());
    }

    void theWordBoxGetsTheFocusOfTheWindowWhereItIsEnabled()
    {
        MainWindow main;
        main.window().setFocus();
        QVERIFY(!main.control<QWidget>("txtWord").hasFocus());
        main.click("cmdNewWord");
        main.control<QWidget>("cmdAbort").setFocus();
        QVERIFY(!main.control<QWidget>("txtWord").hasFocus());
        main.window().setFocus();
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Start_test>(argc, argv);
}

#include "frmMain_Start_test.moc"
