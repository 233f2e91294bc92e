// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OpenList.h"
#include "platform/Paths.h"
#include "support/FormTest.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_FileOpen_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkpath(pathOf(Place::WordLists)));
        m_animals = m_main->path(u"animals.lwx"_s);
        m_plants = m_main->path(u"plants.lwx"_s);
        writeFile(m_animals, listBytes(m_animalEntries));
        writeFile(m_plants, listBytes(m_plantEntries));
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void cancelKeepsTheLesson()
    {
        openList(*m_main, m_animals);
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Cancel, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
        });
        m_main->choose("mnuOpen");
        QVERIFY(OpenList(*m_main) == before);
    }

    void theDialogIsAsDesigned()
    {
        const auto inspect = [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Open File"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            const auto &types = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(types.count(), 2);
            QCOMPARE(types.itemText(0), u"Vocab Data (*.lwx)"_s);
            QCOMPARE(types.itemText(1), u"All files (*.*)"_s);
            QCOMPARE(dialog.defaultSuffix(), QString());
            QCOMPARE(dialog.directory().absolutePath(), pathOf(Place::WordLists));
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), QString());
        };
        // The second time another folder was used and another name chosen in between.
        for (int i = 0; i < 2; ++i) {
            m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
            m_main->answers.chooseFile(m_animals, inspect);
            m_main->choose("mnuOpen");
        }
    }

    void aNameWithoutAnExtensionIsTakenAsItIs()
    {
        const QString bare = m_main->path(u"bare"_s);
        writeFile(bare, listBytes(m_plantEntries));
        openList(*m_main, bare);
        QCOMPARE(gFileName, bare);
        QCOMPARE(openEntries(), m_plantEntries);
    }

    void theChosenFileIsShownFromItsFirstEntry_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {1, 5, 22, 23, 24, 30, 400})
            QTest::addRow("%d entries", count) << count;
    }

    void theChosenFileIsShownFromItsFirstEntry()
    {
        QFETCH(int, count);
        m_main->fill(100);
        m_main->bar().setValue(70);
        m_main->clickCell(2, 2);
        const Entries entries = someEntries(count, u"word"_s);
        writeFile(m_animals, listBytes(entries));
        openList(*m_main, m_animals);

        QCOMPARE(openEntries(), entries);
        QCOMPARE(gFileName, m_animals);
        QCOMPARE(gOpenedFile, m_animals);
        QCOMPARE(gFileTitle, u"animals.lwx"_s);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"animals.lwx"_s);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        QVERIFY(!gChanged);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(gLastItem.toInt(), std::min(24, count));
        QCOMPARE(m_main->bar().value(), 1);
        QCOMPARE(m_main->bar().minimum(), 0);
        QCOMPARE(m_main->bar().maximum(), count + 1);
        QCOMPARE(m_main->markedRows(), QList<int>());
        for (int row = 1; row <= 24; ++row)
            QCOMPARE(m_main->row(row).mid(1),
                     row <= count ? entries.at(row - 1) : QStringList(3, QString()));
        checkIdle();
    }

    void noGivesTheChangesUp()
    {
        openList(*m_main, m_animals);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No, [](QMessageBox &box) {
            QCOMPARE(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        });
        m_main->answers.chooseFile(m_plants);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), m_plantEntries);
        QVERIFY(!gChanged);
        QVERIFY(!m_main->action("mnuSave").isEnabled());
        QCOMPARE(readFile(m_animals), listBytes(m_animalEntries));
    }

    void escDoesNothingAtTheQuestionAboutSaving()
    {
        openList(*m_main, m_animals);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes, [](QMessageBox &box) {
            QTest::keyClick(box.defaultButton(), Qt::Key_Escape);
            QVERIFY(box.isVisible());
            QVERIFY(!box.close());
        });
        m_main->answers.expectMsgBox(m_animals + u" has been saved."_s);
        m_main->answers.chooseFile(m_plants);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), m_plantEntries);
    }

    void yesSavesFirst()
    {
        openList(*m_main, m_animals);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.expectMsgBox(m_animals + u" has been saved."_s);
        m_main->answers.chooseFile(m_plants);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), m_plantEntries);
        QCOMPARE(readFile(m_animals), listBytes(m_animalEntries + Entries{addedEntry(u"cow"_s)}));
    }

    void yesForAnUntitledListAsksForItsNameFirst()
    {
        addEntry(*m_main, u"cow"_s);
        const QString named = m_main->path(u"named.lwx"_s);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.chooseFile(named);
        m_main->answers.chooseFile(m_plants);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), m_plantEntries);
        QCOMPARE(readFile(named), listBytes({addedEntry(u"cow"_s)}));
    }

    void aCancelledSaveAsOpensNothingAlsoAfterAnEarlierSave()
    {
        addEntry(*m_main, u"cow"_s);
        gSaved = true; // as the save of an earlier list left it
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        QVERIFY(OpenList(*m_main).entries == before.entries);
        QCOMPARE(gFileName, QString());
        QVERIFY(gChanged);
        QVERIFY(!gSaved);
    }

    void aSaveThatFailsOpensNothing()
    {
        openList(*m_main, m_animals);
        addEntry(*m_main, u"cow"_s);
        QVERIFY(QFile::remove(m_animals));
        QVERIFY(QDir().mkdir(m_animals));
        const OpenList before(*m_main);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Yes);
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(u"Run-time error '75':\n\n"_s), qPrintable(box.text()));
        });
        m_main->choose("mnuOpen");
        QVERIFY(OpenList(*m_main) == before);
    }

    void theFileThatIsOpenIsNotReadAgain()
    {
        openList(*m_main, m_animals);
        writeFile(m_animals, listBytes(m_plantEntries));
        openList(*m_main, m_animals);
        QCOMPARE(openEntries(), m_animalEntries);
        QCOMPARE(gFileName, m_animals);

        addEntry(*m_main, u"cow"_s);
        const Entries changed = openEntries();
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_animals);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), changed);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        checkIdle();
    }

    void aCancelledDialogLeavesTheListUntitledForTheNextSave()
    {
        openList(*m_main, m_animals);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), m_animalEntries);
        QCOMPARE(gFileName, QString());
        QCOMPARE(gFileTitle, QString());
        QCOMPARE(gOpenedFile, m_animals);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"animals.lwx"_s);
        checkIdle();

        addEntry(*m_main, u"cow"_s);
        const QString other = m_main->path(u"other.lwx"_s);
        m_main->answers.chooseFile(
            other, [](QFileDialog &dialog) { QCOMPARE(dialog.windowTitle(), u"Save File As"_s); });
        m_main->choose("mnuSave");
        QCOMPARE(readFile(m_animals), listBytes(m_animalEntries));
        QCOMPARE(readFile(other), listBytes(m_animalEntries + Entries{addedEntry(u"cow"_s)}));
    }

    void afterACancelledDialogTheOpenFileGetsItsNameBackUnread()
    {
        openList(*m_main, m_animals);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        writeFile(m_animals, listBytes(m_plantEntries));
        openList(*m_main, m_animals);
        QCOMPARE(gFileName, m_animals);
        QCOMPARE(gFileTitle, u"animals.lwx"_s);
        QCOMPARE(openEntries(), m_animalEntries);
    }

    void anEmptyFileIsAnEmptyList_data()
    {
        QTest::addColumn<bool>("exists");
        QTest::newRow("no bytes") << true;
        QTest::newRow("a name that does not exist") << false;
    }

    void anEmptyFileIsAnEmptyList()
    {
        QFETCH(bool, exists);
        openList(*m_main, m_animals);
        const QString path = m_main->path(u"empty.lwx"_s);
        if (exists)
            writeFile(path, {});
        openList(*m_main, path);
        QCOMPARE(gVocabList().NumWords().toInt(), 0);
        QCOMPARE(gFileName, path);
        QCOMPARE(gOpenedFile, path);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"empty.lwx"_s);
        QCOMPARE(readFile(path), QByteArray());
        QCOMPARE(m_main->row(1).mid(1), QStringList(3, QString()));
        QCOMPARE(m_main->bar().maximum(), 1);
        checkIdle();

        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(path + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(path), listBytes({addedEntry(u"cow"_s)}));
    }

    void openEndsTheEditingOfAnEntry()
    {
        openList(*m_main, m_animals);
        m_main->clickCell(2, 1);
        openList(*m_main, m_plants);
        checkIdle();
        QCOMPARE(m_main->markedRows(), QList<int>());

        m_main->click("cmdNewWord");
        m_main->type("txtWord", u"half a wo"_s);
        openList(*m_main, m_animals);
        checkIdle();
        QCOMPARE(openEntries(), m_animalEntries);
    }

    void theShortcutOpensToo()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.chooseFile(m_plants);
        QTest::keyClick(&m_main->window(), Qt::Key_O, Qt::ControlModifier);
        QCOMPARE(openEntries(), m_plantEntries);
    }

private:
    void checkIdle()
    {
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"}) {
            QVERIFY(!m_main->control<QWidget>(box).isEnabled());
            QCOMPARE(m_main->text(box), QString());
        }
        QVERIFY(m_main->control<QPushButton>("cmdNewWord").isVisible());
        QVERIFY(m_main->control<QPushButton>("cmdNewWord").isEnabled());
        QVERIFY(m_main->control<QPushButton>("cmdSearch").isEnabled());
        QVERIFY(!m_main->control<QPushButton>("cmdAdd").isVisible());
        QVERIFY(!m_main->control<QPushButton>("cmdAbort").isEnabled());
        QVERIFY(!m_main->control<QPushButton>("cmdDelete").isEnabled());
    }

    const Entries m_animalEntries = someEntries(5, u"animal"_s);
    const Entries m_plantEntries = someEntries(3, u"plant"_s);
    QString m_animals;
    QString m_plants;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_FileOpen_test>(argc, argv);
}

#include "frmMain_FileOpen_test.moc"
