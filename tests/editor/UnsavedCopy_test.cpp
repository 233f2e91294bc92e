// SPDX-License-Identifier: GPL-3.0-or-later
// When the copy of an unsaved list is written, and under which name.
#include "editor/ImportCommand.h"
#include "editor/UnsavedCopies.h"
#include "runtime/ChildProcess.h"
#include "support/SmallFiles.h"
#include "transfer/Import.h"

#include <sys/stat.h>

using namespace Module1;
using namespace UnsavedCopies;
using namespace Qt::StringLiterals;

namespace {

// While the object exists, permission bits hold for root, too.
class WithoutPrivileges
{
public:
    WithoutPrivileges()
    {
        syscall(SYS_capget, &m_header, m_before);
        __user_cap_data_struct none[2]{m_before[0], m_before[1]};
        none[0].effective = none[1].effective = 0;
        syscall(SYS_capset, &m_header, none);
    }
    ~WithoutPrivileges() { syscall(SYS_capset, &m_header, m_before); }
    Q_DISABLE_COPY_MOVE(WithoutPrivileges)

private:
    __user_cap_header_struct m_header{_LINUX_CAPABILITY_VERSION_3, 0};
    __user_cap_data_struct m_before[2]{};
};

bool setMode(const QString &folder, mode_t mode)
{
    return chmod(QFile::encodeName(folder).constData(), mode) == 0;
}

const QString Untitled = u"Untitled (not saved).lwx"_s;
const QString Animals = u"animals (not saved).lwx"_s;

} // namespace

