// SPDX-License-Identifier: GPL-3.0-or-later
// Imports five words, of which the list has the second and the fourth already. Tests each answer to
// the first question with each answer to the second.
#include "transfer/ImportRun.h"

#include <QLabel>

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// A list file and a DIF file with the words new1, old1, new2, old2, new3.
const QStringList Incoming{u"new1|n1"_s, u"OLD1|o1"_s, u"new2|n2"_s, u"OLD2|o2"_s, u"new3|n3"_s};
const QStringList Open{u"old1|first"_s, u"old2|second"_s};

const char *const Yes = "cmdYes";
const char *const No = "cmdNo";
const char *const YesToAll = "cmdYesToAll";
const char *const NoToAll = "cmdNoToAll";
const char *const Abort = "cmdAbort";

// Adds a row. The imported words are given by their definitions.
void addRow(const QList<const char *> &answers, const char *cameIn, int refreshes)
{
    QStringList names;
    for (const char *answer : answers)
        names += QString::fromLatin1(answer);
    QTest::newRow(qPrintable(names.join(u", "_s)))
        << names << QString::fromLatin1(cameIn).split(u' ') << refreshes;
}

void addColumns()
{
    QTest::addColumn<QStringList>("questions"); // the answers to the questions, in order
    QTest::addColumn<QStringList>("cameIn");
    QTest::addColumn<int>("refreshes");
}

} // namespace

