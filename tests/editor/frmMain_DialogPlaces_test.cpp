// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog opens again with the size and the place with which it was closed.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainWindow.h"
#include "game/GameForm.h"
#include "help/FakeBrowser.h"
#include "platform/Paths.h"
#include "support/FormTest.h"
#include "transfer/dlgWordExist.h"

#include <QDir>

#include <functional>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_DialogPlaces_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachDialogOpensWhereItWasClosed_data()
    {
        QTest::addColumn<QByteArray>("menuItem");
        QTest::newRow("dlgExport") << QByteArray("mnuExport");
        QTest::newRow("dlgQuickFlash") << QByteArray("mnuQuickFlash");
        QTest::newRow("frmPrint") << QByteArray("mnuPrint");
        QTest::newRow("dlgAbout") << QByteArray("mnuAbout");
        if (QDir(pathOf(Place::Handbook)).exists(u"index.html"_s))
            QTest::newRow("dlgHandbook") << QByteArray("mnuHandbook");
    }

    void eachDialogOpensWhereItWasClosed()
    {
        QFETCH(QByteArray, menuItem);
        const FakeBrowser browser(FakeBrowser::Desktop::WithoutBrowser);
        MainWindow main;
        main.fill(5);
        checkPlace(main.answers, QTest::currentDataTag(), [&] { main.choose(menuItem); });
    }

    void theQuestionAboutAWordOpensWhereItWasClosed()
    {
        MainWindow main;
        main.fill(QStringList{u"cat"_s});
        gVocabList().CurrentWord(1);
        gImportWord = u"cat"_s;
        checkPlace(main.answers, "dlgWordExist", [] { dlgWordExist().exec(); });
    }

    void theTop10OpensWhereItWasClosed()
    {
        GameForm game;
        game.open();
        checkPlace(game.answers, "dlgGameOver", [&game] { game.click("cmdViewTop10"); });
    }

private:
    static void checkPlace(DialogAnswers &answers, const char *name,
                           const std::function<void()> &open)
    {
        QRect closed;
        answers.useForm(name, [&closed](QDialog &dialog) {
            dialog.setGeometry(40, 30, dialog.minimumSizeHint().width() + 100,
                               dialog.minimumSizeHint().height() + 40);
            closed = dialog.geometry();
            dialog.close();
        });
        open();
        answers.useForm(name, [&closed](QDialog &dialog) {
            const QRect opened = dialog.geometry();
            dialog.close();
            QCOMPARE(opened, closed);
        });
        open();
        QVERIFY(answers.allSeen());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_DialogPlaces_test>(argc, argv);
}

#include "frmMain_DialogPlaces_test.moc"
