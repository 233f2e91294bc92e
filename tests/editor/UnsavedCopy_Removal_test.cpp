// SPDX-License-Identifier: GPL-3.0-or-later
// When the copy of an unsaved list is removed and when it stays, and that it opens like any list.
#include "editor/UnsavedCopies.h"
#include "support/FormTest.h"

#include <QAbstractItemModel>
#include <QFileDialog>
#include <QLineEdit>
#include <QTreeView>

using namespace Module1;
using namespace UnsavedCopies;
using namespace Qt::StringLiterals;

namespace {

const QString Untitled = u"Untitled (not saved).lwx"_s;
const QString Animals = u"animals (not saved).lwx"_s;
const QString ExitQuestion = u"Your changes have not been saved.  Do you want to save them?"_s;

} // namespace

class UnsavedCopy_Removal_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_list = m_main->path(u"animals.lwx"_s);
        m_other = m_main->path(u"other.lwx"_s);
        writeFile(m_list, listBytes(m_entries));
        writeFile(m_other, listBytes(someEntries(2, u"other"_s)));
        openList(*m_main, m_list);
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Animals));
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void saveRemovesIt()
    {
        m_main->answers.expectMsgBox(m_list + u" has been saved."_s, QMessageBox::Ok,
                                     [](QMessageBox &) { QCOMPARE(names(), QStringList()); });
        m_main->choose("mnuSave");
        QVERIFY(!isDue(*m_main));
        addEntry(*m_main, u"pig"_s);
        QVERIFY(comes(Animals));
    }

    void saveRightAfterAChangeLeavesNothingToWrite()
    {
        addEntry(*m_main, u"pig"_s);
        QVERIFY(isDue(*m_main));
        m_main->answers.expectMsgBox(m_list + u" has been saved."_s);
        m_main->choose("mnuSave");
        QVERIFY(!isDue(*m_main));
        QCOMPARE(names(), QStringList());
    }

    void saveOfAnEmptiedListRemovesIt()
    {
        while (gVocabList().NumWords() > 0) {
            gVocabList().CurrentWord(1);
            gVocabList().DeleteVocab();
        }
        QVERIFY(comes(Animals));
        m_main->answers.expectMsgBox(m_list + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(names(), QStringList());
    }

    void saveAsRemovesIt()
    {
        m_main->answers.chooseFile(m_main->path(u"third.lwx"_s));
        m_main->choose("mnuSaveAs");
        QCOMPARE(names(), QStringList());
        addEntry(*m_main, u"pig"_s);
        QVERIFY(comes(u"third (not saved).lwx"_s));
    }

    void aCancelledOrFailedSaveKeepsIt()
    {
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuSaveAs");
        QVERIFY(comes(Animals));
        m_main->answers.chooseFile(m_main->path(u"nowhere/list.lwx"_s));
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY(box.text().startsWith(u"Run-time error '76'"_s));
        });
        m_main->choose("mnuSaveAs");
        QVERIFY(comes(Animals));
    }

    void aNewListRemovesIt_data() { addAnswers(); }
    void aNewListRemovesIt()
    {
        endLesson();
        m_main->choose("mnuNew");
        QCOMPARE(names(), QStringList());
        QVERIFY(!isDue(*m_main));
    }

    void anOpenedListRemovesIt_data() { addAnswers(); }
    void anOpenedListRemovesIt()
    {
        endLesson();
        m_main->answers.chooseFile(m_other);
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), someEntries(2, u"other"_s));
        QCOMPARE(names(), QStringList());
        QVERIFY(!isDue(*m_main));
    }

    void aListThatIsNotReplacedKeepsIt()
    {
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Cancel);
        m_main->choose("mnuNew");
        QVERIFY(comes(Animals));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::Cancel);
        m_main->choose("mnuNew");
        QVERIFY(comes(Animals));
        // The list that is open is not read again.
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(m_list);
        m_main->choose("mnuOpen");
        QVERIFY(comes(Animals));
        QVERIFY(gChanged);
    }

    void exitWithoutSavingRemovesIt()
    {
        addEntry(*m_main, u"pig"_s);
        m_main->answers.expectMsgBox(ExitQuestion, QMessageBox::No);
        m_main->choose("mnuExit");
        QCOMPARE(names(), QStringList());
        QVERIFY(!isDue(*m_main));
    }

    void exitWithSavingRemovesIt()
    {
        m_main->answers.expectMsgBox(ExitQuestion, QMessageBox::Yes);
        m_main->choose("mnuExit");
        QCOMPARE(readFile(m_list), listBytes(openEntries()));
        QCOMPARE(names(), QStringList());
    }

    void exitWithACancelledSaveAsKeepsIt()
    {
        gFileName.clear();
        m_main->answers.expectMsgBox(ExitQuestion, QMessageBox::Yes);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuExit");
        QVERIFY(!m_main->window().isVisible());
        QVERIFY(comes(Animals));
    }

    // After an export the program ends without a question, though the list was not saved.
    void anExportKeepsIt()
    {
        exportAll();
        QVERIFY(comes(Animals));
        m_main->choose("mnuExit");
        QVERIFY(!m_main->window().isVisible());
        QVERIFY(comes(Animals));
    }

    // Then neither New nor Open asks about saving.
    void aNewListAfterAnExportKeepsIt()
    {
        const QByteArray copy = readFile(path(Animals));
        exportAll();
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        keepsAsAnEarlierRuns(copy);
    }

    void anOpenedListAfterAnExportKeepsIt()
    {
        const QByteArray copy = readFile(path(Animals));
        exportAll();
        openList(*m_main, m_other);
        QCOMPARE(gVocabList().NumWords(), 8);
        keepsAsAnEarlierRuns(copy);
    }

    void aNewListAfterAnImportOfNothingKeepsIt()
    {
        const QByteArray copy = readFile(path(Animals));
        const QString empty = m_main->path(u"empty.lwx"_s);
        writeFile(empty, listBytes({}));
        m_main->answers.chooseFile(empty);
        m_main->answers.expectMsgBox(u"0 words imported"_s);
        m_main->choose("mnuImport");
        QVERIFY(!gChanged);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->choose("mnuNew");
        keepsAsAnEarlierRuns(copy);
    }

    void aSaveAfterAnExportRemovesIt()
    {
        exportAll();
        m_main->answers.chooseFile(m_main->path(u"third.lwx"_s));
        m_main->choose("mnuSaveAs");
        QCOMPARE(names(), QStringList());
    }

    void aCopyOfAnEarlierRunIsOpenedEditedAndSavedLikeAnyList()
    {
        const QString earlier = u"plants (not saved).lwx"_s;
        writeFile(path(earlier), listBytes(someEntries(3, u"plant"_s)));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(earlier, [&earlier](QFileDialog &dialog) {
            const QAbstractItemModel &files =
                *Controls::find<QTreeView>(dialog, "treeView").model();
            QTRY_VERIFY(!files
                             .match(files.index(0, 0), Qt::DisplayRole, earlier, 1,
                                    Qt::MatchExactly | Qt::MatchRecursive)
                             .isEmpty());
        });
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), someEntries(3, u"plant"_s));
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + earlier);
        QCOMPARE(names(), QStringList{earlier});

        addEntry(*m_main, u"oak"_s);
        const QString copyOfCopy = u"plants (not saved) (not saved).lwx"_s;
        QTRY_COMPARE_WITH_TIMEOUT(names(), (QStringList{copyOfCopy, earlier}), 1000);
        QCOMPARE(readFile(path(copyOfCopy)), listBytes(openEntries()));
        QCOMPARE(readFile(path(earlier)), listBytes(someEntries(3, u"plant"_s)));
        m_main->answers.expectMsgBox(path(earlier) + u" has been saved."_s);
        m_main->choose("mnuSave");
        QCOMPARE(names(), QStringList{earlier});
        QCOMPARE(readFile(path(earlier)), listBytes(openEntries()));
    }

    void aCopyOfThisRunStaysOnceItIsOpened()
    {
        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.chooseFile(path(Animals));
        m_main->choose("mnuOpen");
        QCOMPARE(openEntries(), entries);
        QCOMPARE(gOpenedFile, path(Animals));
        QVERIFY(comes(Animals));
        // From now on the program does not remove it.
        addEntry(*m_main, u"pig"_s);
        QTRY_COMPARE_WITH_TIMEOUT(
            names(), (QStringList{u"animals (not saved) (not saved).lwx"_s, Animals}), 1000);
        QCOMPARE(readFile(path(Animals)), listBytes(entries));
    }

    void aListSavedUnderItsCopysNameStays()
    {
        m_main->answers.chooseFile(path(Animals));
        m_main->answers.answerOverwrite(Animals, QMessageBox::Yes);
        m_main->choose("mnuSaveAs");
        QVERIFY(comes(Animals));
        m_main->choose("mnuExit");
        QVERIFY(comes(Animals));
    }

