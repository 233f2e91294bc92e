// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/FlashCard.h"

#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_QuickFlash_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_main = std::make_unique<MainWindow>(); }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void anEmptyListHasNoCards_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("button") << false;
        QTest::newRow("menu") << true;
    }

    void anEmptyListHasNoCards()
    {
        QFETCH(bool, byMenu);
        m_main->answers.expectMsgBox(
            u"Your current wordlist is empty"_s, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            });
        chooseQuickFlash(byMenu);
        QCOMPARE(gOrderSize, Integer(0));
    }

    void theCardsAreShownOverTheMainWindow_data() { anEmptyListHasNoCards_data(); }

    void theCardsAreShownOverTheMainWindow()
    {
        QFETCH(bool, byMenu);
        m_main->fill(5);
        m_main->answers.useForm("dlgQuickFlash", [](QDialog &dialog) {
            QVERIFY(dialog.isModal());
            QCOMPARE(dialog.windowTitle(), u"Dialog Caption"_s);
            QCOMPARE(Controls::find<FlashCard>(dialog, "txtWord").toPlainText(),
                     u"word %1"_s.arg(gWordOrder(1).toInt()));
            Controls::click(Controls::find<QPushButton>(dialog, "CancelButton"));
        });
        chooseQuickFlash(byMenu);
        QCOMPARE(gOrderSize, Integer(5));
    }

    void theMainWindowIsShownAgainAfterwards_data()
    {
        QTest::addColumn<bool>("byKey");
        QTest::newRow("Cancel") << false;
        QTest::newRow("Esc") << true;
    }

    void theMainWindowIsShownAgainAfterwards()
    {
        QFETCH(bool, byKey);
        m_main->fill(5);
        m_main->answers.useForm("dlgQuickFlash", [this, byKey](QDialog &dialog) {
            m_main->window().hide();
            if (byKey)
                QTest::keyClick(&dialog, Qt::Key_Escape);
            else
                Controls::click(Controls::find<QPushButton>(dialog, "CancelButton"));
        });
        m_main->click("cmdQuickFlash");
        QVERIFY(m_main->window().isVisible());
        QVERIFY(m_main->window().isMaximized());
        // The main window is shown again, but not loaded again.
        QCOMPARE(gVocabList().NumWords(), Integer(5));
    }

    void theListStaysAsItIsAndTheDeckToo()
    {
        writeFile(m_main->path(u"animals.lwx"_s), listBytes(someEntries(30, u"animal"_s)));
        openList(*m_main, m_main->path(u"animals.lwx"_s));
        OpenList before(*m_main);
        drill(3);
        QCOMPARE(gOrderIndex, Integer(4));
        QCOMPARE(gOrderSize, Integer(30));
        QCOMPARE(gVocabList().CurrentWord(), gWordOrder(4));
        before.position = gWordOrder(4).toInt();
        QVERIFY(OpenList(*m_main) == before);
    }

    void eachOpeningBeginsWithTheFirstCard()
    {
        m_main->fill(30);
        drill(3);
        drill(0);
        QCOMPARE(gOrderIndex, Integer(1));
    }

    void aPickedEntryIsWhatUpdateChangesAfterwards()
    {
        m_main->fill(5);
        m_main->clickCell(2, 1);
        drill(3);
        QCOMPARE(m_main->look(), EditorModes::editing());
        QCOMPARE(m_main->markedRows(), QList<int>{2});
        m_main->type("txtWord", u"camel"_s);
        m_main->click("cmdAdd");
        const Entries entries = openEntries();
        for (int i = 0; i < 5; ++i)
            QCOMPARE(entries[i][0], i == 1 ? u"camel"_s : u"word %1"_s.arg(i + 1));
    }

private:
    void chooseQuickFlash(bool byMenu)
    {
        if (byMenu)
            m_main->choose("mnuQuickFlash");
        else
            m_main->click("cmdQuickFlash");
        QVERIFY(m_main->answers.allSeen());
    }

    // Opens the cards, clicks Next this number of times and closes them.
    void drill(int cards)
    {
        m_main->answers.useForm("dlgQuickFlash", [cards](QDialog &dialog) {
            for (int i = 0; i < cards; ++i)
                Controls::click(Controls::find<QPushButton>(dialog, "cmdNext"));
            Controls::click(Controls::find<QPushButton>(dialog, "CancelButton"));
        });
        m_main->click("cmdQuickFlash");
    }

    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_QuickFlash_test>(argc, argv);
}

#include "frmMain_QuickFlash_test.moc"
