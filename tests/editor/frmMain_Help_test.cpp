// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MainWindow.h"
#include "help/FakeBrowser.h"
#include "platform/Paths.h"
#include "support/FormTest.h"

#include <QDir>
#include <QFileDialog>
#include <QMenuBar>
#include <QMessageBox>

using namespace Qt::StringLiterals;

class frmMain_Help_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(QDir(pathOf(Place::Handbook)).exists(u"index.html"_s)); }

    void helpIsTheLastMenu()
    {
        MainWindow main;
        const QList<QAction *> menus = main.control<QMenuBar>("menuBar").actions();
        QCOMPARE(menus.constLast()->menu()->objectName(), u"mnuHelp"_s);
    }

    void theMenuOpensTheHandbookAtItsFirstPageAndAtTheKeyboard()
    {
        FakeBrowser browser;
        MainWindow main;
        main.choose("mnuHandbook");
        main.choose("mnuKeyboard");
        QCOMPARE(browser.pages, (QStringList{u"index.html"_s, u"keyboard.html"_s}));
    }

    void f1InTheMainWindowOpensTheFirstPageOnce_data()
    {
        QTest::addColumn<QByteArray>("control");
        for (const char *control : {"txtWord", "txtSentence", "cmdAdd", "MSFlexGrid1"})
            QTest::newRow(control) << QByteArray(control);
    }

    void f1InTheMainWindowOpensTheFirstPageOnce()
    {
        QFETCH(QByteArray, control);
        FakeBrowser browser;
        MainWindow main;
        main.click("cmdNewWord");
        main.control<QWidget>(control).setFocus();
        Controls::press(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList{u"index.html"_s});
    }

    void f1InADialogOpensItsPage()
    {
        FakeBrowser browser;
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        const auto pressF1 = [](QDialog &dialog) {
            Controls::press(Qt::Key_F1);
            dialog.close();
        };
        main.answers.useForm("dlgExport", pressF1);
        main.choose("mnuExport");
        main.answers.useForm("dlgQuickFlash", pressF1);
        main.choose("mnuQuickFlash");
        main.answers.useForm("frmPrint", pressF1);
        main.choose("mnuPrint");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(browser.pages,
                 (QStringList{u"exporting.html"_s, u"flash-cards.html"_s, u"printing.html"_s}));
    }

    void f1InAFileDialogAndInAMessageBoxOpensTheirPages()
    {
        FakeBrowser browser;
        MainWindow main;
        const auto pressF1 = [](QDialog &dialog) {
            Controls::waitUntilActive(dialog);
            QTest::keyClick(&dialog, Qt::Key_F1);
        };
        main.answers.cancelFileDialog(pressF1);
        main.choose("mnuImport");
        main.answers.expectMsgBox(u"Cannot export: Your current wordlist is empty"_s,
                                  QMessageBox::Ok, pressF1);
        main.choose("mnuExport");
        QVERIFY(main.answers.allSeen());
        QCOMPARE(browser.pages, (QStringList{u"files.html"_s, u"messages.html"_s}));
    }

    void f1InTheGameOpensItsPage()
    {
        FakeBrowser browser;
        MainWindow main;
        main.fill({u"cat"_s, u"dog"_s});
        main.click("cmdPlayScramble");
        QTRY_VERIFY(QApplication::activeWindow() &&
                    QApplication::activeWindow()->objectName() == u"frmTanglewit"_s);
        Controls::press(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList{u"game.html"_s});
        QApplication::activeWindow()->close();
    }

    void aboutOpensItsWindow()
    {
        MainWindow main;
        main.answers.useForm("dlgAbout", [](QDialog &dialog) { dialog.close(); });
        main.choose("mnuAbout");
        QVERIFY(main.answers.allSeen());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Help_test>(argc, argv);
}
#include "frmMain_Help_test.moc"
