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
#include <QHash>
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

// A theme with these icons, each of one colour of its own, that the program uses.
class IconTheme final
{
public:
    IconTheme(const QString &name, const QStringList &icons)
    {
        const QDir folder(m_folder.path());
        const QString place = name + u"/16x16/all/"_s;
        folder.mkpath(place);
        writeFile(folder.filePath(name + u"/index.theme"_s),
                  "[Icon Theme]\nName=Test\nDirectories=16x16/all\n"
                  "[16x16/all]\nSize=16\nType=Fixed\n");
        QImage image(16, 16, QImage::Format_RGB32);
        for (const QString &icon : icons) {
            image.fill(colourOf(icon));
            image.save(folder.filePath(place + icon + u".png"_s));
        }
        QIcon::setThemeSearchPaths({m_folder.path()});
        QIcon::setThemeName(name);
    }

    [[nodiscard]] static QColor colourOf(const QString &icon)
    {
        return QColor::fromRgb(static_cast<QRgb>(qHash(icon)) | 0xFF000000U);
    }

private:
    QTemporaryDir m_folder;
};

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
        QTest::newRow("dlgQuickFlash") << "mnuQuickFlash"_ba << 5 << "cmdNext"_ba;
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
        checkEnter(dialog, "cmdYes");
        Controls::click(Controls::find<QPushButton>(dialog, "cmdAllowModify"));
        checkEnter(dialog, "cmdUpdate");
    }

    void theButtonsBelowThePreviewNameItsKeys_data()
    {
        QTest::addColumn<QString>("key");
        QTest::newRow("cmdFirstPage") << u"(Home in the preview)"_s;
        QTest::newRow("cmdPreviousPage") << u"(Ctrl+PgUp)"_s;
        QTest::newRow("cmdNextPage") << u"(Ctrl+PgDn)"_s;
        QTest::newRow("cmdLastPage") << u"(End in the preview)"_s;
        QTest::newRow("cmdZoom") << u"(+ in the preview)"_s;
    }

    void theButtonsBelowThePreviewNameItsKeys()
    {
        QFETCH(QString, key);
        MainWindow main;
        main.fill({u"cat"_s});
        main.answers.useForm("frmPrint", [key](QDialog &dialog) {
            const auto &button = Controls::find<QPushButton>(dialog, QTest::currentDataTag());
            QVERIFY2(button.toolTip().endsWith(key), qPrintable(button.toolTip()));
            dialog.close();
        });
        main.choose("mnuPrint");
        QVERIFY(main.answers.allSeen());
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
            QVERIFY(zoom.toolTip().endsWith(u"(- in the preview)"_s));
            checkButtons(dialog, 12);
            dialog.close();
        });
        main.choose("mnuPrint");
        QVERIFY(main.answers.allSeen());
    }

    void eachMenuItemHasItsIconOfTheTheme()
    {
        const QHash<QString, QString> icons{{u"mnuNew"_s, u"document-new"_s},
                                            {u"mnuOpen"_s, u"document-open"_s},
                                            {u"mnuSave"_s, u"document-save"_s},
                                            {u"mnuSaveAs"_s, u"document-save-as"_s},
                                            {u"mnuCreateTextFile"_s, u"text-x-generic"_s},
                                            {u"mnuPageSetup"_s, u"document-page-setup"_s},
                                            {u"mnuPrinterSetup"_s, u"printer"_s},
                                            {u"mnuPrint"_s, u"document-print"_s},
                                            {u"mnuPrintWholeList"_s, u"document-print"_s},
                                            {u"mnuExport"_s, u"document-export"_s},
                                            {u"mnuImport"_s, u"document-import"_s},
                                            {u"mnuExit"_s, u"application-exit"_s},
                                            {u"mnuDeleteWord"_s, u"edit-delete"_s},
                                            {u"mnuPlayScramble"_s, u"applications-games"_s},
                                            {u"mnuQuickFlash"_s, u"x-office-presentation"_s},
                                            {u"mnuMusic"_s, u"audio-x-generic"_s},
                                            {u"mnuHandbook"_s, u"help-contents"_s},
                                            {u"mnuKeyboard"_s, u"input-keyboard"_s},
                                            {u"mnuAbout"_s, u"help-about"_s}};
        const QStringList names(icons.begin(), icons.end());
        const IconTheme theme(u"all"_s, names);
        MainWindow main;
        QVERIFY(main.action("mnuOpen").icon().isNull()); // a start reads no icons
        int items = 0;
        for (const char *name : {"mnuFile", "mnuEdit", "mnuGame", "mnuHelp"}) {
            auto &menu = main.control<QMenu>(name);
            menu.popup({});
            for (const QAction *item : menu.actions()) {
                if (item->isSeparator())
                    continue;
                const QString object =
                    item->menu() ? item->menu()->objectName() : item->objectName();
                QVERIFY2(icons.contains(object), qPrintable(object));
                QVERIFY2(!item->icon().isNull(), qPrintable(object));
                QCOMPARE(item->icon().pixmap(16).toImage().pixelColor(8, 8),
                         IconTheme::colourOf(icons[object]));
                ++items;
            }
            menu.close();
        }
        QCOMPARE(items, icons.size());
    }

    void aMenuItemHasNoIconThatTheThemeLacks()
    {
        const IconTheme theme(u"few"_s, {u"document-open"_s});
        MainWindow main;
        auto &menu = main.control<QMenu>("mnuFile");
        menu.popup({});
        QVERIFY(!main.action("mnuOpen").icon().isNull());
        QVERIFY(main.action("mnuNew").icon().isNull());
        menu.close();
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<ToolTips_test>(argc, argv);
}
#include "ToolTips_test.moc"