class UnsavedCopy_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_command = std::make_unique<ImportCommand>();
        m_main = &m_command->main;
        m_list = m_main->path(u"animals.lwx"_s);
        writeFile(m_list, listBytes(m_entries));
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_command.reset();
    }

    void everyChangeIsInTheCopyWithinASecond()
    {
        openList(*m_main, m_list);
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Animals));
        QCOMPARE(openEntries().size(), 6);

        m_main->clickCell(2, 2);
        m_main->type("txtSentence", u"Other words."_s);
        m_main->click("cmdAdd"); // Update
        QVERIFY(comes(Animals));
        QCOMPARE(openEntries().at(1).at(2), u"Other words."_s);

        m_main->clickCell(1, 1);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 1' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(comes(Animals));
        QCOMPARE(openEntries().size(), 5);
        QCOMPARE(readFile(m_list), listBytes(m_entries));
    }

    void nothingHappensWhileNothingChanges()
    {
        QVERIFY(!isDue(*m_main));
        openList(*m_main, m_list);
        m_main->clickCell(2, 2);
        m_main->type("txtSentence", u"Typed, but no entry yet."_s);
        m_main->click("cmdAbort");
        m_main->click("cmdSearch");
        m_main->type("txtWord", u"animal 3"_s);
        m_main->click("cmdSearch");
        QVERIFY(!isDue(*m_main));
        QCOMPARE(names(), QStringList());

        m_main->click("cmdAbort");
        addEntry(*m_main, u"cow"_s);
        QVERIFY(isDue(*m_main));
        QCOMPARE(names(), QStringList()); // the handler itself does not write
        QVERIFY(comes(Animals));
        QVERIFY(!isDue(*m_main));
    }

    void theCopyIsNamedAfterTheList_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("copy");
        QTest::newRow("untitled") << QString() << Untitled;
        QTest::newRow("list") << u"animals.lwx"_s << Animals;
        QTest::newRow("capitals") << u"ANIMALS.LWX"_s << u"ANIMALS (not saved).lwx"_s;
        QTest::newRow("another ending") << u"animals.txt"_s << u"animals.txt (not saved).lwx"_s;
        QTest::newRow("long") << QString(250, u'a') + u".lwx"_s
                              << QString(235, u'a') + u" (not saved).lwx"_s;
        // A character of two code units is not cut in the middle.
        QTest::newRow("long, in pairs")
            << u"😀"_s.repeated(62) + u".lwx"_s << u"😀"_s.repeated(58) + u" (not saved).lwx"_s;
        QTest::newRow("place markers") << u"%1 %2.lwx"_s << u"%1 %2 (not saved).lwx"_s;
    }

    void theCopyIsNamedAfterTheList()
    {
        QFETCH(QString, file);
        QFETCH(QString, copy);
        if (!file.isEmpty()) {
            writeFile(m_main->path(file), listBytes(m_entries));
            openList(*m_main, m_main->path(file));
        }
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(copy));
    }

    void whatLiesThereAlreadyIsLeftAlone()
    {
        writeFile(path(Untitled), "left by an earlier run");
        QVERIFY(QDir().mkdir(path(u"Untitled (not saved) 2.lwx"_s)));
        QVERIFY(QFile::link(u"nowhere"_s, path(u"Untitled (not saved) 3.lwx"_s)));
        const QStringList before = names();
        const QString next = u"Untitled (not saved) 4.lwx"_s;
        for (const QString &word : {u"cow"_s, u"pig"_s}) {
            addEntry(*m_main, word);
            QTRY_VERIFY_WITH_TIMEOUT(QFile::exists(path(next)), 1000);
            QTRY_COMPARE_WITH_TIMEOUT(readFile(path(next)), listBytes(openEntries()), 1000);
            QCOMPARE(names().size(), before.size() + 1);
        }
        QCOMPARE(readFile(path(Untitled)), "left by an earlier run");
        QCOMPARE(QFile::symLinkTarget(path(u"Untitled (not saved) 3.lwx"_s)), path(u"nowhere"_s));

        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->choose("mnuNew");
        QCOMPARE(names(), before);
    }

    void aFileThatWasPutInTheCopysPlaceIsLeftAlone()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
        QVERIFY(QFile::remove(path(Untitled)));
        addEntry(*m_main, u"pig"_s); // removed: the name is free again
        QVERIFY(comes(Untitled));

        QVERIFY(QFile::remove(path(Untitled)));
        writeFile(path(Untitled), "the person's own");
        addEntry(*m_main, u"hen"_s);
        const QString next = u"Untitled (not saved) 2.lwx"_s;
        QTRY_COMPARE_WITH_TIMEOUT(names(), (QStringList{next, Untitled}), 1000);
        QCOMPARE(readFile(path(next)), listBytes(openEntries()));
        QCOMPARE(readFile(path(Untitled)), "the person's own");
    }

    void aListWithAnotherTitleHasOneCopyUnderThat()
    {
        openList(*m_main, m_list);
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Animals));
        // A list without a file has no title.
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.expectMsgBox(SaveChanges, QMessageBox::No);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        QVERIFY(comes(Animals));
        addEntry(*m_main, u"pig"_s);
        QVERIFY(comes(Untitled));
    }

    void theCopyOfAnEmptiedListHoldsNoDeletedEntry()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
        m_main->clickCell(1, 1);
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'cow' ?"_s,
                                     QMessageBox::Yes);
        m_main->click("cmdDelete");
        QVERIFY(comes(Untitled));
        QCOMPARE(readFile(path(Untitled)), QByteArray(2, '\0'));
    }

    void aFolderThatIsMissingIsMade()
    {
        QVERIFY(QDir().rmdir(pathOf(Place::WordLists)));
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
    }

    void aFolderThatAdmitsNoFileIsTriedAgainAtTheNextChange()
    {
        {
            const WithoutPrivileges ordinaryPerson;
            QVERIFY(setMode(pathOf(Place::WordLists), 0555));
            addEntry(*m_main, u"cow"_s);
            QVERIFY(settled(*m_main));
            QCOMPARE(names(), QStringList());
            QVERIFY(setMode(pathOf(Place::WordLists), 0755));
        }
        addEntry(*m_main, u"pig"_s);
        QVERIFY(comes(Untitled));
    }

    void aCopyThatDoesNotFitLeavesTheOlderOneWhole()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
        const QByteArray before = readFile(path(Untitled));
        {
            const SmallFiles small(static_cast<rlim_t>(before.size()));
            addEntry(*m_main, u"pig"_s);
            QVERIFY(settled(*m_main));
        }
        QCOMPARE(names(), QStringList{Untitled});
        QCOMPARE(readFile(path(Untitled)), before);
        addEntry(*m_main, u"hen"_s);
        QVERIFY(comes(Untitled));
    }

    void aTextTooLongForAListFileIsCutAndTheOthersAreWhole()
    {
        addEntry(*m_main, u"cow"_s);
        gVocabList().AddVocab(u"long"_s, QString(65'536, u'x'), u"A sentence."_s);
        addEntry(*m_main, u"pig"_s);
        QVERIFY(settled(*m_main));
        QCOMPARE(names(), QStringList{Untitled});
        QCOMPARE(readFile(path(Untitled)),
                 listBytes({addedEntry(u"cow"_s),
                            {u"long"_s, QString(65'535, u'x'), u"A sentence."_s},
                            addedEntry(u"pig"_s)}));
    }

    void anImportThatWaitsForAnAnswerHasItsWordsCopied()
    {
        addEntry(*m_main, u"cow"_s);
        m_command->expectQuestion(u"cmdNo"_s, [](QDialog &) {
            QCOMPARE(openEntries().size(), 3);
            QVERIFY(comes(Untitled));
        });
        m_command->expectMsgBox(u"3 words imported"_s);
        m_command->importList({u"pig"_s, u"hen"_s, u"cow"_s, u"dog"_s});
        QVERIFY(comes(Untitled));
        QCOMPARE(openEntries().size(), 4);
    }

    // Opening the file to import clears gChanged.
    void anImportThatAddsNothingLosesNoChange()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
        m_command->expectQuestion(u"cmdNo"_s, [](QDialog &) {
            QVERIFY(!gChanged);
            gVocabList().AddVocab(u"hen"_s, {}, {});
            QVERIFY(comes(Untitled));
            QCOMPARE(openEntries().size(), 2);
        });
        m_command->expectMsgBox(u"0 words imported"_s);
        m_command->importList({u"cow"_s});
        QVERIFY(comes(Untitled));
    }

    void anImportOfTheRunsOwnCopyLeavesOneCopy()
    {
        addEntry(*m_main, u"cow"_s);
        QVERIFY(comes(Untitled));
        m_command->expectQuestion(u"cmdNo"_s, [](QDialog &) {
            gVocabList().AddVocab(u"hen"_s, {}, {});
            QVERIFY(comes(Untitled));
        });
        m_command->expectMsgBox(u"0 words imported"_s);
        m_command->choose(path(Untitled));
        QVERIFY(comes(Untitled));
    }

    void aRunningImportIsNotInterrupted()
    {
        m_command->expectQuestion(u"cmdNo"_s, [this](QDialog &) {
            connect(m_main->window().findChild<Import *>(), &Import::progress, &m_main->window(),
                    [this](int done, int) {
                        if (done != 3)
                            return;
                        // Wait for long enough that the copy would be written.
                        QVERIFY(isDue(*m_main));
                        QTest::qWait(600);
                        QVERIFY(isDue(*m_main));
                        QCOMPARE(names(), QStringList());
                    });
        });
        addEntry(*m_main, u"cow"_s);
        QVERIFY(settled(*m_main));
        QVERIFY(QFile::remove(path(Untitled)));
        m_command->expectMsgBox(u"2 words imported"_s, [](QMessageBox &) {
            QVERIFY(comes(Untitled)); // the message waits for the person
        });
        m_command->importList({u"cow"_s, u"pig"_s, u"hen"_s});
    }

    // A deletion in dlgWordExist does not set gChanged.
    void aDeletionInTheImportDialogAloneIsNotCopied()
    {
        openList(*m_main, m_list);
        const QString conflicting = m_main->path(u"words.lwx"_s);
        writeFile(conflicting, listBytes({addedEntry(u"animal 2"_s)}));
        m_main->answers.chooseFile(conflicting);
        ImportTools::expectQuestion(m_main->answers, u"cmdNo"_s, [](QDialog &form) {
            Controls::click(Controls::find<QPushButton>(form, "cmdDelete"));
        });
        m_main->answers.expectMsgBox(u"Are you sure you want to delete 'animal 2' ?"_s,
                                     QMessageBox::Yes);
        m_main->answers.expectMsgBox(u"0 words imported"_s);
        m_main->choose("mnuImport");
        QVERIFY(!gChanged);
        QCOMPARE(openEntries().size(), 4);
        QVERIFY(settled(*m_main));
        QCOMPARE(names(), QStringList());
    }

private:
    const Entries m_entries = someEntries(5, u"animal"_s);
    std::unique_ptr<ImportCommand> m_command;
    MainWindow *m_main = nullptr;
    QString m_list;
};

int main(int argc, char *argv[])
{
    return runFormTest<UnsavedCopy_test>(argc, argv);
}

#include "UnsavedCopy_test.moc"
