// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window's buttons, those of its dialogs and its menu items show beside their words.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"
#include "transfer/dlgWordExist.h"

#include <QDialog>
#include <QIcon>
#include <QImage>
#include <QMenu>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// Of the window's own buttons, not those that belong to a control of Qt.
QList<QAbstractButton *> buttonsOf(const QWidget &window)
{
    QList<QAbstractButton *> buttons;
    for (auto *button : window.findChildren<QAbstractButton *>())
        if (button->window() == &window && !button->objectName().isEmpty() &&
            !button->objectName().startsWith(u"qt_"_s))
            buttons += button;
    return buttons;
}

// What a tool tip lacks: it is one phrase, and behind it stand the button's keys in brackets.
QString mistakeIn(const QAbstractButton &button)
{
    static const QRegularExpression phrase(u"^[A-Z][^()]*[^.() ]( \\([^()]+\\))?$"_s);
    static const QRegularExpression altKey(u"Alt\\+(.)"_s);
    const QString tip = button.toolTip();
    if (!phrase.match(tip).hasMatch())
        return u"%1: '%2'"_s.arg(button.objectName(), tip);
    const qsizetype mark = button.text().indexOf(u'&');
    const QString key = mark < 0 ? QString() : button.text().mid(mark + 1, 1).toUpper();
    return altKey.match(tip).captured(1) == key
               ? QString()
               : u"%1: '%2' for '%3'"_s.arg(button.objectName(), tip, button.text());
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
        main.click("cmdNewWord");
        checkButtons(main.window(), 7);
        main.clickCell(1, 1);
        QCOMPARE(main.control<QPushButton>("cmdAdd").text(), u"&Update"_s);
        checkButtons(main.window(), 7);
    }

    void eachButtonOfADialogSaysWhatItDoesAndItsKeys_data()
    {
        QTest::addColumn<QByteArray>("item");
        QTest::addColumn<int>("buttons");
        QTest::newRow("dlgExport") << "mnuExport"_ba << 3;
        QTest::newRow("dlgQuickFlash") << "mnuQuickFlash"_ba << 5;
        QTest::newRow("frmPrint") << "mnuPrint"_ba << 12;
        QTest::newRow("dlgAbout") << "mnuAbout"_ba << 1;
    }

    void eachButtonOfADialogSaysWhatItDoesAndItsKeys()
    {
        QFETCH(QByteArray, item);
        QFETCH(int, buttons);
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.answers.useForm(QTest::currentDataTag(), [buttons](QDialog &dialog) {
            checkButtons(dialog, buttons);
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
