// SPDX-License-Identifier: GPL-3.0-or-later
// A long import: the main window shows its progress and takes no commands.
#include "editor/ImportCommand.h"
#include "transfer/Import.h"

#include <QProgressDialog>
#include <QWindow>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

constexpr int Words = 3000;

} // namespace

class frmMain_ImportProgress_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_command = std::make_unique<ImportCommand>();
        m_command->main.fill({u"word 1"_s});
        m_incoming.clear();
        for (int i = 1; i <= Words; ++i)
            m_incoming += u"word %1|"_s.arg(i);
    }

    void cleanup()
    {
        QVERIFY(m_command->main.answers.allSeen());
        m_command.reset();
    }

    void aLongImportShowsItsProgressAndBlocksCommands_data()
    {
        QTest::addColumn<bool>("isDif");
        QTest::newRow("word list") << false;
        QTest::newRow("DIF file") << true;
    }

    void aLongImportShowsItsProgressAndBlocksCommands()
    {
        QFETCH(bool, isDif);
        MainWindow &main = m_command->main;
        int shown = 0; // steps with a bar on the screen
        m_command->expectQuestion(u"cmdNo"_s, [&](QDialog &) {
            QCOMPARE(main.window().cursor().shape(), Qt::WaitCursor);
            auto *import = main.window().findChild<Import *>();
            QVERIFY(import);
            connect(import, &Import::progress, import, [&](int done, int total) {
                waitForTheBar();
                if (isBarShown() && shown++ == 0) {
                    QVERIFY(done <= total);
                    tryCommands();
                }
            });
        });
        m_command->expectMsgBox(
            (isDif ? u"%1 words added"_s : u"%1 words imported"_s).arg(Words - 1));
        if (isDif)
            m_command->importDif(ImportTools::difLinesOf(m_incoming));
        else
            m_command->importList(m_incoming);

        QVERIFY(shown > 0);
        QVERIFY(!isBarShown());
        QCOMPARE(main.window().cursor().shape(), Qt::ArrowCursor);
        QCoreApplication::processEvents();
        // No command was run, not even after the import.
        QCOMPARE(main.look(), EditorModes::idle());
        QCOMPARE(gVocabList().NumWords().toInt(), Words);
        QVERIFY(main.window().isVisible());
        tryCommands();
        QCOMPARE(main.look(), EditorModes::newWord());
    }

    void aHiddenProgressBarStillBlocksCommands()
    {
        MainWindow &main = m_command->main;
        bool wasShown = false;
        m_command->expectQuestion(u"cmdNo"_s, [&](QDialog &) {
            connect(main.window().findChild<Import *>(), &Import::progress, &main.window(),
                    [&](int done, int) {
                        if (!wasShown)
                            waitForTheBar();
                        if (isBarShown() && !wasShown) {
                            wasShown = true;
                            QTest::keyClick(bar(), Qt::Key_Escape);
                        }
                        if (wasShown && done % 100 == 0)
                            tryCommands();
                    });
        });
        m_command->expectMsgBox(u"%1 words imported"_s.arg(Words - 1));
        m_command->importList(m_incoming);
        QVERIFY(wasShown);
        QCOMPARE(main.look(), EditorModes::idle());
        QCOMPARE(gVocabList().NumWords().toInt(), Words);
    }

    void aShortImportShowsNone()
    {
        m_command->expectMsgBox(u"1 words imported"_s,
                                [this](QMessageBox &) { QVERIFY(!isBarShown()); });
        m_command->importList({u"cat"_s});
    }

private:
    [[nodiscard]] QProgressDialog *bar() const
    {
        return m_command->main.window().findChild<QProgressDialog *>();
    }
    [[nodiscard]] bool isBarShown() const { return bar() && bar()->isVisible(); }

    // Waits a little at each word, as a slow machine does, until the progress bar is shown.
    void waitForTheBar() const
    {
        if (!isBarShown())
            QTest::qSleep(1);
    }

    // A click on New Word as the window system gives it.
    void tryCommands()
    {
        MainWindow &main = m_command->main;
        auto &button = main.control<QPushButton>("cmdNewWord");
        QWindow *window = main.window().windowHandle();
        QTest::mouseClick(window, Qt::LeftButton, {},
                          button.mapTo(&main.window(), button.rect().center()));
    }

    std::unique_ptr<ImportCommand> m_command;
    QStringList m_incoming;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_ImportProgress_test>(argc, argv);
}

#include "frmMain_ImportProgress_test.moc"