private:
    static void addAnswers()
    {
        QTest::addColumn<QMessageBox::StandardButton>("save");
        QTest::newRow("not saved") << QMessageBox::No;
        QTest::newRow("saved") << QMessageBox::Yes;
    }

    // Clears gChanged.
    void exportAll()
    {
        m_main->answers.useForm("dlgExport", [this](QDialog &form) {
            m_main->answers.chooseFile(m_other);
            Controls::click(Controls::find<QPushButton>(form, "cmdBrowse"));
            m_main->answers.expectMsgBox(u"6 words has been added to "_s + m_other);
            Controls::click(Controls::find<QPushButton>(form, "cmdOk"));
        });
        m_main->choose("mnuExport");
        QVERIFY(!gChanged);
    }

    // The list that replaced the old one has a copy of its own.
    void keepsAsAnEarlierRuns(const QByteArray &copy)
    {
        QCOMPARE(names(), QStringList{Animals});
        addEntry(*m_main, u"pig"_s);
        QVERIFY(settled(*m_main));
        QCOMPARE(names().size(), 2);
        QCOMPARE(readFile(path(Animals)), copy);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        QCOMPARE(names(), QStringList{Animals});
    }

    // Answers the questions of the next New or Open as the row says.
    void endLesson()
    {
        QFETCH(QMessageBox::StandardButton, save);
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, save);
        if (save == QMessageBox::Yes)
            m_main->answers.expectMsgBox(m_list + u" has been saved."_s);
    }

    const Entries m_entries = someEntries(5, u"animal"_s);
    std::unique_ptr<MainWindow> m_main;
    QString m_list;
    QString m_other;
};

int main(int argc, char *argv[])
{
    return runFormTest<UnsavedCopy_Removal_test>(argc, argv);
}

#include "UnsavedCopy_Removal_test.moc"
