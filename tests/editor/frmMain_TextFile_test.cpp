// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorModes.h"
#include "editor/OpenList.h"
#include "support/FormTest.h"
#include "support/SmallFiles.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include <filesystem>
#include <sys/stat.h>

using namespace Module1;
using namespace Qt::StringLiterals;

class frmMain_TextFile_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_list = m_main->path(u"animals.lwx"_s);
        m_text = m_main->path(u"animals.txt"_s);
        gSaved = false;
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void anEmptyListMakesNoFile()
    {
        gSaved = true;
        m_main->answers.expectMsgBox(u"File not created: Your current wordlist is empty."_s,
                                     QMessageBox::Ok, [](QMessageBox &box) {
                                         QCOMPARE(box.standardButtons(),
                                                  QMessageBox::StandardButtons(QMessageBox::Ok));
                                     });
        m_main->choose("mnuCreateTextFile");
        QVERIFY(gSaved);
    }

    void eachEntryIsALine()
    {
        open({{u"cat"_s, u"a small animal"_s, u"The cat sat."_s}, {u"dog"_s, {}, {}}});
        create(m_text);
        QCOMPARE(readFile(m_text), "cat\ta small animal\tThe cat sat.\r\ndog\t\t\r\n"_ba);
        QVERIFY(gSaved);
    }

    void changesThatAreNotSavedGoIntoTheFileAndStayUnsaved()
    {
        open({{u"cat"_s, u"a small animal"_s, u"The cat sat."_s}});
        addEntry(*m_main, u"cow"_s);
        create(m_text);
        QCOMPARE(readFile(m_text),
                 "cat\ta small animal\tThe cat sat.\r\ncow\ta definition\tA sentence.\r\n"_ba);
        QVERIFY(gChanged);
        QVERIFY(m_main->action("mnuSave").isEnabled());
        QCOMPARE(gFileName, m_list);
        QCOMPARE(gOpenedFile, m_list);
        QCOMPARE(gFileTitle, u"animals.lwx"_s);
    }

    void theCaptionNamesTheList()
    {
        open(someEntries(2, u"animal"_s));
        m_main->window().setWindowTitle(u"another caption"_s);
        create(m_text);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"animals.lwx"_s);
    }

    void anUntitledListStaysUntitled()
    {
        m_main->fill(2);
        create(m_text);
        QCOMPARE(m_main->window().windowTitle(), CaptionStart + u"(Untitled)"_s);
        QCOMPARE(gFileName, QString());
    }

    void theFileDialogAsksForATextFile()
    {
        open(someEntries(2, u"animal"_s));
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Create Text File"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
            QCOMPARE(dialog.defaultSuffix(), u"txt"_s);
            const auto &kinds = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(kinds.count(), 1);
            QCOMPARE(kinds.itemText(0), u"Text (*.txt)"_s);
        });
        m_main->choose("mnuCreateTextFile");
    }

    void aNameWithoutAnExtensionBecomesATextFile()
    {
        open(someEntries(2, u"animal"_s));
        create(m_main->path(u"words"_s));
        QVERIFY(QFile::exists(m_main->path(u"words.txt"_s)));
        QVERIFY(!QFile::exists(m_main->path(u"words"_s)));
    }

    void theNameUsedLastIsOffered()
    {
        open(someEntries(2, u"animal"_s));
        m_main->answers.chooseFile(m_main->path(u"words.txt"_s), offered(u"animals.lwx"_s));
        m_main->choose("mnuCreateTextFile");
        m_main->answers.cancelFileDialog(offered(u"words.txt"_s));
        m_main->choose("mnuCreateTextFile");
        m_main->answers.acceptFileDialog(offered(u"words.txt"_s));
        m_main->answers.answerOverwrite(u"words.txt"_s, QMessageBox::Yes);
        m_main->choose("mnuCreateTextFile");
        QVERIFY(gSaved);
    }

    void noNameIsOfferedAtFirst()
    {
        m_main->fill(2);
        m_main->answers.cancelFileDialog(offered(QString()));
        m_main->choose("mnuCreateTextFile");
    }

    void cancelClearsGSavedAndChangesNothingElse()
    {
        open(someEntries(5, u"animal"_s));
        addEntry(*m_main, u"cow"_s);
        m_main->clickCell(2, 1);
        gSaved = true;
        const OpenList before(*m_main);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuCreateTextFile");
        QVERIFY(!gSaved);
        QVERIFY(OpenList(*m_main) == before);
        QCOMPARE(QDir(QFileInfo(m_text).path()).entryList({u"*.txt"_s}), QStringList());
    }

    void anExistingFileIsReplacedOnlyAfterAYes()
    {
        open(someEntries(1, u"animal"_s));
        writeFile(m_text, "old"_ba);
        m_main->answers.chooseFile(m_text);
        m_main->answers.answerOverwrite(u"animals.txt"_s, QMessageBox::No);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuCreateTextFile");
        QCOMPARE(readFile(m_text), "old"_ba);
        QVERIFY(!gSaved);
        create(m_text, Target::Exists);
        QVERIFY(readFile(m_text).startsWith("animal 1\t"));
        QVERIFY(gSaved);
    }

    void theFileOfTheOpenListIsNeverReplacedByText_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"animals.lwx", "link.txt", "linked/animals.lwx", "twin.txt"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }

    void theFileOfTheOpenListIsNeverReplacedByText()
    {
        QFETCH(QString, name);
        open(someEntries(5, u"animal"_s));
        QVERIFY(QFile::link(m_list, m_main->path(u"link.txt"_s)));
        QVERIFY(QFile::link(QFileInfo(m_list).path(), m_main->path(u"linked"_s)));
        std::filesystem::create_hard_link(m_list.toStdString(),
                                          m_main->path(u"twin.txt"_s).toStdString());
        addEntry(*m_main, u"cow"_s);
        gSaved = true;
        const OpenList before(*m_main);
        m_main->answers.chooseFile(m_main->path(name));
        m_main->answers.answerOverwrite(QFileInfo(name).fileName(), QMessageBox::Yes);
        expectInUse();
        m_main->choose("mnuCreateTextFile");
        QVERIFY(m_main->answers.allSeen());
        QCOMPARE(readFile(m_list), listBytes(someEntries(5, u"animal"_s)));
        QVERIFY(OpenList(*m_main) == before);
        QVERIFY(gSaved); // as before: nothing was written
    }

    void theNameOfTheListIsRefusedAlsoWhereNoFileIsThere()
    {
        m_main->fill(2);
        gFileName = m_list; // as Save As leaves it for an empty list
        m_main->answers.chooseFile(m_list);
        expectInUse();
        m_main->choose("mnuCreateTextFile");
        QVERIFY(m_main->answers.allSeen());
        QVERIFY(!QFile::exists(m_list));
    }

    void theLoadedFileIsRefusedAlsoAfterACancelledOpen()
    {
        open(someEntries(2, u"animal"_s));
        m_main->answers.expectMsgBox(EndLesson, QMessageBox::Ok);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuOpen");
        QCOMPARE(gFileName, QString());
        m_main->answers.chooseFile(m_list);
        m_main->answers.answerOverwrite(u"animals.lwx"_s, QMessageBox::Yes);
        expectInUse();
        m_main->choose("mnuCreateTextFile");
        QVERIFY(m_main->answers.allSeen());
        QCOMPARE(readFile(m_list), listBytes(someEntries(2, u"animal"_s)));
    }

    void bytesBehindTheNewEndOfTheFileStay()
    {
        open({{u"abc"_s, u"de"_s, u"f"_s}});
        QByteArray old;
        for (int i = 0; i < 100; ++i)
            old += static_cast<char>('0' + i % 10);
        writeFile(m_text, old);
        create(m_text, Target::Exists);
        QCOMPARE(readFile(m_text), "abc\tde\tf\r\n" + old.mid(10));
    }

    void aTabOrALineBreakInATextIsWrittenAsItIs()
    {
        open({{u"cat"_s, u"a\tsmall\r\nanimal"_s, {}}});
        gVocabList().CurrentWord(1);
        gVocabList().Edit(gVocabList().Word(), gVocabList().Definition(),
                          u"Caf\u00E9 \u20AC \u4E2D"_s);
        create(m_text);
        QCOMPARE(readFile(m_text), "cat\ta\tsmall\r\nanimal\tCaf\xE9 \x80 ?\r\n"_ba);
    }

    void theCurrentPositionEndsOnTheLastEntry()
    {
        open(someEntries(5, u"animal"_s));
        gVocabList().CurrentWord(2);
        create(m_text);
        QCOMPARE(gVocabList().CurrentWord(), Integer(5));
        QCOMPARE(openEntries(), someEntries(5, u"animal"_s));
    }

    void aPickedEntryIsWhatUpdateChangesAfterwards()
    {
        open(someEntries(5, u"animal"_s));
        m_main->clickCell(2, 1);
        create(m_text);
        QCOMPARE(m_main->look(), EditorModes::editing());
        QCOMPARE(m_main->markedRows(), QList<int>{2});
        m_main->type("txtWord", u"camel"_s);
        m_main->click("cmdAdd");
        Entries expected = someEntries(5, u"animal"_s);
        expected[1][0] = u"camel"_s;
        QCOMPARE(openEntries(), expected);
    }

    void aFileThatCannotBeWrittenIsReported_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("report");
        QTest::newRow("no such folder")
            << u"lost/animals.txt"_s << u"Run-time error '76':\n\nPath not found\n"_s;
        QTest::newRow("a pipe") << u"pipe.txt"_s
                                << u"Run-time error '75':\n\nPath/File access error\n"_s;
    }

    void aFileThatCannotBeWrittenIsReported()
    {
        QFETCH(QString, name);
        QFETCH(QString, report);
        open(someEntries(5, u"animal"_s));
        addEntry(*m_main, u"cow"_s);
        const QString pipe = m_main->path(u"pipe.txt"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        const QString path = m_main->path(name);
        const OpenList before(*m_main);
        m_main->answers.chooseFile(path);
        if (path == pipe)
            m_main->answers.answerOverwrite(name, QMessageBox::Yes);
        expectReport(report + path);
        m_main->choose("mnuCreateTextFile");
        verifyOnlyThePositionMoved(before);
    }

    void aFileThatCannotBeWrittenLeavesGSavedAndTheCaption_data()
    {
        QTest::addColumn<bool>("saved");
        QTest::newRow("saved before") << true;
        QTest::newRow("not saved before") << false;
    }

    void aFileThatCannotBeWrittenLeavesGSavedAndTheCaption()
    {
        QFETCH(bool, saved);
        open(someEntries(2, u"animal"_s));
        m_main->window().setWindowTitle(u"another caption"_s);
        gSaved = saved;
        m_main->answers.chooseFile(m_main->path(u"lost/animals.txt"_s));
        expectReport(u"Run-time error '76':\n\nPath not found\n"_s);
        m_main->choose("mnuCreateTextFile");
        QCOMPARE(gSaved, saved);
        QCOMPARE(m_main->window().windowTitle(), u"another caption"_s);
    }

    void aFileThatDoesNotFitOnTheDiskStaysWhole()
    {
        open(someEntries(5, u"animal"_s));
        gVocabList().AddVocab(u"long"_s, QString(60'000, u'x'), {});
        writeFile(m_text, "old"_ba);
        const OpenList before(*m_main);
        const SmallFiles small(16 * 1024);
        m_main->answers.chooseFile(m_text);
        m_main->answers.answerOverwrite(u"animals.txt"_s, QMessageBox::Yes);
        expectReport(u"Run-time error '"_s);
        m_main->choose("mnuCreateTextFile");
        verifyOnlyThePositionMoved(before);
        QCOMPARE(readFile(m_text), "old"_ba);
        QCOMPARE(QDir(QFileInfo(m_text).path()).entryList({u"animals.txt*"_s}, QDir::Files),
                 QStringList{u"animals.txt"_s});
    }

private:
    enum class Target { IsNew, Exists };

    void open(const Entries &entries)
    {
        writeFile(m_list, listBytes(entries));
        openList(*m_main, m_list);
    }

    void create(const QString &path, Target target = Target::IsNew)
    {
        m_main->answers.chooseFile(path);
        if (target == Target::Exists)
            m_main->answers.answerOverwrite(QFileInfo(path).fileName(), QMessageBox::Yes);
        m_main->choose("mnuCreateTextFile");
        QVERIFY(m_main->answers.allSeen());
    }

    // Checks the name that the file dialog offers.
    static std::function<void(QFileDialog &)> offered(const QString &name)
    {
        return [name](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), name);
        };
    }

    void expectInUse()
    {
        m_main->answers.expectMsgBox(
            m_list + u" file is currently in use."_s, QMessageBox::Ok, [](QMessageBox &box) {
                QCOMPARE(box.standardButtons(), QMessageBox::StandardButtons(QMessageBox::Ok));
            });
    }

    void expectReport(const QString &start)
    {
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [start](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(start), qPrintable(box.text()));
        });
    }

    void verifyOnlyThePositionMoved(OpenList before)
    {
        QVERIFY(m_main->answers.allSeen());
        QVERIFY(!gSaved);
        before.position = gVocabList().NumWords().toInt();
        QVERIFY(OpenList(*m_main) == before);
    }

    QString m_list;
    QString m_text;
    std::unique_ptr<MainWindow> m_main;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_TextFile_test>(argc, argv);
}

#include "frmMain_TextFile_test.moc"
