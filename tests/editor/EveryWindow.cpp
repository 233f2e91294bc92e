// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EveryWindow.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "editor/frmSplash.h"
#include "game/GameForm.h"
#include "help/dlgHandbook.h"
#include "platform/MsgBox.h"
#include "support/TestFiles.h"
#include "transfer/dlgWordExist.h"

#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

using Look = std::function<void(QWidget &)>;

const QStringList Words{u"cat"_s, u"dog"_s, u"bird"_s};

void openSplash(const Look &look)
{
    frmSplash splash;
    splash.show();
    look(splash);
}

void openEmptyList(const Look &look)
{
    MainWindow main;
    look(main.window());
}

void openList(const Look &look)
{
    MainWindow main;
    main.fill(40);
    look(main.window());
}

void openNewWord(const Look &look)
{
    MainWindow main;
    main.fill(Words);
    main.click("cmdNewWord");
    main.typeEntry(u"fish"_s, u"an animal that swims"_s, u"A fish has no legs."_s);
    look(main.window());
}

void openEntry(const Look &look)
{
    MainWindow main;
    main.fill(Words);
    main.clickCell(2, 1);
    look(main.window());
}

void openSearch(const Look &look)
{
    MainWindow main;
    main.fill(Words);
    main.click("cmdSearch");
    look(main.window());
}

void openMenu(const char *name, const Look &look)
{
    MainWindow main;
    main.fill(Words);
    auto &menu = main.control<QMenu>(name);
    main.control<QMenuBar>("menuBar").setActiveAction(menu.menuAction());
    if (!menu.isVisible())
        menu.popup(main.window().mapToGlobal(QPoint(20, 40)));
    look(menu);
    menu.close();
}

void openDialog(const char *item, const char *dialog, const Look &look)
{
    MainWindow main;
    main.fill(Words);
    main.answers.useForm(dialog, [&look](QDialog &form) {
        look(form);
        form.close();
    });
    main.choose(item);
}

void openWordExist(bool isUnlocked, const Look &look)
{
    MainWindow main;
    main.fill(Words);
    gVocabList().CurrentWord(1);
    gImportWord = u"Cat"_s;
    gImportDef = u"a pet"_s;
    gImportSen = u"The cat sleeps."_s;
    dlgWordExist dialog(&main.window());
    dialog.show();
    Controls::waitUntilActive(dialog);
    if (isUnlocked)
        Controls::click(Controls::find<QPushButton>(dialog, "cmdAllowModify"));
    look(dialog);
}

void openSubset(const Look &look)
{
    openDialog("mnuPrint", "frmPrint", [&look](QWidget &dialog) {
        Controls::find<QRadioButton>(dialog, "optSubset").click();
        look(dialog);
    });
}

void openRunningCards(const Look &look)
{
    openDialog("mnuQuickFlash", "dlgQuickFlash", [&look](QWidget &dialog) {
        Controls::click(Controls::find<QPushButton>(dialog, "cmdAutoFlash"));
        look(dialog);
        Controls::click(Controls::find<QPushButton>(dialog, "cmdStop"));
    });
}

void openHandbook(const Look &look)
{
    const QTemporaryDir folder;
    const QString page = QDir(folder.path()).filePath(u"index.html"_s);
    QFile::copy(QStringLiteral(HANDBOOK_STYLE), QDir(folder.path()).filePath(u"handbook.css"_s));
    writeFile(page, "<html><head><link rel='stylesheet' href='handbook.css'></head>"
                    "<body><h1>Contents</h1><p>See <a href='x.html'>keys</a>.</p></body></html>");
    dlgHandbook handbook(page, nullptr);
    handbook.show();
    Controls::waitUntilActive(handbook);
    look(handbook);
}

void openMsgBox(const Look &look)
{
    MainWindow main;
    main.answers.expectMsgBox(u"Keep it?"_s, QMessageBox::Yes, look);
    MsgBox(u"Keep it?"_s, MsgBoxButtons::YesNoCancel);
}

