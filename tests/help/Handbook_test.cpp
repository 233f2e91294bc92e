// SPDX-License-Identifier: GPL-3.0-or-later
#include "help/Handbook.h"

#include "help/FakeBrowser.h"
#include "help/HelpKey.h"
#include "platform/Paths.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"

#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QTextBrowser>

using namespace Qt::StringLiterals;

namespace {

// A window of that name with a box that has the keyboard.
class NamedWindow final : public QDialog
{
public:
    explicit NamedWindow(const QString &name, QWidget *parent = nullptr) : QDialog(parent)
    {
        setObjectName(name);
        m_box.setParent(this);
        show();
        Controls::waitUntilActive(*this);
        m_box.setFocus();
    }

    [[nodiscard]] QLineEdit &box() { return m_box; }

private:
    QLineEdit m_box;
};

} // namespace

class Handbook_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(QDir(pathOf(Place::Handbook)).exists(u"index.html"_s)); }

    void f1OpensThePageOfTheWindow_data()
    {
        QTest::addColumn<QString>("page");
        QTest::newRow("frmMain") << u"index.html"_s;
        QTest::newRow("frmTanglewit") << u"game.html"_s;
        QTest::newRow("dlgIncorrectAnswer") << u"game.html"_s;
        QTest::newRow("dlgGameOver") << u"game.html"_s;
        QTest::newRow("dlgQuickFlash") << u"flash-cards.html"_s;
        QTest::newRow("dlgWordExist") << u"importing.html"_s;
        QTest::newRow("dlgExport") << u"exporting.html"_s;
        QTest::newRow("frmPrint") << u"printing.html"_s;
        QTest::newRow("CommonDialog") << u"files.html"_s;
        QTest::newRow("MsgBox") << u"messages.html"_s;
    }

    void f1OpensThePageOfTheWindow()
    {
        QFETCH(QString, page);
        FakeBrowser browser;
        const HelpKey key;
        const NamedWindow window(QString::fromLatin1(QTest::currentDataTag()));
        Controls::press(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList{page});
    }

    void aWindowWithoutAPageHasThatOfTheWindowBelow()
    {
        FakeBrowser browser;
        const HelpKey key;
        NamedWindow print(u"frmPrint"_s);
        const NamedWindow window(u"QPageSetupDialog"_s, &print);
        Controls::press(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList{u"printing.html"_s});
    }

    void otherKeysAndHeldOnesOpenNothing()
    {
        FakeBrowser browser;
        const HelpKey key;
        const NamedWindow window(u"frmPrint"_s);
        Controls::press(Qt::Key_F2);
        Controls::press(Qt::Key_F1, Qt::ControlModifier);
        Controls::holdOn(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList());
    }

    void inAWindowOfAnotherProgramPartNothingIsOpened()
    {
        FakeBrowser browser;
        const HelpKey key;
        const NamedWindow window(u"unknown"_s);
        Controls::press(Qt::Key_F1);
        QCOMPARE(browser.pages, QStringList());
    }

    void withoutABrowserThePageIsShownInAWindowOfTheProgram()
    {
        const FakeBrowser browser(FakeBrowser::Desktop::WithoutBrowser);
        DialogAnswers answers;
        answers.useForm("dlgHandbook", [](QDialog &dialog) {
            auto &text = Controls::find<QTextBrowser>(dialog, "text");
            QCOMPARE(text.source().fileName(), u"game.html"_s);
            QVERIFY(text.toPlainText().startsWith(u"The game"_s));
            QVERIFY(!Controls::find<QPushButton>(dialog, "cmdBack").isEnabled());
            Controls::click(Controls::find<QPushButton>(dialog, "cmdContents"));
            QCOMPARE(text.source().fileName(), u"index.html"_s);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdBack"));
            QCOMPARE(text.source().fileName(), u"game.html"_s);
            Controls::press(Qt::Key_F1); // it is the handbook already
            Controls::click(Controls::find<QPushButton>(dialog, "cmdClose"));
        });
        openHandbook(u"game"_s, nullptr);
        QVERIFY(answers.allSeen());
    }

    // In a window of the program nothing scrolls sideways.
    void eachPageFitsTheWindowOfTheProgram()
    {
        const FakeBrowser browser(FakeBrowser::Desktop::WithoutBrowser);
        DialogAnswers answers;
        const QStringList pages =
            QDir(pathOf(Place::Handbook)).entryList({u"*.html"_s}, QDir::Files);
        QVERIFY(pages.size() > 10);
        for (const QString &page : pages) {
            answers.useForm("dlgHandbook", [&page](QDialog &dialog) {
                const auto &text = Controls::find<QTextBrowser>(dialog, "text");
                const int hidden = text.horizontalScrollBar()->maximum();
                dialog.close();
                QVERIFY2(hidden == 0, qPrintable(page));
            });
            openHandbook(page.chopped(5), nullptr);
        }
        QVERIFY(answers.allSeen());
    }

    void aPageThatIsMissingIsToldOf()
    {
        FakeBrowser browser;
        DialogAnswers answers;
        answers.expectMsgBox(u"The handbook is not installed. Its folder would be:\n"_s +
                             pathOf(Place::Handbook));
        openHandbook(u"no-such-page"_s, nullptr);
        QVERIFY(answers.allSeen());
        QCOMPARE(browser.pages, QStringList());
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<Handbook_test>(argc, argv);
}
#include "Handbook_test.moc"