class Import_Conflicts_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<ImportRun>();
        setOpenEntries(Open);
    }

    void cleanup()
    {
        QVERIFY(m_run->answers.allSeen());
        m_run.reset();
    }

    void aWordListsConflictsEndAsAnswered_data()
    {
        addColumns();
        addRow({Yes, Yes}, "n1 o1 n2 o2 n3", 2);
        addRow({Yes, No}, "n1 o1 n2 n3", 1);
        addRow({Yes, YesToAll}, "n1 o1 n2 o2 n3", 2);
        addRow({Yes, NoToAll}, "n1 o1 n2 n3", 2);
        addRow({Yes, Abort}, "n1 o1 n2", 2);
        addRow({Yes, Close}, "n1 o1 n2 n3", 1);
        for (const char *skip : {No, Close}) {
            addRow({skip, Yes}, "n1 n2 o2 n3", 1);
            addRow({skip, No}, "n1 n2 n3", 0);
            addRow({skip, YesToAll}, "n1 n2 o2 n3", 1);
            addRow({skip, NoToAll}, "n1 n2 n3", 1);
            addRow({skip, Abort}, "n1 n2", 1);
            addRow({skip, Close}, "n1 n2 n3", 0);
        }
        addRow({YesToAll}, "n1 o1 n2 o2 n3", 1);
        addRow({NoToAll}, "n1 n2 n3", 1);
        addRow({Abort}, "n1", 1);
    }

    void aWordListsConflictsEndAsAnswered()
    {
        expectQuestions();
        QFETCH(QStringList, cameIn);
        m_run->expectImported(int(cameIn.size()));
        m_run->wordList(listFile(Incoming));
        checkEnd();
        QVERIFY(!gAddThis);
        QVERIFY(!gAddAll);
    }

    // After a Yes each new word is added twice, until the dialog opens again.
    void aDifFilesConflictsEndAsAnswered_data()
    {
        addColumns();
        addRow({Yes, Yes}, "n1 o1 n2 n2 o2 n3 n3", 2);
        addRow({Yes, No}, "n1 o1 n2 n2 n3", 1);
        addRow({Yes, YesToAll}, "n1 o1 n2 n2 o2 n3", 2);
        addRow({Yes, NoToAll}, "n1 o1 n2 n2 n3", 2);
        addRow({Yes, Abort}, "n1 o1 n2 n2", 2);
        addRow({Yes, Close}, "n1 o1 n2 n2 n3", 1);
        for (const char *skip : {No, Close}) {
            addRow({skip, Yes}, "n1 n2 o2 n3 n3", 1);
            addRow({skip, No}, "n1 n2 n3", 0);
            addRow({skip, YesToAll}, "n1 n2 o2 n3", 1);
            addRow({skip, NoToAll}, "n1 n2 n3", 1);
            addRow({skip, Abort}, "n1 n2", 1);
            addRow({skip, Close}, "n1 n2 n3", 0);
        }
        addRow({YesToAll}, "n1 o1 n2 o2 n3", 1);
        addRow({NoToAll}, "n1 n2 n3", 1);
        addRow({Abort}, "n1", 1);
    }

    void aDifFilesConflictsEndAsAnswered()
    {
        expectQuestions();
        QFETCH(QStringList, cameIn);
        m_run->expectAdded(int(cameIn.size()));
        m_run->dif(joined(difLinesOf(Incoming)));
        checkEnd();
        QCOMPARE(flags(), u"tasE"_s);
    }

    void aNoToAllOfAWordListHoldsForTheNextDifFileOnly()
    {
        expectQuestion(m_run->answers, u"cmdNoToAll"_s);
        m_run->expectImported(0);
        m_run->wordList(listFile({u"old1"_s}));
        QCOMPARE(flags(), u"taSe"_s);

        m_run->expectAdded(3);
        m_run->dif(joined(difLinesOf(Incoming)));
        QCOMPARE(flags(), u"tasE"_s);

        for (const char *old : {"old1", "old2"})
            expectQuestion(m_run->answers, u"cmdNo"_s, [old](QDialog &) {
                QCOMPARE(gImportWord.toLower(), QLatin1String(old));
            });
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({u"OLD1"_s, u"new4"_s, u"OLD2"_s}, "0,1")));
    }

    void aNoToAllOfAWordListDoesNotHoldForTheNextWordList()
    {
        for (int time = 0; time < 2; ++time) {
            expectQuestion(m_run->answers, u"cmdNoToAll"_s);
            m_run->expectImported(0);
            m_run->wordList(listFile({u"old1"_s, u"old2"_s}));
        }
    }

    void aNoToAllOfADifFileDoesNotHoldForTheNext()
    {
        for (int time = 0; time < 2; ++time) {
            expectQuestion(m_run->answers, u"cmdNoToAll"_s);
            m_run->expectAdded(0);
            m_run->dif(joined(difLinesOf({u"old1|"_s, u"old2|"_s})));
        }
    }

    void aYesToAllDoesNotHoldForTheNextImport()
    {
        expectQuestion(m_run->answers, u"cmdYesToAll"_s);
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({u"old1|"_s})));
        expectQuestion(m_run->answers, u"cmdYesToAll"_s);
        m_run->expectImported(1);
        m_run->wordList(listFile({u"old1"_s}));
        expectQuestion(m_run->answers, u"cmdNo"_s);
        m_run->expectAdded(0);
        m_run->dif(joined(difLinesOf({u"old1|"_s})));
    }

    void theQuestionsAreNumbered_data()
    {
        QTest::addColumn<QStringList>("words");
        QTest::addColumn<QStringList>("answers");
        QTest::addColumn<QString>("numbers");
        const auto row = [](const char *name, const char *words, const QStringList &answers,
                            const char *numbers) {
            QTest::newRow(name) << QString::fromLatin1(words).split(u' ') << answers
                                << QString::fromLatin1(numbers);
        };
        const QString yes = QString::fromLatin1(Yes);
        const QString no = QString::fromLatin1(No);
        row("one", "old1 new1", {no}, "1 of 1");
        row("some", "new1 OLD1 old2 new2 old1", {no, yes, no}, "1 of 3, 2 of 3, 3 of 3");
        row("a new word twice", "new1 old1 NEW1 new1", {no, yes, no}, "1 of 3, 2 of 3, 3 of 3");
        row("a new word twice behind it", "old1 new1 NEW1", {no, no}, "1 of 2, 2 of 2");
        row("Yes To All", "old1 old2", {QString::fromLatin1(YesToAll)}, "1 of 2");
        row("No To All", "old1 old2", {QString::fromLatin1(NoToAll)}, "1 of 2");
        row("a deletion before No", "old1 old1 old2", {u"cmdDelete"_s, no, no}, "1 of 3, 2 of 2");
        row("a deletion before Yes", "old1 old1 old2", {u"cmdDelete"_s, yes, no, no},
            "1 of 3, 2 of 3, 3 of 3");
    }

    void theQuestionsAreNumbered()
    {
        QFETCH(QStringList, words);
        QFETCH(QStringList, answers);
        for (const bool isDif : {false, true}) {
            setOpenEntries(Open);
            gSkipAll = false;
            QStringList numbers;
            expectAnswers(answers, numbers);
            if (isDif)
                m_run->dif(joined(difLinesOf(words, "0,1")));
            else
                m_run->wordList(listFile(words));
            QTEST(numbers.join(u", "_s).remove(u"Conflict "_s), "numbers");
        }
    }

    // The rows before the mistake come in.
    void aMalformedDifFileIsCountedUpToItsMistake()
    {
        QByteArrayList lines = difLinesOf({u"old1|"_s, u"old2|"_s, u"old1|"_s});
        lines[lines.size() - 3] = "V"; // the last value
        for (const char *number : {"Conflict 1 of 2", "Conflict 2 of 2"})
            expectQuestion(m_run->answers, u"cmdNo"_s, [number](QDialog &form) {
                QCOMPARE(Controls::find<QLabel>(form, "lblConflict").text(), QLatin1String(number));
            });
        QCOMPARE(m_run->difError(joined(lines)), 5);
    }

    void aDeletedEntryIsNoConflictAnyMore()
    {
        expectQuestion(m_run->answers, u"cmdNo"_s, [this](QDialog &form) {
            m_run->answers.expectMsgBox(u"Are you sure you want to delete 'OLD1' ?"_s,
                                        QMessageBox::Yes);
            m_run->expectImported(1);
            giveAnswer(form, u"cmdDelete"_s);
        });
        m_run->wordList(listFile({u"OLD1|a"_s, u"OLD1|b"_s}));
        QCOMPARE(openEntries(), (QStringList{u"old2|second"_s, u"OLD1|b"_s}));
    }

