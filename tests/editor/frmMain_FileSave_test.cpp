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
using namespace Qt::StringLiterals;

class frmMain_FileSave_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkpath(pathOf(Place::WordLists)));
        m_path = m_main->path(u"animals.lwx"_s);
        m_other = m_main->path(u"other.lwx"_s);
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
        addEntry(*m_main, u"cow"_s);
        gSaved = false;
        m_main->answers.expectMsgBox(
            m_path + u" has been saved."_s, QMessageBox::Ok, [this](QMessageBox &box) {
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
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"animals.lwx"_s);
        QCOMPARE(openEntries(), withCow());
    }

    void saveOfAnUntitledListIsSaveAs()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.chooseFile(m_other, [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Save File As"_s);
        });
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_other), listBytes({addedEntry(u"cow"_s)}));
        QCOMPARE(gFileName, m_other);
        QVERIFY(gSaved);
    }

    void saveOfAnEmptyListSaysSavedButLeavesTheFile()
    {
        writeFile(m_path, listBytes(someEntries(1, u"animal"_s)));
        openList(*m_main, m_path);
        m_main->clickCell(1, 1);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 1' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(gChanged);
        bool changedWhileTold = false;
        m_main->answers.useMsgBox(m_path + u" has been saved."_s, [&](QMessageBox &box) {
            changedWhileTold = gChanged;
            QTest::keyClick(&box, Qt::Key_Return);
        });
        m_main->choose("mnuSave");
        QVERIFY(changedWhileTold);
        QCOMPARE(readFile(m_path), listBytes(someEntries(1, u"animal"_s)));
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
    }

    void aDeletedEntryLeavesItsSlotInTheFile()
    {
        openList(*m_main, m_path);
        m_main->clickCell(5, 1);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 5' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->choose("mnuSave");
        QByteArray expected = listBytes(m_entries);
        expected.replace(0, 2, number16(4));
        QCOMPARE(readFile(m_path), expected);
    }

    void theTailOfAnOlderLongerFileStays()
    {
        const Entries longer = someEntries(10, u"much longer word"_s);
        writeFile(m_other, listBytes(longer));
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(u"other.lwx"_s, QMessageBox::Yes);
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

        addEntry(*m_main, u"cow"_s);
        QVERIFY(save.isEnabled());
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
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
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 2' ?"_s,
                                     QMessageBox::No);
        m_main->click("cmdDelete");
        QVERIFY(!save.isEnabled());
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 2' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(save.isEnabled());

        const QString third = m_main->path(u"third.lwx"_s);
        writeFile(third, listBytes(m_entries));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(third);
        m_main->choose("mnuOpen");
        QVERIFY(!save.isEnabled());
    }

    void theSaveAsDialogIsAsDesigned()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Save File As"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            const auto &types = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(types.count(), 2);
            QCOMPARE(types.itemText(0), u"Vocab Data (*.lwx)"_s);
            QCOMPARE(types.itemText(1), u"All files (*.*)"_s);
            QCOMPARE(dialog.defaultSuffix(), u"lwx"_s);
            QCOMPARE(dialog.directory().absolutePath(), pathOf(Place::WordLists));
        });
        m_main->choose("mnuSaveAs");
    }

    void saveAsStartsInTheFolderUsedLast()
    {
        QVERIFY(QDir().mkdir(m_main->path(u"school"_s)));
        const QString list = m_main->path(u"school/animals.lwx"_s);
        writeFile(list, listBytes(m_entries));
        openList(*m_main, list);
        m_main->answers.cancelFileDialog([this](QFileDialog &dialog) {
            QCOMPARE(dialog.directory().absolutePath(), m_main->path(u"school"_s));
        });
        m_main->choose("mnuSaveAs");
    }

    void aCancelledSaveAsChangesNothingAndSaysNothing()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, u"cow"_s);
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
        addEntry(*m_main, u"cow"_s);
        m_main->answers.chooseFile(m_main->path(u"cows"_s));
        m_main->choose("mnuSaveAs");
        const QString cows = m_main->path(u"cows.lwx"_s);
        QCOMPARE(gFileName, cows);
        QCOMPARE(gFileTitle, u"cows.lwx"_s);
        QCOMPARE(gOpenedFile, cows);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"cows.lwx"_s);
        QVERIFY(!gChanged);
        QVERIFY(gSaved);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(readFile(cows), listBytes(withCow()));
        QCOMPARE(readFile(m_path), listBytes(m_entries));

        addEntry(*m_main, u"dog"_s);
        m_main->answers.expectMsgBox(cows + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(cows), listBytes(withCow() + Entries{addedEntry(u"dog"_s)}));
    }

    void afterSaveAsTheFormerFileIsReadAgain()
    {
        openList(*m_main, m_path);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
        addEntry(*m_main, u"dog"_s);
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_path), listBytes(m_entries + Entries{addedEntry(u"dog"_s)}));
        QCOMPARE(readFile(m_other), listBytes(withCow()));
    }

    void theFileOfASaveAsIsTheOneThatIsOpen()
    {
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_other); // not read again
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), withCow());
    }

    void anEmptyListSavedUnderAFilesNameIsNotThatFile()
    {
        // No file was written, so opening that name must read the file.
        m_main->answers.chooseFile(m_path);
        m_main->answers.answerOverwrite(u"animals.lwx"_s, QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        QCOMPARE(gFileName, m_path);
        openList(*m_main, m_path);
        QCOMPARE(openEntries(), m_entries);
    }

    void theFileOfASaveIsTheOneThatIsOpen()
    {
        // Save As of an empty list writes no file, so no file is the open one.
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(gOpenedFile, QString());
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(m_other + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(gOpenedFile, m_other);

        addEntry(*m_main, u"dog"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_other); // not read again
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), (Entries{addedEntry(u"cow"_s), addedEntry(u"dog"_s)}));
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
        const QString name = titled ? u"animals.lwx"_s : u"words.lwx"_s;
        expectSaveAsToOffer(name);

        const QString text = m_main->path(u"words.txt"_s);
        m_main->answers.chooseFile(text);
        m_main->choose("mnuCreateTextFile");
        expectSaveAsToOffer(name);

        writeFile(m_other, listBytes(someEntries(1, u"imported"_s)));
        m_main->answers.chooseFile(m_other);
        m_main->answers.expectMsgBox(u"1 words imported"_s);
        m_main->choose("mnuImport");
        expectSaveAsToOffer(name);
    }

    void saveAsOffersTheNameThatTheListHasNow()
    {
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        expectSaveAsToOffer(u"other.lwx"_s);

        // A cancelled Open takes the path away; the caption keeps the name.
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        expectSaveAsToOffer(u"other.lwx"_s);

        openList(*m_main, m_path);
        expectSaveAsToOffer(u"animals.lwx"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        expectSaveAsToOffer(u"words.lwx"_s);
    }

    void aCancelledSaveAsLeavesTheTextFilesNameOffered()
    {
        openList(*m_main, m_path);
        m_main->answers.chooseFile(m_main->path(u"words.txt"_s));
        m_main->choose("mnuCreateTextFile");
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), u"words.txt"_s);
        });
        m_main->choose("mnuCreateTextFile");
    }

    void saveAsOfAnEmptyListWritesNoFile()
    {
        gChanged = true;
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuSaveAs");
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"other.lwx"_s);
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
        m_main->answers.answerOverwrite(u"other.lwx"_s, QMessageBox::No);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        QVERIFY(OpenList(*m_main) == before);
        QCOMPARE(readFile(m_other), "something else"_ba);

        m_main->answers.chooseFile(m_other);
        m_main->answers.answerOverwrite(u"other.lwx"_s, QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        QCOMPARE(readFile(m_other), listBytes(m_entries));
    }

    void aSymbolicLinkStaysALink()
    {
        QVERIFY(QDir().mkdir(m_main->path(u"stick"_s)));
        const QString real = m_main->path(u"stick/real.lwx"_s);
        const QString link = m_main->path(u"link.lwx"_s);
        writeFile(real, listBytes(m_entries));
        QVERIFY(QFile::link(real, link));
        openList(*m_main, link);
        QCOMPARE(gFileTitle, u"link.lwx"_s);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(link + u" has been saved."_s);
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
        m_main->control<QLineEdit>("txtWord").insert(u"  \u00E9t\u00E9 "_s);
        m_main->type("txtDefinition", u"summer"_s);
        Controls::press(Qt::Key_Return, Qt::ControlModifier);
        m_main->control<EntryTextBox>("txtDefinition")
            .insertPlainText(u"\u20AC 5 \u2013 \u00BF\u00DF?"_s);
        m_main->type("txtSentence", QString());
        m_main->control<EntryTextBox>("txtSentence").insertPlainText(u"Un \u00E9t\u00E9 chaud."_s);
        Controls::press(Qt::Key_Return, Qt::ShiftModifier);
        m_main->click("cmdAdd");
        m_main->click("cmdAbort");
        const QStringList entry = {u"  \u00E9t\u00E9 "_s,
                                   u"summer\r\n\u20AC 5 \u2013 \u00BF\u00DF?"_s,
                                   u"Un \u00E9t\u00E9 chaud.\r\n"_s};
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
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(m_path + u" has been saved."_s);
        pressShortcut(Qt::ControlModifier);
        QCOMPARE(readFile(m_path), listBytes(withCow()));
        m_main->answers.chooseFile(m_other);
        pressShortcut(Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(readFile(m_other), listBytes(withCow()));
    }

private:
    void expectSaveAsToOffer(const QString &name)
    {
        m_main->answers.cancelFileDialog([name](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), name);
        });
        m_main->choose("mnuSaveAs");
    }

    // A shortcut needs the active window, which a dialog has just been.
    void pressShortcut(Qt::KeyboardModifiers modifiers)
    {
        m_main->window().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&m_main->window()));
        QTest::keyClick(&m_main->window(), Qt::Key_S, modifiers);
    }

    [[nodiscard]] Entries withCow() const { return m_entries + Entries{addedEntry(u"cow"_s)}; }

    const Entries m_entries = someEntries(5, u"animal"_s);
    QString m_path;
    QString m_other;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileSave_test>(argc, argv);
}

#include "frmMain_FileSave_test.moc"
