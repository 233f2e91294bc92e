// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenList.h"
#include "platform/EntryTextBox.h"
#include "platform/Paths.h"
#include "support/FormTest.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

using namespace Module1;

class frmMain_FileSave_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkpath(pathOf(Place::WordLists)));
        m_path = m_main->path(QStringLiteral("animals.lwx"));
        m_other = m_main->path(QStringLiteral("other.lwx"));
        writeFile(m_path, listBytes(m_entries));
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void saveWritesTheFileAndSaysSo()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, QStringLiteral("cow"));
        gSaved = false;
        m_main->answers.expectMsgBox(
            m_path + QStringLiteral(" has been saved."), QMessageBox::Ok, [this](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
                QVERIFY(!m_main->action("mnuSave").isEnabled());
                QCOMPARE(readFile(m_path), listBytes(withCow()));
            });
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(withCow()));
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(gFileName, m_path);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + QStringLiteral("animals.lwx"));
        QCOMPARE(openEntries(), withCow());
    }

    void saveOfAnUntitledListIsSaveAs()
    {
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.chooseFile(m_other, [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Save File As"));
        });
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_other), listBytes({addedEntry(QStringLiteral("cow"))}));
        QCOMPARE(gFileName, m_other);
        QVERIFY(gSaved);
    }

    void saveOfAnEmptyListSaysSavedButLeavesTheFile()
    {
        writeFile(m_path, listBytes(someEntries(1, QStringLiteral("animal"))));
        openList(*m_main, m_path);
        m_main->clickCell(1, 1);
        m_main->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'animal 1' ?"),
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(gChanged);
        m_main->answers.expectMsgBox(m_path + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(someEntries(1, QStringLiteral("animal"))));
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
    }

    void aDeletedEntryLeavesItsSlotInTheFile()
    {
        openList(*m_main, m_path);
        m_main->clickCell(5, 1);
        m_main->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'animal 5' ?"),
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        m_main->answers.expectMsgBox(m_path + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QByteArray expected = listBytes(m_entries);
        expected.replace(0, 2, number16(4));
        QCOMPARE(readFile(m_path), expected);
    }

    void whatAnOlderLongerFileHeldBehindStays()
    {
        const Entries longer = someEntries(10, QStringLiteral("much longer word"));
        writeFile(m_other, listBytes(longer));
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(QStringLiteral("other.lwx"), QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        const QByteArray written = listBytes(m_entries);
        QCOMPARE(readFile(m_other), written + listBytes(longer).mid(written.size()));

        openList(*m_main, m_path);
        openList(*m_main, m_other);
        QCOMPARE(openEntries(), m_entries);
    }

    void saveIsEnabledByEveryChangeAndDisabledByEverySave()
    {
        QAction &save = m_main->action("mnuSave");
        QVERIFY(!save.isEnabled());
        QVERIFY(m_main->action("mnuSaveAs").isEnabled());
        openList(*m_main, m_path);
        QVERIFY(!save.isEnabled());

        addEntry(*m_main, QStringLiteral("cow"));
        QVERIFY(save.isEnabled());
        m_main->answers.expectMsgBox(m_path + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QVERIFY(!save.isEnabled());

        m_main->clickCell(2, 2);
        QVERIFY(!save.isEnabled());
        m_main->click("cmdAdd"); // Update
        QVERIFY(save.isEnabled());
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QVERIFY(!save.isEnabled());

        m_main->clickCell(2, 1);
        m_main->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'animal 2' ?"),
                                     QMessageBox::No);
        m_main->click("cmdDelete");
        QVERIFY(!save.isEnabled());
        m_main->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'animal 2' ?"),
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(save.isEnabled());

        const QString third = m_main->path(QStringLiteral("third.lwx"));
        writeFile(third, listBytes(m_entries));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(third);
        m_main->choose("mnuOpen");
        QVERIFY(!save.isEnabled());
    }

    void theSaveAsDialogIsAsDesigned()
    {
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), QStringLiteral("Save File As"));
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            const auto &types = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(types.count(), 2);
            QCOMPARE(types.itemText(0), QStringLiteral("Vocab Data (*.lwx)"));
            QCOMPARE(types.itemText(1), QStringLiteral("All files (*.*)"));
            QCOMPARE(dialog.defaultSuffix(), QStringLiteral("lwx"));
            QCOMPARE(dialog.directory().absolutePath(), pathOf(Place::WordLists));
        });
        m_main->choose("mnuSaveAs");
    }

    void saveAsStartsInTheFolderUsedLast()
    {
        QVERIFY(QDir().mkdir(m_main->path(QStringLiteral("school"))));
        const QString list = m_main->path(QStringLiteral("school/animals.lwx"));
        writeFile(list, listBytes(m_entries));
        openList(*m_main, list);
        m_main->answers.cancelFileDialog([this](QFileDialog &dialog) {
            QCOMPARE(dialog.directory().absolutePath(), m_main->path(QStringLiteral("school")));
        });
        m_main->choose("mnuSaveAs");
    }

    void aCancelledSaveAsChangesNothingAndSaysNothing()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, QStringLiteral("cow"));
        const OpenList before(*m_main);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
        QCOMPARE(readFile(m_path), listBytes(m_entries));
    }

    void saveAsGivesTheListItsNewNameWithoutAMessage()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.chooseFile(m_main->path(QStringLiteral("cows")));
        m_main->choose("mnuSaveAs");
        const QString cows = m_main->path(QStringLiteral("cows.lwx"));
        QCOMPARE(gFileName, cows);
        QCOMPARE(gFileTitle, QStringLiteral("cows.lwx"));
        QCOMPARE(gOpenedFile, cows);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + QStringLiteral("cows.lwx"));
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(readFile(cows), listBytes(withCow()));
        QCOMPARE(readFile(m_path), listBytes(m_entries));

        addEntry(*m_main, QStringLiteral("dog"));
        m_main->answers.expectMsgBox(cows + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QCOMPARE(readFile(cows), listBytes(withCow() + Entries{addedEntry(QStringLiteral("dog"))}));
    }

    void theFileOfBeforeIsReadAgainAfterSaveAs()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
        addEntry(*m_main, QStringLiteral("dog"));
        m_main->answers.expectMsgBox(m_path + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path),
                 listBytes(m_entries + Entries{addedEntry(QStringLiteral("dog"))}));
        QCOMPARE(readFile(m_other), listBytes(withCow()));
    }

    void theFileOfASaveAsIsTheOneThatIsOpen()
    {
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_other); // not read again
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), withCow());
    }

    void anEmptyListSavedUnderAFilesNameIsNotThatFile()
    {
        // Nothing is written, so that opening the file has to read it.
        m_main->answers.chooseFile(m_path);
        m_main->answers.answerOverwrite(QStringLiteral("animals.lwx"), QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        QCOMPARE(gFileName, m_path);
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
    }

    void theFileOfASaveIsTheOneThatIsOpen()
    {
        // The Save As of an empty list wrote no file, so no file was the open one.
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(gOpenedFile, QString());
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.expectMsgBox(m_other + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QCOMPARE(gOpenedFile, m_other);

        addEntry(*m_main, QStringLiteral("dog"));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_other); // not read again
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(),
                 (Entries{addedEntry(QStringLiteral("cow")), addedEntry(QStringLiteral("dog"))}));
    }

    void saveAsOffersTheListsOwnName_data()
    {
        QTest::addColumn<bool>("titled");
        QTest::newRow("titled") << true;
        QTest::newRow("untitled") << false;
    }

    void saveAsOffersTheListsOwnName()
    {
        QFETCH(bool, titled);
        if (titled)
            openList(*m_main, m_path);
        else
            m_main->fill(2);
        const auto expectOffer = [&] {
            m_main->answers.cancelFileDialog([titled](QFileDialog &dialog) {
                QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(),
                         titled ? QStringLiteral("animals.lwx") : QString());
            });
            m_main->choose("mnuSaveAs");
        };
        expectOffer();

        const QString text = m_main->path(QStringLiteral("words.txt"));
        m_main->answers.chooseFile(text);
        m_main->choose("mnuCreateTextFile");
        expectOffer();

        writeFile(m_other, listBytes(someEntries(1, QStringLiteral("imported"))));
        m_main->answers.chooseFile(m_other);
        m_main->answers.expectMsgBox(QStringLiteral("1 words imported"));
        m_main->choose("mnuImport");
        expectOffer();
    }

    void aCancelledSaveAsLeavesTheTextFilesNameOnOffer()
    {
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_main->path(QStringLiteral("words.txt")));
        m_main->choose("mnuCreateTextFile");
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(),
                     QStringLiteral("words.txt"));
        });
        m_main->choose("mnuCreateTextFile");
    }

    void saveAsOfAnEmptyListWritesNoFile()
    {
        gChanged = true;
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + QStringLiteral("other.lwx"));
        QCOMPARE(gFileName, m_other);
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!QFile::exists(m_other));
    }

    void saveAsAsksBeforeItReplacesAFile()
    {
        writeFile(m_other, "something else");
        openList(*m_main, m_path);
        const OpenList before(*m_main);
        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(QStringLiteral("other.lwx"), QMessageBox::No);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QCOMPARE(readFile(m_other), QByteArray("something else"));

        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(QStringLiteral("other.lwx"), QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        QCOMPARE(readFile(m_other), listBytes(m_entries));
    }

    void aSymbolicLinkStaysALink()
    {
        QVERIFY(QDir().mkdir(m_main->path(QStringLiteral("stick"))));
        const QString real = m_main->path(QStringLiteral("stick/real.lwx"));
        const QString link = m_main->path(QStringLiteral("link.lwx"));
        writeFile(real, listBytes(m_entries));
        QVERIFY(QFile::link(real, link));
        openList(*m_main, link);
        QCOMPARE(gFileTitle, QStringLiteral("link.lwx"));
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.expectMsgBox(link + QStringLiteral(" has been saved."));
        m_main->choose("mnuSave");
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(QFileInfo(link).symLinkTarget(), real);
        QVERIFY(!QFileInfo(real).isSymLink());
        QCOMPARE(readFile(real), listBytes(withCow()));
    }

    void lineBreaksAccentsAndBlanksComeBackThroughTheWindow()
    {
        m_main->click("cmdNewWord");
        // Letters beyond ASCII are put in as an input method does.
        m_main->control<QLineEdit>("txtWord").insert(QStringLiteral("  \u00E9t\u00E9 "));
        m_main->type("txtDefinition", QStringLiteral("summer"));
        Controls::press(Qt::Key_Return, Qt::ControlModifier);
        m_main->control<EntryTextBox>("txtDefinition")
            .insertPlainText(QStringLiteral("\u20AC 5 \u2013 \u00BF\u00DF?"));
        m_main->type("txtSentence", QString());
        m_main->control<EntryTextBox>("txtSentence")
            .insertPlainText(QStringLiteral("Un \u00E9t\u00E9 chaud."));
        Controls::press(Qt::Key_Return, Qt::ShiftModifier);
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");
        const QStringList entry = {QStringLiteral("  \u00E9t\u00E9 "),
                                   QStringLiteral("summer\r\n\u20AC 5 \u2013 \u00BF\u00DF?"),
                                   QStringLiteral("Un \u00E9t\u00E9 chaud.\r\n")};
        QCOMPARE(openEntries(), Entries{entry});
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        const QByteArray bytes = number16(1) + number16(6) + "  \xE9t\xE9 " + number16(17) +
                                 "summer\r\n\x80 5 \x96 \xBF\xDF?" + number16(15) +
                                 "Un \xE9t\xE9 "
                                 "chaud.\r\n";
        QCOMPARE(readFile(m_other), bytes);

        openList(*m_main, m_path);
        openList(*m_main, m_other);
        QCOMPARE(openEntries(), Entries{entry});
        m_main->clickCell(1, 1);
        QCOMPARE(m_main->text("txtWord"), entry.at(0));
        QCOMPARE(m_main->text("txtDefinition"), entry.at(1));
        QCOMPARE(m_main->text("txtSentence"), entry.at(2));
    }

    void theShortcutsSaveToo()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, QStringLiteral("cow"));
        m_main->answers.expectMsgBox(m_path + QStringLiteral(" has been saved."));
        pressShortcut(Qt::ControlModifier);
        QCOMPARE(readFile(m_path), listBytes(withCow()));
        m_main->answers.chooseFile(m_other);
        pressShortcut(Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(readFile(m_other), listBytes(withCow()));
    }

private:
    // A shortcut needs the active window, which a dialog has just been.
    void pressShortcut(Qt::KeyboardModifiers modifiers)
    {
        m_main->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_main->window()));
        QTest::keyClick(&m_main->window(), Qt::Key_S, modifiers);
    }

    [[nodiscard]] Entries withCow() const
    {
        return m_entries + Entries{addedEntry(QStringLiteral("cow"))};
    }

    const Entries m_entries = someEntries(5, QStringLiteral("animal"));
    QString m_path;
    QString m_other;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileSave_test>(argc, argv);
}

#include "frmMain_FileSave_test.moc"
