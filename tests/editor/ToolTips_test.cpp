// SPDX-License-Identifier: GPL-3.0-or-later
// What the buttons of the program's windows and the menu items show beside their words.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "game/GameForm.h"
#include "help/dlgHandbook.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"
#include "transfer/dlgWordExist.h"

#include <QDialog>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QRegularExpression>
#include <QToolButton>

using namespace Qt::StringLiterals;

namespace {

// Of the window's own buttons, not those that belong to a control of Qt nor the letter tiles, which
// nobody can press.
QList<QAbstractButton *> buttonsOf(const QWidget &window)
{
    QList<QAbstractButton *> buttons;
    for (auto *button : window.findChildren<QAbstractButton *>())
        if (button->window() == &window && !button->objectName().isEmpty() &&
            !button->objectName().startsWith(u"qt_"_s) &&
            !button->testAttribute(Qt::WA_TransparentForMouseEvents))
            buttons += button;
    return buttons;
}

// What a tool tip lacks: it is one phrase, and behind it stand the button's keys in brackets: its
// letter with Alt, and its shortcut.
QString mistakeIn(const QAbstractButton &button)
{
    static const QRegularExpression phrase(u"^[A-Z][^()]*[^.() ]( \\([^()]+\\))?$"_s);
    static const QRegularExpression altKey(u"Alt\\+(.)"_s);
    const QString tip = button.toolTip();
    if (!phrase.match(tip).hasMatch())
        return u"%1: '%2'"_s.arg(button.objectName(), tip);
    const qsizetype mark = button.text().indexOf(u'&');
    const QString key = mark < 0 ? QString() : button.text().mid(mark + 1, 1).toUpper();
    const QString keys = tip.section(u'(', 1);
    return altKey.match(keys).captured(1) == key && keys.contains(button.shortcut().toString())
               ? QString()
               : u"%1: '%2' for '%3' %4"_s.arg(button.objectName(), tip, button.text(),
                                               button.shortcut().toString());
}

void checkButtons(const QWidget &window, int buttons)
{
    QCOMPARE(buttonsOf(window).size(), buttons);
    QStringList mistakes;
    for (const QAbstractButton *button : buttonsOf(window))
        if (const QString mistake = mistakeIn(*button); !mistake.isEmpty())
            mistakes += mistake;
    QCOMPARE(mistakes, QStringList());
}

bool isWithEnter(const QAbstractButton &button)
{
    return button.toolTip().contains(u"Enter)"_s) || button.toolTip().contains(u"Enter,"_s);
}

// The button that Enter presses, and no other one of those that can be seen, says so.
void checkEnter(const QWidget &window, const char *name)
{
    QStringList buttons;
    for (const QAbstractButton *button : buttonsOf(window))
        if (button->isVisible() && isWithEnter(*button))
            buttons += button->objectName();
    QCOMPARE(buttons, QStringList{QLatin1String(name)});
}

} // namespace

