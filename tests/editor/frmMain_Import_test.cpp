// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ImportCommand.h"
#include "editor/OpenList.h"

#include <QFileDialog>
#include <QLineEdit>

using namespace Module1;
using namespace Qt::StringLiterals;
using ImportTools::difLinesOf;
using ImportTools::joined;
using ImportTools::listFile;

namespace {

const QString Imported = u"%1 words imported"_s;
const QString Added = u"%1 words added"_s;

} // namespace

class frmMain_Import_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_command = std::make_unique<ImportCommand>(); }

    void cleanup()
    {
        QVERIFY(m_command->main.answers.allSeen());
        m_command.reset();
    }

    void theFileDialogOffersListsThenDifFilesThenAll()
    {
        m_command->expectMsgBox(Imported.arg(1));
        m_command->import(u"words.lwx"_s, listFile({u"cat"_s}), [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Import words"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptOpen);
            const QStringList filters = dialog.nameFilters();
            QCOMPARE(filters.size(), 3);
            QVERIFY(filters[0].startsWith(u"Vocab Data (*.lwx)"_s));
            QVERIFY(filters[1].startsWith(u"Data Interchange Format (*.dif)"_s));
            QVERIFY(filters[2].startsWith(u"All files (*.*)"_s));
        });
        // The name that was chosen last is not offered again.
        m_command->main.answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(Controls::find<QLineEdit>(dialog, "fileNameEdit").text(), QString());
        });
        m_command->main.choose("mnuImport");
    }

    void cancelChangesNothing()
    {
        MainWindow &main = m_command->main;
        main.fill(5);
        main.clickCell(3, 2);
        gFileName = u"open list"_s;
        gAddThis = gAddAll = gSkipAll = gStopImport = true;
        const OpenList before(main);
        main.answers.cancelFileDialog();
        main.choose("mnuImport");
        QVERIFY(OpenList(main) == before);
        QCOMPARE(ImportTools::flags(), u"TASE"_s);
        // The picked entry is still picked.
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word 3"_s);
        QCOMPARE(main.markedRows(), QList<int>{3});
    }

    void theKindFollowsTheFirstDotOfTheWholePath_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("kind"); // what is imported as
        for (const char *name : {"words.lwx", "words.lwxy", "words.lwx.old", ".lwx",
                                 "my.lwx lists/words.dif", "words.lwx.dif"})
            QTest::newRow(name) << QString::fromLatin1(name) << u"lwx"_s;
        for (const char *name :
             {"words.dif", "words.diff", "words.dif.txt", ".dif", "my.dif/words.lwx"})
            QTest::newRow(name) << QString::fromLatin1(name) << u"dif"_s;
        for (const char *name :
             {"WORDS.LWX", "WORDS.DIF", "words.Lwx", "words.dIf", "my.lists/words.lwx",
              "my.lists/words.dif", "a.words.lwx", "words.txt", "words.lw", "words.di", "words",
              "words.", "words..lwx", "words. lwx"})
            QTest::newRow(name) << QString::fromLatin1(name) << QString();
    }

    void theKindFollowsTheFirstDotOfTheWholePath()
    {
        QFETCH(QString, name);
        QFETCH(QString, kind);
        MainWindow &main = m_command->main;
        QVERIFY2(!main.path(QString()).contains(QLatin1Char('.')),
                 "the folder for temporary files must have no dot in its path");
        main.fill({u"dog"_s});
        gFileName = u"open list"_s;
        const bool isDif = kind == u"dif"_s;
        if (!kind.isEmpty())
            m_command->expectMsgBox((isDif ? Added : Imported).arg(1));
        const bool asDif =
            isDif || (kind.isEmpty() && name.endsWith(u"dif"_s, Qt::CaseInsensitive));
        m_command->import(name, asDif ? joined(difLinesOf({u"cat|1"_s})) : listFile({u"cat|1"_s}));
        QCOMPARE(gVocabList().NumWords().toInt(), kind.isEmpty() ? 1 : 2);
        QCOMPARE(gFileName, u"open list"_s);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        QCOMPARE(gChanged, !kind.isEmpty());
    }

    void theGridIsRebuiltFromTheRememberedPosition()
    {
        MainWindow &main = m_command->main;
        main.fill(30);
        gVocabList().CurrentWord(12);
        m_command->expectMsgBox(Imported.arg(2));
        m_command->importList({u"new a|b|c"_s, u"new d"_s});
        QCOMPARE(main.row(1), EditorModes::filledRow(12));
        QCOMPARE(main.row(19), EditorModes::filledRow(30));
        QCOMPARE(main.row(20), (QStringList{u"31"_s, u"new a"_s, u"b"_s, u"c"_s}));
        QCOMPARE(main.row(21)[1], u"new d"_s);
        QCOMPARE(main.grid().rowCount(), 25);
        QCOMPARE(main.grid().Row(), 1);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
        QCOMPARE(main.bar().maximum(), 33);
    }

    void anEmptyListShowsWhatWasImported()
    {
        m_command->expectMsgBox(Added.arg(2));
        m_command->importDif(difLinesOf({u"cat|1"_s, u"dog|2"_s}));
        QCOMPARE(m_command->words(), (QStringList{u"cat"_s, u"dog"_s}));
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
    }

    void aPickedEntryStaysWithWhatIsTyped_data()
    {
        QTest::addColumn<QStringList>("entries");
        QTest::addColumn<QString>("answer"); // to a question, where one comes
        QTest::addColumn<int>("cameIn");
        QTest::newRow("new words") << QStringList{u"cat"_s, u"dog"_s} << QString() << 2;
        QTest::newRow("nothing") << QStringList() << QString() << 0;
        QTest::newRow("a word skipped") << QStringList{u"WORD 5"_s} << u"cmdNo"_s << 0;
        QTest::newRow("a word twice") << QStringList{u"WORD 5"_s} << u"cmdYes"_s << 1;
    }

    void aPickedEntryStaysWithWhatIsTyped()
    {
        QFETCH(QStringList, entries);
        QFETCH(QString, answer);
        QFETCH(int, cameIn);
        MainWindow &main = m_command->main;
        main.fill(5);
        main.clickCell(3, 1);
        main.type("txtDefinition", u"typed so far"_s);
        if (!answer.isEmpty())
            m_command->expectQuestion(answer);
        m_command->expectMsgBox(Imported.arg(cameIn));
        m_command->importList(entries);
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word 3"_s);
        QCOMPARE(main.text("txtDefinition"), u"typed so far"_s);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 3);
        // The page starts at the entry that is picked.
        QCOMPARE(main.row(1), EditorModes::filledRow(3));
        QCOMPARE(main.markedRows(), QList<int>{1});

        main.click("cmdAdd"); // Update
        QCOMPARE(gVocabList().NumWords().toInt(), 5 + cameIn);
        QCOMPARE(gVocabList().entry(3).Definition, u"typed so far"_s);
    }

    void aFoundEntryStays()
    {
        MainWindow &main = m_command->main;
        main.fill(5);
        search(u"word 3"_s);
        m_command->expectMsgBox(Imported.arg(1));
        m_command->importList({u"cat"_s});
        QCOMPARE(main.look(), EditorModes::found());
        QCOMPARE(main.text("txtSentence"), u"sentence 3"_s);
        QCOMPARE(main.markedRows(), QList<int>{1});
        main.answers.expectMsgBox(u"Are you sure you want to delete 'word 3' ?"_s,
                                  QMessageBox::Yes);
        main.click("cmdDelete");
        QCOMPARE(ImportTools::openEntries().mid(2, 2),
                 (QStringList{u"word 4|definition 4|sentence 4"_s,
                              u"word 5|definition 5|sentence 5"_s}));
    }

    void anUpdateInTheQuestionLeavesThePickedEntry()
    {
        MainWindow &main = m_command->main;
        main.fill(5);
        main.clickCell(3, 1);
        m_command->expectQuestion(u"cmdNo"_s, [](QDialog &dialog) {
            Controls::click(Controls::find<QPushButton>(dialog, "cmdAllowModify"));
            Controls::click(Controls::find<QPushButton>(dialog, "cmdUpdate"));
        });
        m_command->expectMsgBox(u"Are you sure you want to change the content of this word?"_s);
        m_command->expectMsgBox(Imported.arg(0));
        m_command->importList({u"WORD 2"_s});
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"word 3"_s);
        QCOMPARE(main.markedRows(), QList<int>{1});
    }

    void aDeletionInTheQuestionUnpicksThePickedEntry_data()
    {
        QTest::addColumn<bool>("bySearch");
        QTest::newRow("clicked in the grid") << false;
        QTest::newRow("found") << true;
    }

    void aDeletionInTheQuestionUnpicksThePickedEntry()
    {
        QFETCH(bool, bySearch);
        MainWindow &main = m_command->main;
        main.fill(5);
        if (bySearch)
            search(u"word 3"_s);
        else
            main.clickCell(3, 1);
        QCOMPARE(main.markedRows(), QList<int>{3});
        m_command->expectQuestion(u"cmdNo"_s, [&main](QDialog &dialog) {
            QVERIFY(main.look() != EditorModes::idle());
            Controls::click(Controls::find<QPushButton>(dialog, "cmdDelete"));
            QCOMPARE(main.look(), EditorModes::idle());
            QCOMPARE(main.markedRows(), QList<int>());
        });
        m_command->expectYesNo(u"Are you sure you want to delete 'WORD 2' ?"_s, QMessageBox::Yes);
        m_command->expectMsgBox(Imported.arg(0));
        m_command->importList({u"WORD 2"_s});
        QCOMPARE(main.look(), EditorModes::idle());
        for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
            QCOMPARE(main.text(box), QString());
        QCOMPARE(main.markedRows(), QList<int>());
        QCOMPARE(gVocabList().CurrentWord().toInt(), 1);
    }

    void aFileThatIsNoWordListLeavesThePickedEntry()
    {
        MainWindow &main = m_command->main;
        main.fill(5);
        main.clickCell(3, 1);
        main.type("txtWord", u"typed"_s);
        m_command->import(u"words.txt"_s, "cat");
        QCOMPARE(main.look(), EditorModes::editing());
        QCOMPARE(main.text("txtWord"), u"typed"_s);
        QCOMPARE(main.markedRows(), QList<int>{1});
        QVERIFY(!gChanged);
        QVERIFY(!main.action("mnuSave").isEnabled());
    }

    void anImportOfNothingKeepsTheListVisible()
    {
        // After filling the page, the current position is after the last entry.
        MainWindow &main = m_command->main;
        main.fill(5);
        QCOMPARE(gVocabList().CurrentWord().toInt(), 6);
        m_command->expectMsgBox(Imported.arg(0));
        m_command->importList({});
        for (int row = 1; row <= 5; ++row)
            QCOMPARE(main.row(row), EditorModes::filledRow(row));
    }

    void aWordBeingTypedStays()
    {
        MainWindow &main = m_command->main;
        main.click("cmdNewWord");
        main.typeEntry(u"ox"_s, u"a bull"_s);
        m_command->expectMsgBox(Imported.arg(1));
        m_command->importList({u"cat"_s});
        QCOMPARE(main.look(), EditorModes::newWord());
        QCOMPARE(main.text("txtWord"), u"ox"_s);
        main.click("cmdAdd");
        QCOMPARE(ImportTools::openEntries(), (QStringList{u"cat"_s, u"ox|a bull"_s}));
    }

    void theRowOfTheNextNewWordIsMarkedAgain_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<QStringList>("imported");
        QTest::addColumn<int>("first"); // entry of the page
        const QStringList two = {u"new a"_s, u"new b"_s};
        QTest::newRow("nothing into an empty list") << 0 << QStringList() << 1;
        QTest::newRow("nothing into a short list") << 5 << QStringList() << 1;
        QTest::newRow("nothing into a long list") << 60 << QStringList() << 39;
        QTest::newRow("words into a short list") << 5 << two << 1;
        QTest::newRow("words that fill the page") << 20 << two << 1;
        QTest::newRow("words into a long list") << 60 << two << 41;
    }

    void theRowOfTheNextNewWordIsMarkedAgain()
    {
        QFETCH(int, before);
        QFETCH(QStringList, imported);
        QFETCH(int, first);
        MainWindow &main = m_command->main;
        main.fill(before);
        main.click("cmdNewWord");
        m_command->expectMsgBox(Imported.arg(imported.size()));
        m_command->importList(imported);
        QCOMPARE(main.look(), EditorModes::newWord());
        const int next = before + int(imported.size()) + 1;
        const int row = next - first + 1;
        QCOMPARE(main.markedRows(), QList<int>{row});
        QCOMPARE(main.row(row).at(0), QString::number(next));
        QCOMPARE(main.row(1).at(0), QString::number(first));
    }

    void saveIsEnabledAfterAWordListOnly_data()
    {
        QTest::addColumn<bool>("isDif");
        QTest::newRow("word list") << false;
        QTest::newRow("DIF file") << true;
    }

    void saveIsEnabledAfterAWordListOnly()
    {
        QFETCH(bool, isDif);
        MainWindow &main = m_command->main;
        QVERIFY(!main.action("mnuSave").isEnabled());
        m_command->expectMsgBox((isDif ? Added : Imported).arg(1), [&](QMessageBox &) {
            QCOMPARE(main.action("mnuSave").isEnabled(), !isDif); // before the message
        });
        if (isDif)
            m_command->importDif(difLinesOf({u"cat|1"_s}));
        else
            m_command->importList({u"cat"_s});
        QVERIFY(gChanged);
        QCOMPARE(main.action("mnuSave").isEnabled(), !isDif);
    }

    void saveIsNotEnabledIfNothingWasImported()
    {
        m_command->expectMsgBox(Imported.arg(0));
        m_command->importList({});
        QVERIFY(!m_command->main.action("mnuSave").isEnabled());
    }

    void theOpenListKeepsItsFile()
    {
        MainWindow &main = m_command->main;
        const QString own = main.path(u"own.lwx"_s);
        writeFile(own, listFile({u"dog"_s}));
        openList(main, own);
        const QString imported = main.path(u"words.lwx"_s);
        m_command->expectMsgBox(Imported.arg(1), [&imported](QMessageBox &) {
            QCOMPARE(gFileName, imported); // while the command runs
        });
        m_command->importList({u"cat"_s});
        QCOMPARE(gFileName, own);
        QCOMPARE(gFileTitle, u"own.lwx"_s);
        QCOMPARE(gOpenedFile, own);
        QCOMPARE(main.window().windowTitle(), CaptionStart + u"own.lwx"_s);

        main.answers.expectMsgBox(own + u" has been saved."_s);
        main.choose("mnuSave");
        QCOMPARE(readFile(own), listFile({u"dog"_s, u"cat"_s}));
        QCOMPARE(readFile(imported), listFile({u"cat"_s}));
    }

    // Whether the page shows the words that were imported before the question.
    void theWindowIsUpdatedAfterAllAnswersExceptNo_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QStringList>("words");
        const QStringList fresh{u"old"_s, u"edited"_s, u"new"_s};
        const QStringList stale{u"old"_s, u"other"_s};
        for (const char *answer : {"cmdYes", "cmdYesToAll", "cmdNoToAll", "cmdAbort"})
            QTest::newRow(answer) << QString::fromLatin1(answer) << fresh;
        for (const char *answer : {"cmdNo", ImportTools::Close})
            QTest::newRow(answer) << QString::fromLatin1(answer) << stale;
    }

    void theWindowIsUpdatedAfterAllAnswersExceptNo()
    {
        QFETCH(QString, answer);
        QFETCH(QStringList, words);
        m_command->main.fill({u"old"_s, u"other"_s});
        m_command->expectQuestion(answer, [](QDialog &) {
            gVocabList().CurrentWord(2);
            gVocabList().Edit(u"edited"_s, {}, {});
        });
        const int cameIn = answer == u"cmdYes"_s || answer == u"cmdYesToAll"_s;
        m_command->expectMsgBox(Imported.arg(1 + cameIn),
                                [&](QMessageBox &) { QCOMPARE(m_command->words(), words); });
        m_command->importList({u"new"_s, u"OLD"_s});
    }

private:
    // Starts in the idle editor.
    void search(const QString &word)
    {
        m_command->main.click("cmdSearch");
        m_command->main.type("txtWord", word);
        m_command->main.click("cmdSearch");
    }

    std::unique_ptr<ImportCommand> m_command;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Import_test>(argc, argv);
}

#include "frmMain_Import_test.moc"
