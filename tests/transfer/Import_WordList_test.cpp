// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ImportRun.h"

using namespace ImportTools;
using namespace Module1;

namespace {

const QString ExceedsMaximum =
    QStringLiteral("Cannot import words because this will exceed maximum number of words. Maximum "
                   "number of words=32000");

QStringList numbered(const char *word, int count)
{
    QStringList entries;
    for (int i = 1; i <= count; ++i)
        entries += QStringLiteral("%1 %2").arg(QLatin1String(word)).arg(i);
    return entries;
}

} // namespace

class Import_WordList_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_run = std::make_unique<ImportRun>(); }

    void cleanup()
    {
        QVERIFY(m_run->answers.allSeen());
        m_run.reset();
    }

    void newWordsAreAppendedAsTheyAre()
    {
        setOpenEntries({QStringLiteral("dog|a pet|Dogs bark.")});
        gChanged = false;
        m_run->expectImported(3);
        m_run->wordList(
            listFile({QStringLiteral("zebra| striped |A zebra."), QStringLiteral(" cat "),
                      QStringLiteral("caf\u00E9||One\r\ntwo")}));
        QCOMPARE(openEntries(),
                 (QStringList{QStringLiteral("dog|a pet|Dogs bark."),
                              QStringLiteral("zebra| striped |A zebra."), QStringLiteral(" cat "),
                              QStringLiteral("caf\u00E9||One\r\ntwo")}));
        QVERIFY(gChanged);
        QCOMPARE(gImportCount.toInt(), 3);
        QCOMPARE(m_run->changed.size(), 1);
        QCOMPARE(m_run->refreshed.size(), 0);
    }

    void theListMayBeEmpty()
    {
        gVocabList().ClearList();
        m_run->expectImported(2);
        m_run->wordList(listFile({QStringLiteral("cat"), QStringLiteral("dog")}));
        QCOMPARE(openEntries(), (QStringList{QStringLiteral("cat"), QStringLiteral("dog")}));
    }

    void theMessageComesWhenAllIsAdded()
    {
        m_run->answers.expectMsgBox(QStringLiteral("2 words imported"), QMessageBox::Ok,
                                    [this](QMessageBox &) {
                                        QCOMPARE(gVocabList().NumWords().toInt(), 2);
                                        QCOMPARE(m_run->changed.size(), 1);
                                    });
        m_run->wordList(listFile({QStringLiteral("cat"), QStringLiteral("dog")}));
    }

    void entriesWithoutAWordAreSkippedAndNotCounted()
    {
        m_run->expectImported(3);
        m_run->wordList(listFile({QStringLiteral("|lost"), QStringLiteral("cat"), QString(),
                                  QStringLiteral(" |a blank"), QStringLiteral("||Nothing."),
                                  QStringLiteral("dog"), QString()}));
        QCOMPARE(openEntries(), (QStringList{QStringLiteral("cat"), QStringLiteral(" |a blank"),
                                             QStringLiteral("dog")}));
    }

    void whatIsImportedLastIsInTheGlobals()
    {
        m_run->expectImported(2);
        m_run->wordList(
            listFile({QStringLiteral("cat|1|2"), QStringLiteral("dog|3|4"), QString()}));
        QCOMPARE((QStringList{gImportWord, gImportDef, gImportSen}),
                 parts(QStringLiteral("dog|3|4")));
        QCOMPARE(gImportList().CurrentWord().toInt(), 4);
    }

    void aFileWithoutWordsImportsNone()
    {
        gChanged = true;
        m_run->expectImported(0);
        m_run->wordList(listFile({}));
        QVERIFY(!gChanged); // opening a list clears it
        QCOMPARE(m_run->changed.size(), 0);
    }

    void withoutANewWordThereIsNothingToSave()
    {
        setOpenEntries({QStringLiteral("cat")});
        gChanged = true;
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"));
        m_run->expectImported(0);
        m_run->wordList(listFile({QStringLiteral("cat")}));
        QVERIFY(!gChanged);
        QCOMPARE(m_run->changed.size(), 0);
    }

    void anUpdateInTheDialogIsSomethingToSave()
    {
        setOpenEntries({QStringLiteral("cat")});
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"), [this](QDialog &form) {
            giveAnswer(form, QStringLiteral("cmdAllowModify"));
            m_run->answers.expectMsgBox(
                QStringLiteral("Are you sure you want to change the content of this word?"));
            m_run->expectImported(0);
            giveAnswer(form, QStringLiteral("cmdUpdate"));
        });
        m_run->wordList(listFile({QStringLiteral("cat")}));
        QVERIFY(gChanged);
        QCOMPARE(m_run->changed.size(), 1);
    }

    void withoutAFileNameItEndsSilently()
    {
        setOpenEntries({QStringLiteral("cat")});
        gFileName.clear();
        gAddThis = gAddAll = gSkipAll = gStopImport = true;
        gImportCount = 7;
        m_run->import.ImportWordList();
        QCOMPARE(openEntries(), QStringList{QStringLiteral("cat")});
        QCOMPARE(flags(), QStringLiteral("tase"));
        QCOMPARE(gImportCount.toInt(), 0);
        QCOMPARE(m_run->answers.seen(), 0);
    }

    void theFlagsOfTheImportBeforeDoNotMatter()
    {
        setOpenEntries({QStringLiteral("cat")});
        gAddThis = gAddAll = gSkipAll = gStopImport = true;
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"));
        m_run->expectImported(1);
        m_run->wordList(listFile({QStringLiteral("cat"), QStringLiteral("dog")}));
        QCOMPARE(openEntries(), (QStringList{QStringLiteral("cat"), QStringLiteral("dog")}));
    }

    void theFlagsAfterwards_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("flags");
        QTest::newRow("cmdYes") << QStringLiteral("cmdYes") << QStringLiteral("tase");
        QTest::newRow("cmdNo") << QStringLiteral("cmdNo") << QStringLiteral("tase");
        QTest::newRow("cmdYesToAll") << QStringLiteral("cmdYesToAll") << QStringLiteral("tase");
        QTest::newRow("cmdNoToAll") << QStringLiteral("cmdNoToAll") << QStringLiteral("taSe");
        QTest::newRow("cmdAbort") << QStringLiteral("cmdAbort") << QStringLiteral("tasE");
        QTest::newRow(Close) << QString::fromLatin1(Close) << QStringLiteral("tase");
    }

    void theFlagsAfterwards()
    {
        QFETCH(QString, answer);
        setOpenEntries({QStringLiteral("cat")});
        expectQuestion(m_run->answers, answer);
        m_run->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY(box.text().endsWith(QStringLiteral(" words imported")));
        });
        m_run->wordList(listFile({QStringLiteral("cat")}));
        QTEST(flags(), "flags");
    }

    void aWordIsLookedUpWholeAndRegardlessOfCase()
    {
        setOpenEntries(
            {QStringLiteral("cats"), QStringLiteral("a cat"), QStringLiteral("\u00C9T\u00C9")});
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"), [](QDialog &) {
            QCOMPARE(gImportWord, QStringLiteral("\u00E9t\u00E9"));
            QCOMPARE(gVocabList().CurrentWord().toInt(), 3);
        });
        m_run->expectImported(2);
        m_run->wordList(listFile(
            {QStringLiteral("cat"), QStringLiteral("\u00E9t\u00E9"), QStringLiteral("ca")}));
        QCOMPARE(openEntries().mid(3), (QStringList{QStringLiteral("cat"), QStringLiteral("ca")}));
    }

    void aWordThatComesTwiceConflictsWithItself()
    {
        expectQuestion(m_run->answers, QStringLiteral("cmdYes"),
                       [](QDialog &) { QCOMPARE(gVocabList().CurrentWord().toInt(), 1); });
        m_run->expectImported(2);
        m_run->wordList(listFile({QStringLiteral("cat|1"), QStringLiteral("CAT|2")}));
        QCOMPARE(openEntries(), (QStringList{QStringLiteral("cat|1"), QStringLiteral("CAT|2")}));
    }

    void theFirstOfSeveralMatchesIsShown()
    {
        setOpenEntries({QStringLiteral("dog"), QStringLiteral("cat|1"), QStringLiteral("cat|2")});
        gVocabList().CurrentWord(3);
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"),
                       [](QDialog &) { QCOMPARE(gVocabList().CurrentWord().toInt(), 2); });
        m_run->expectImported(0);
        m_run->wordList(listFile({QStringLiteral("cat")}));
    }

    void deleteAndYesReplaceTheEntryAtTheEndOfTheList()
    {
        setOpenEntries({QStringLiteral("cat|old"), QStringLiteral("dog")});
        expectQuestion(m_run->answers, QStringLiteral("cmdYes"), [this](QDialog &form) {
            m_run->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'cat' ?"),
                                        QMessageBox::Yes);
            m_run->expectImported(1);
            giveAnswer(form, QStringLiteral("cmdDelete"));
        });
        m_run->wordList(listFile({QStringLiteral("cat|new")}));
        QCOMPARE(openEntries(), (QStringList{QStringLiteral("dog"), QStringLiteral("cat|new")}));
    }

    void aListThatWouldGrowBeyondTheMaximumTakesNothing_data()
    {
        QTest::addColumn<int>("open");
        QTest::addColumn<int>("incoming");
        QTest::newRow("full, one more") << 32000 << 1;
        QTest::newRow("one too many") << 31990 << 11;
        // Together more than 16 bits hold.
        QTest::newRow("twice the maximum") << 32000 << 32000;
    }

    void aListThatWouldGrowBeyondTheMaximumTakesNothing()
    {
        QFETCH(int, open);
        QFETCH(int, incoming);
        // All of them conflicts: they count as if they came in.
        const QStringList entries = numbered("word", open);
        setOpenEntries(entries);
        m_run->answers.expectMsgBox(ExceedsMaximum);
        m_run->wordList(listFile(entries.mid(0, incoming)));
        QCOMPARE(gVocabList().NumWords().toInt(), open);
        QVERIFY(!gChanged);
        QCOMPARE(m_run->changed.size(), 0);
        QCOMPARE(gImportCount.toInt(), 0);
    }

    // Only a file can make such a list.
    void aListBeyondTheMaximumTakesNothing()
    {
        gFileName = m_run->path(QStringLiteral("large.lwx"));
        writeFile(gFileName, listFile(numbered("word", 32001)));
        QVERIFY(gVocabList().OpenFile());
        m_run->answers.expectMsgBox(
            QStringLiteral("Cannot import any more words. Maximum number of words=32000"));
        m_run->wordList(listFile({QStringLiteral("cat")}));
        QCOMPARE(gVocabList().NumWords().toInt(), 32001);
        QCOMPARE(gImportCount.toInt(), 0);
    }

    void aListMayGrowToTheMaximum()
    {
        setOpenEntries(numbered("word", 31998));
        m_run->expectImported(2);
        m_run->wordList(listFile(numbered("new", 2)));
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
    }

    void aFullListTakesAFileWithoutWords()
    {
        setOpenEntries(numbered("word", 32000));
        m_run->expectImported(0);
        m_run->wordList(listFile({}));
        QCOMPARE(gVocabList().NumWords().toInt(), 32000);
    }

    void aFileThatCannotBeReadIsReportedAndAddsNothing()
    {
        setOpenEntries({QStringLiteral("cat")});
        gFileName = m_run->path(QStringLiteral("broken.lwx"));
        writeFile(gFileName, QByteArray("\xFF\xFF", 2)); // -1 words
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_run->import.ImportWordList());
        QCOMPARE(openEntries(), QStringList{QStringLiteral("cat")});
    }

    void everyStepIsToldToWhoShowsProgress()
    {
        m_run->expectImported(2);
        m_run->wordList(listFile({QStringLiteral("cat"), QString(), QStringLiteral("dog")}));
        QCOMPARE(m_run->progress.size(), 3);
        for (int i = 0; i < 3; ++i)
            QCOMPARE(m_run->progress.at(i), (QVariantList{i + 1, 3}));
    }

private:
    std::unique_ptr<ImportRun> m_run;
};

int main(int argc, char *argv[])
{
    return runFormTest<Import_WordList_test>(argc, argv);
}

#include "Import_WordList_test.moc"
