// SPDX-License-Identifier: GPL-3.0-or-later
// A dialog opens again with the size and the place with which it was closed.
#include "editor/MainWindow.h"
#include "help/FakeBrowser.h"
#include "platform/Paths.h"
#include "support/FormTest.h"

#include <QDir>

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
        QRect closed;
        main.answers.useForm(QTest::currentDataTag(), [&closed](QDialog &dialog) {
            dialog.setGeometry(40, 30, dialog.minimumSizeHint().width() + 30,
                               dialog.minimumSizeHint().height() + 40);
            closed = dialog.geometry();
            dialog.close();
        });
        main.choose(menuItem);
        main.answers.useForm(QTest::currentDataTag(), [&closed](QDialog &dialog) {
            const QRect opened = dialog.geometry();
            dialog.close();
            QCOMPARE(opened, closed);
        });
        main.choose(menuItem);
        QVERIFY(main.answers.allSeen());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_DialogPlaces_test>(argc, argv);
}

#include "frmMain_DialogPlaces_test.moc"
