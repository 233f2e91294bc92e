// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ImportRun.h"

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString ExceedsMaximum =
    u"Cannot import words because this will exceed maximum number of words. Maximum "
    "number of words=32000"_s;

QStringList numbered(const char *word, int count)
{
    QStringList entries;
    for (int i = 1; i <= count; ++i)
        entries += u"%1 %2"_s.arg(QLatin1String(word)).arg(i);
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
        setOpenEntries({u"dog|a pet|Dogs bark."_s});
        gChanged = false;
        m_run->expectImported(3);
        m_run->wordList(
            listFile({u"zebra| striped |A zebra."_s, u" cat "_s, u"caf\u00E9||One\r\ntwo"_s}));
        QCOMPARE(openEntries(),
                 (QStringList{u"dog|a pet|Dogs bark."_s, u"zebra| striped |A zebra."_s, u" cat "_s,
                              u"caf\u00E9||One\r\ntwo"_s}));
        QVERIFY(gChanged);
        QCOMPARE(gImportCount.toInt(), 3);
        QCOMPARE(m_run->changed.size(), 1);
        QCOMPARE(m_run->refreshed.size(), 0);
    }

    void theListMayBeEmpty()
    {
        gVocabList().ClearList();
        m_run->expectImported(2);
        m_run->wordList(listFile({u"cat"_s, u"dog"_s}));
        QCOMPARE(openEntries(), (QStringList{u"cat"_s, u"dog"_s}));
    }

    void theMessageComesWhenAllIsAdded()
    {
        m_run->answers.expectMsgBox(u"2 words imported"_s, QMessageBox::Ok, [this](QMessageBox &) {
            QCOMPARE(gVocabList().NumWords().toInt(), 2);
            QCOMPARE(m_run->changed.size(), 1);
        });
        m_run->wordList(listFile({u"cat"_s, u"dog"_s}));
    }

    void entriesWithoutAWordAreSkippedAndNotCounted()
    {
        m_run->expectImported(3);
        m_run->wordList(listFile({u"|lost"_s, u"cat"_s, QString(), u" |a blank"_s, u"||Nothing."_s,
                                  u"dog"_s, QString()}));
        QCOMPARE(openEntries(), (QStringList{u"cat"_s, u" |a blank"_s, u"dog"_s}));
    }

    void theLastImportedWordIsInTheGlobals()
    {
        m_run->expectImported(2);
        m_run->wordList(listFile({u"cat|1|2"_s, u"dog|3|4"_s, QString()}));
        QCOMPARE((QStringList{gImportWord, gImportDef, gImportSen}), parts(u"dog|3|4"_s));
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
        setOpenEntries({u"cat"_s});
        gChanged = true;
        expectQuestion(m_run->answers, u"cmdNo"_s);
        m_run->expectImported(0);
        m_run->wordList(listFile({u"cat"_s}));
        QVERIFY(!gChanged);
        QCOMPARE(m_run->changed.size(), 0);
    }

    void anUpdateInTheDialogIsSomethingToSave()
    {
        setOpenEntries({u"cat"_s});
        expectQuestion(m_run->answers, u"cmdNo"_s, [this](QDialog &form) {
            giveAnswer(form, u"cmdAllowModify"_s);
            m_run->answers.expectMsgBox(
                u"Are you sure you want to change the content of this word?"_s);
            m_run->expectImported(0);
            giveAnswer(form, u"cmdUpdate"_s);
        });
        m_run->wordList(listFile({u"cat"_s}));
        QVERIFY(gChanged);
        QCOMPARE(m_run->changed.size(), 1);
    }

    void withoutAFileNameItEndsSilently()
    {
        setOpenEntries({u"cat"_s});
        gFileName.clear();
        gAddThis = gAddAll = gSkipAll = gStopImport = true;
        gImportCount = 7;
        m_run->import.ImportWordList();
        QCOMPARE(openEntries(), QStringList{u"cat"_s});
        QCOMPARE(flags(), u"tase"_s);
        QCOMPARE(gImportCount.toInt(), 0);
        QCOMPARE(m_run->answers.seen(), 0);
    }

    void theFlagsOfTheImportBeforeDoNotMatter()
    {
        setOpenEntries({u"cat"_s});
        gAddThis = gAddAll = gSkipAll = gStopImport = true;
        expectQuestion(m_run->answers, u"cmdNo"_s);
        m_run->expectImported(1);
        m_run->wordList(listFile({u"cat"_s, u"dog"_s}));
        QCOMPARE(openEntries(), (QStringList{u"cat"_s, u"dog"_s}));
    }

    void theImportEndsWithTheseFlags_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("flags");
        QTest::newRow("cmdYes") << u"cmdYes"_s << u"tase"_s;
        QTest::newRow("cmdNo") << u"cmdNo"_s << u"tase"_s;
        QTest::newRow("cmdYesToAll") << u"cmdYesToAll"_s << u"tase"_s;
        QTest::newRow("cmdNoToAll") << u"cmdNoToAll"_s << u"taSe"_s;
        QTest::newRow("cmdAbort") << u"cmdAbort"_s << u"tasE"_s;
        QTest::newRow(Close) << QString::fromLatin1(Close) << u"tase"_s;
    }

    void theImportEndsWithTheseFlags()
    {
        QFETCH(QString, answer);
        setOpenEntries({u"cat"_s});
        expectQuestion(m_run->answers, answer);
        m_run->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &box) {
            QVERIFY(box.text().endsWith(u" words imported"_s));
        });
        m_run->wordList(listFile({u"cat"_s}));
        QTEST(flags(), "flags");
    }

    void aWordIsLookedUpWholeAndRegardlessOfCase()
    {
        setOpenEntries({u"cats"_s, u"a cat"_s, u"\u00C9T\u00C9"_s});
        expectQuestion(m_run->answers, u"cmdNo"_s, [](QDialog &) {
            QCOMPARE(gImportWord, u"\u00E9t\u00E9"_s);
            QCOMPARE(gVocabList().CurrentWord().toInt(), 3);
        });
        m_run->expectImported(2);
        m_run->wordList(listFile({u"cat"_s, u"\u00E9t\u00E9"_s, u"ca"_s}));
        QCOMPARE(openEntries().mid(3), (QStringList{u"cat"_s, u"ca"_s}));
    }

    void aWordThatComesTwiceConflictsWithItself()
    {
        expectQuestion(m_run->answers, u"cmdYes"_s,
                       [](QDialog &) { QCOMPARE(gVocabList().CurrentWord().toInt(), 1); });
        m_run->expectImported(2);
        m_run->wordList(listFile({u"cat|1"_s, u"CAT|2"_s}));
        QCOMPARE(openEntries(), (QStringList{u"cat|1"_s, u"CAT|2"_s}));
    }

    void theFirstOfSeveralMatchesIsShown()
    {
        setOpenEntries({u"dog"_s, u"cat|1"_s, u"cat|2"_s});
        gVocabList().CurrentWord(3);
        expectQuestion(m_run->answers, u"cmdNo"_s,
                       [](QDialog &) { QCOMPARE(gVocabList().CurrentWord().toInt(), 2); });
        m_run->expectImported(0);
        m_run->wordList(listFile({u"cat"_s}));
    }

    void deleteAndYesReplaceTheEntryAtTheEndOfTheList()
    {
        setOpenEntries({u"cat|old"_s, u"dog"_s});
        expectQuestion(m_run->answers, u"cmdYes"_s, [this](QDialog &form) {
            m_run->answers.expectMsgBox(u"Are you sure you want to delete 'cat' ?"_s,
                                        QMessageBox::Yes);
            m_run->expectImported(1);
            giveAnswer(form, u"cmdDelete"_s);
        });
        m_run->wordList(listFile({u"cat|new"_s}));
        QCOMPARE(openEntries(), (QStringList{u"dog"_s, u"cat|new"_s}));
    }

    void aListThatWouldGrowBeyondTheMaximumTakesNothing_data()
    {
        QTest::addColumn<int>("open");
        QTest::addColumn<int>("incoming");
        QTest::newRow("full, one more") << 32000 << 1;
        QTest::newRow("one too many") << 31990 << 11;
        // The sum does not fit into 16 bits.
        QTest::newRow("twice the maximum") << 32000 << 32000;
    }

    void aListThatWouldGrowBeyondTheMaximumTakesNothing()
    {
        QFETCH(int, open);
        QFETCH(int, incoming);
        // All words exist already, but they are counted as if they were added.
        const QStringList entries = numbered("word", open);
        setOpenEntries(entries);
        m_run->answers.expectMsgBox(ExceedsMaximum);
        m_run->wordList(listFile(entries.mid(0, incoming)));
        QCOMPARE(gVocabList().NumWords().toInt(), open);
        QVERIFY(!gChanged);
        QCOMPARE(m_run->changed.size(), 0);
        QCOMPARE(gImportCount.toInt(), 0);
    }

    // Such a list can come only from a file.
    void aListBeyondTheMaximumTakesNothing()
    {
        gFileName = m_run->path(u"large.lwx"_s);
        writeFile(gFileName, listFile(numbered("word", 32001)));
        QVERIFY(gVocabList().OpenFile());
        m_run->answers.expectMsgBox(
            u"Cannot import any more words. Maximum number of words=32000"_s);
        m_run->wordList(listFile({u"cat"_s}));
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
        setOpenEntries({u"cat"_s});
        gFileName = m_run->path(u"broken.lwx"_s);
        writeFile(gFileName, QByteArray("\xFF\xFF", 2)); // -1 words
        QVERIFY_THROWS_EXCEPTION(RunTimeError, m_run->import.ImportWordList());
        QCOMPARE(openEntries(), QStringList{u"cat"_s});
    }

    void progressIsReportedAtEveryStep()
    {
        m_run->expectImported(2);
        m_run->wordList(listFile({u"cat"_s, QString(), u"dog"_s}));
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