void openGameReady(const Look &look)
{
    GameForm game;
    game.open();
    look(game.window());
}

void openGamePlayed(const Look &look)
{
    GameForm game;
    game.choose("mnuUpbeat");
    game.start();
    game.answerRight();
    game.answerWrong();
    game.passTime(10);
    Controls::type(game.answerBox(), u"a"_s);
    look(game.window());
}

void openGameOver(const Look &look)
{
    GameForm game;
    game.start();
    game.answerRight();
    game.loseAllLives(u"Ann"_s);
    look(game.window());
}

void openWrongAnswer(bool isHidden, const Look &look)
{
    GameForm game;
    game.start();
    game.expectMiss([&](QDialog &dialog) {
        if (isHidden)
            Controls::click(Controls::find<QPushButton>(dialog, "cmdDown"));
        look(dialog);
    });
    game.answer(u"wrong"_s);
}

void openTop10(bool asksForName, const Look &look)
{
    GameForm game;
    gTop10[0] = {QDate(2026, 1, 1), u"Ann"_s, 50};
    game.start();
    game.answerRight();
    game.answers.useForm("dlgGameOver", [&](QDialog &dialog) {
        if (asksForName)
            look(dialog);
        Controls::click(Controls::find<QPushButton>(dialog, "cmdEnter"));
        if (!asksForName)
            look(dialog);
        Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
    });
    game.click("cmdQuit");
}

struct Window
{
    const char *name;
    void (*open)(const Look &look);
};

const std::vector<Window> &windows()
{
    static const std::vector<Window> Windows{
        {"splash", openSplash},
        {"main, empty list", openEmptyList},
        {"main, list", openList},
        {"main, new word", openNewWord},
        {"main, entry", openEntry},
        {"main, search", openSearch},
        {"File menu", [](const Look &look) { openMenu("mnuFile", look); }},
        {"Edit menu", [](const Look &look) { openMenu("mnuEdit", look); }},
        {"Game menu", [](const Look &look) { openMenu("mnuGame", look); }},
        {"Music menu", [](const Look &look) { openMenu("mnuMusic", look); }},
        {"Help menu", [](const Look &look) { openMenu("mnuHelp", look); }},
        {"existing word", [](const Look &look) { openWordExist(false, look); }},
        {"existing word, unlocked", [](const Look &look) { openWordExist(true, look); }},
        {"export", [](const Look &look) { openDialog("mnuExport", "dlgExport", look); }},
        {"print", [](const Look &look) { openDialog("mnuPrint", "frmPrint", look); }},
        {"print, subset", openSubset},
        {"flash cards",
         [](const Look &look) { openDialog("mnuQuickFlash", "dlgQuickFlash", look); }},
        {"flash cards, running", openRunningCards},
        {"game, ready", openGameReady},
        {"game, played", openGamePlayed},
        {"game, over", openGameOver},
        {"wrong answer", [](const Look &look) { openWrongAnswer(false, look); }},
        {"wrong answer, hidden", [](const Look &look) { openWrongAnswer(true, look); }},
        {"Top 10, name", [](const Look &look) { openTop10(true, look); }},
        {"Top 10", [](const Look &look) { openTop10(false, look); }},
        {"about", [](const Look &look) { openDialog("mnuAbout", "dlgAbout", look); }},
        {"handbook", openHandbook},
        {"message box", openMsgBox},
    };
    return Windows;
}

} // namespace

void EveryWindow::addRows()
{
    QTest::addColumn<int>("window");
    for (std::size_t i = 0; i < windows().size(); ++i)
        QTest::newRow(windows()[i].name) << int(i);
}

void EveryWindow::open(const Look &look)
{
    QFETCH(int, window);
    bool hasLooked = false;
    windows().at(std::size_t(window)).open([&](QWidget &opened) {
        for (int i = 0; i < 5; ++i)
            QCoreApplication::processEvents();
        hasLooked = true;
        look(opened);
    });
    QVERIFY(hasLooked);
}