class ToolTips_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachButtonOfTheMainWindowSaysWhatItDoesAndItsKeys()
    {
        MainWindow main;
        main.fill({u"cat"_s});
        checkButtons(main.window(), 7);
        checkEnter(main.window(), "cmdNewWord");
        main.click("cmdNewWord");
        checkButtons(main.window(), 7);
        checkEnter(main.window(), "cmdAdd");
        main.clickCell(1, 1);
        QCOMPARE(main.control<QPushButton>("cmdAdd").text(), u"&Update"_s);
        checkButtons(main.window(), 7);
        checkEnter(main.window(), "cmdAdd");
        main.click("cmdAbort");
        main.click("cmdSearch");
        checkButtons(main.window(), 7);
        checkEnter(main.window(), "cmdSearch");
    }

    void eachButtonOfTheGameSaysWhatItDoesAndItsKeys()
    {
        GameForm game;
        game.choose("mnuUpbeat");
        game.open();
        checkButtons(game.window(), 8);
        checkEnter(game.window(), "cmdStart");
        game.click("cmdStart");
        QVERIFY(game.control<QWidget>("btnSpeaker").isVisible());
        checkButtons(game.window(), 8);
        checkEnter(game.window(), "cmdEnter");
        game.click("cmdHide");
        checkEnter(game.window(), "cmdEnter");
        auto &speaker = game.control<QToolButton>("btnSpeaker");
        speaker.click();
        checkButtons(game.window(), 8);
        speaker.click();
        game.expectMiss([](QDialog &dialog) {
            checkButtons(dialog, 3);
            checkEnter(dialog, "cmdOK");
            Controls::click(Controls::find<QPushButton>(dialog, "cmdDown"));
            checkButtons(dialog, 3);
            checkEnter(dialog, "cmdOK");
        });
        game.answer(u"wrong"_s);
        game.click("cmdRestart");
        checkEnter(game.window(), "cmdStart");
    }

    void eachButtonOfTheTop10SaysWhatItDoesAndItsKeys()
    {
        GameForm game;
        game.start();
        game.answerRight();
        while (game.text("lblNumLifes").toInt() > 1 && !QTest::currentTestFailed())
            game.answerWrong();
        game.expectMiss();
        game.expectTop10Entry(u"Anna"_s, [](QDialog &dialog) {
            checkButtons(dialog, 3);
            checkEnter(dialog, "cmdEnter");
        });
        game.answer(u"wrong"_s);
        game.expectTop10([](QDialog &dialog) {
            checkButtons(dialog, 3);
            checkEnter(dialog, "cmdClose");
        });
        game.click("cmdViewTop10");
        QVERIFY(game.answers.allSeen());
    }

    void eachButtonOfTheHandbookSaysWhatItDoesAndItsKeys()
    {
        const QTemporaryDir folder;
        const QString page = folder.filePath(u"index.html"_s);
        writeFile(page, "<p>A page</p>");
        dlgHandbook handbook(page, nullptr);
        handbook.show();
        checkButtons(handbook, 3);
    }

    void eachButtonOfADialogSaysWhatItDoesAndItsKeys_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<int>("buttons");
        QTest::addColumn<QByteArray>("enter");
        QTest::newRow("dlgExport") << "mnuExport"_ba << 3 << "cmdOk"_ba;
        QTest::newRow("dlgQuickFlash") << "mnuQuickFlash"_ba << 5 << QByteArray();
        QTest::newRow("frmPrint") << "mnuPrint"_ba << 12 << "cmdPrint"_ba;
        QTest::newRow("dlgAbout") << "mnuAbout"_ba << 1 << "cmdOK"_ba;
    }

    void eachButtonOfADialogSaysWhatItDoesAndItsKeys()
    {
        QFETCH(QByteArray, item);
        QFETCH(int, buttons);
        QFETCH(QByteArray, enter);
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.answers.useForm(QTest::currentDataTag(), [buttons, enter](QDialog &dialog) {
            checkButtons(dialog, buttons);
            if (!enter.isEmpty())
                checkEnter(dialog, enter);
            dialog.close();
        });
        main.choose(item);
        QVERIFY(main.answers.allSeen());
    }

    void eachButtonOfTheExistingWordDialogSaysWhatItDoesAndItsKeys()
    {
        MainWindow main;
        main.fill({u"cat"_s});
        Module1::gVocabList().CurrentWord(1);
        dlgWordExist dialog;
        dialog.show();
        checkButtons(dialog, 9);
    }

    void thePreviewsZoomSaysWhatItDoesInBothStates()
    {
        MainWindow main;
        main.fill({u"cat"_s});
        main.answers.useForm("frmPrint", [](QDialog &dialog) {
            auto &zoom = Controls::find<QPushButton>(dialog, "cmdZoom");
            const QString before = zoom.toolTip();
            Controls::click(zoom);
            QVERIFY(zoom.toolTip() != before);
            checkButtons(dialog, 12);
            dialog.close();
        });
        main.choose("mnuPrint");
        QVERIFY(main.answers.allSeen());
    }

    void menuItemsHaveTheIconsThatTheThemeHas()
    {
        const QTemporaryDir themes;
        const QDir folder(themes.path());
        QVERIFY(folder.mkpath(u"few/16x16/actions"_s));
        writeFile(folder.filePath(u"few/index.theme"_s),
                  "[Icon Theme]\nName=Few\nDirectories=16x16/actions\n"
                  "[16x16/actions]\nSize=16\nType=Fixed\n");
        QImage icon(16, 16, QImage::Format_RGB32);
        icon.fill(Qt::red);
        QVERIFY(icon.save(folder.filePath(u"few/16x16/actions/document-open.png"_s)));
        QIcon::setThemeSearchPaths({themes.path()});
        QIcon::setThemeName(u"few"_s);

        MainWindow main;
        QVERIFY(main.action("mnuOpen").icon().isNull());
        auto &menu = main.control<QMenu>("mnuFile");
        menu.popup({});
        QVERIFY(!main.action("mnuOpen").icon().isNull());
        QCOMPARE(main.action("mnuOpen").icon().pixmap(16).toImage().pixelColor(8, 8),
                 QColor(Qt::red));
        QVERIFY(main.action("mnuNew").icon().isNull());
        menu.close();
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<ToolTips_test>(argc, argv);
}
#include "ToolTips_test.moc"