private:
    // Each answer to a question, with cmdDelete before it where the entry is deleted first; then
    // the message at the end. Collects the headings of the questions.
    void expectAnswers(QStringList answers, QStringList &headings)
    {
        if (answers.isEmpty()) {
            m_run->answers.expectAnyMsgBox(QMessageBox::Ok, [](QMessageBox &) {});
            return;
        }
        const bool deletes = answers.constFirst() == u"cmdDelete"_s;
        if (deletes)
            answers.removeFirst();
        const QString answer = answers.takeFirst();
        const auto look = [this, &headings, deletes, answers](QDialog &form) {
            headings += Controls::find<QLabel>(form, "lblConflict").text();
            if (deletes) {
                m_run->answers.expectMsgBox(u"Are you sure you want to delete 'old1' ?"_s,
                                            QMessageBox::Yes);
                giveAnswer(form, u"cmdDelete"_s);
            }
            expectAnswers(answers, headings);
        };
        expectQuestion(m_run->answers, answer, look);
    }

    void expectQuestions()
    {
        QFETCH(QStringList, questions);
        for (qsizetype i = 0; i < questions.size(); ++i)
            expectQuestion(m_run->answers, questions[i], [i](QDialog &form) {
                QCOMPARE(gImportWord, Incoming[2 * i + 1].section(u'|', 0, 0));
                QVERIFY(!gAddThis);
                QVERIFY(!gAddAll);
                // Independent of what was done in the dialog before.
                QVERIFY(Controls::find<QPushButton>(form, "cmdAllowModify").isEnabled());
                QVERIFY(!Controls::find<QPushButton>(form, "cmdUpdate").isEnabled());
                giveAnswer(form, u"cmdAllowModify"_s);
            });
    }

    void checkEnd()
    {
        QFETCH(QStringList, cameIn);
        const QStringList entries = openEntries();
        QCOMPARE(entries.mid(0, 2), Open);
        QStringList definitions;
        for (const QString &entry : entries.mid(2))
            definitions += entry.section(u'|', 1);
        QCOMPARE(definitions, cameIn);
        QCOMPARE(gImportCount.toInt(), int(cameIn.size()));
        QVERIFY(gChanged);
        QTEST(int(m_run->refreshed.size()), "refreshes");
    }

    std::unique_ptr<ImportRun> m_run;
};

int main(int argc, char *argv[])
{
    return runFormTest<Import_Conflicts_test>(argc, argv);
}

#include "Import_Conflicts_test.moc"
