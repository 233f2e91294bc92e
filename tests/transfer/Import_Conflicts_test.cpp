// SPDX-License-Identifier: GPL-3.0-or-later
// Five words come in, the second and the fourth of which the list holds already: each answer to
// the first of these conflicts with each answer to the second.
#include "transfer/ImportRun.h"

using namespace ImportTools;
using namespace Module1;

namespace {

// A list file and a DIF file with the words new1, old1, new2, old2, new3.
const QStringList Incoming{QStringLiteral("new1|n1"), QStringLiteral("OLD1|o1"),
                           QStringLiteral("new2|n2"), QStringLiteral("OLD2|o2"),
                           QStringLiteral("new3|n3")};
const QStringList Open{QStringLiteral("old1|first"), QStringLiteral("old2|second")};

const char *const Yes = "cmdYes";
const char *const No = "cmdNo";
const char *const YesToAll = "cmdYesToAll";
const char *const NoToAll = "cmdNoToAll";
const char *const Abort = "cmdAbort";

// Adds a row whose words that came in are given by their definitions.
void addRow(const QList<const char *> &answers, const char *cameIn, int refreshes)
{
    QStringList names;
    for (const char *answer : answers)
        names += QString::fromLatin1(answer);
    QTest::newRow(qPrintable(names.join(QStringLiteral(", "))))
        << names << QString::fromLatin1(cameIn).split(QLatin1Char(' ')) << refreshes;
}

void addColumns()
{
    QTest::addColumn<QStringList>("questions"); // the answers to all that are asked
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

    // After a Yes each new word comes in twice until the dialog opens again.
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
        QCOMPARE(flags(), QStringLiteral("tasE"));
    }

    void aNoToAllOfAWordListHoldsForTheNextDifFileOnly()
    {
        expectQuestion(m_run->answers, QStringLiteral("cmdNoToAll"));
        m_run->expectImported(0);
        m_run->wordList(listFile({QStringLiteral("old1")}));
        QCOMPARE(flags(), QStringLiteral("taSe"));

        m_run->expectAdded(3);
        m_run->dif(joined(difLinesOf(Incoming)));
        QCOMPARE(flags(), QStringLiteral("tasE"));

        for (const char *old : {"old1", "old2"})
            expectQuestion(m_run->answers, QStringLiteral("cmdNo"), [old](QDialog &) {
                QCOMPARE(gImportWord.toLower(), QLatin1String(old));
            });
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf(
            {QStringLiteral("OLD1"), QStringLiteral("new4"), QStringLiteral("OLD2")}, "0,1")));
    }

    void aNoToAllOfAWordListDoesNotHoldForTheNextWordList()
    {
        for (int time = 0; time < 2; ++time) {
            expectQuestion(m_run->answers, QStringLiteral("cmdNoToAll"));
            m_run->expectImported(0);
            m_run->wordList(listFile({QStringLiteral("old1"), QStringLiteral("old2")}));
        }
    }

    void aNoToAllOfADifFileDoesNotHoldForTheNext()
    {
        for (int time = 0; time < 2; ++time) {
            expectQuestion(m_run->answers, QStringLiteral("cmdNoToAll"));
            m_run->expectAdded(0);
            m_run->dif(joined(difLinesOf({QStringLiteral("old1|"), QStringLiteral("old2|")})));
        }
    }

    void aYesToAllDoesNotHoldForTheNextImport()
    {
        expectQuestion(m_run->answers, QStringLiteral("cmdYesToAll"));
        m_run->expectAdded(1);
        m_run->dif(joined(difLinesOf({QStringLiteral("old1|")})));
        expectQuestion(m_run->answers, QStringLiteral("cmdYesToAll"));
        m_run->expectImported(1);
        m_run->wordList(listFile({QStringLiteral("old1")}));
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"));
        m_run->expectAdded(0);
        m_run->dif(joined(difLinesOf({QStringLiteral("old1|")})));
    }

    void aDeletedEntryIsNoConflictAnyMore()
    {
        expectQuestion(m_run->answers, QStringLiteral("cmdNo"), [this](QDialog &form) {
            m_run->answers.expectMsgBox(QStringLiteral("Are you sure you want to delete 'OLD1' ?"),
                                        QMessageBox::Yes);
            m_run->expectImported(1);
            giveAnswer(form, QStringLiteral("cmdDelete"));
        });
        m_run->wordList(listFile({QStringLiteral("OLD1|a"), QStringLiteral("OLD1|b")}));
        QCOMPARE(openEntries(),
                 (QStringList{QStringLiteral("old2|second"), QStringLiteral("OLD1|b")}));
    }

private:
    void expectQuestions()
    {
        QFETCH(QStringList, questions);
        for (qsizetype i = 0; i < questions.size(); ++i)
            expectQuestion(m_run->answers, questions[i], [i](QDialog &form) {
                QCOMPARE(gImportWord, Incoming[2 * i + 1].section(QLatin1Char('|'), 0, 0));
                QVERIFY(!gAddThis);
                QVERIFY(!gAddAll);
                // Whatever was done to the dialog before.
                QVERIFY(Controls::find<QPushButton>(form, "cmdAllowModify").isEnabled());
                QVERIFY(!Controls::find<QPushButton>(form, "cmdUpdate").isEnabled());
                giveAnswer(form, QStringLiteral("cmdAllowModify"));
            });
    }

    void checkEnd()
    {
        QFETCH(QStringList, cameIn);
        const QStringList entries = openEntries();
        QCOMPARE(entries.mid(0, 2), Open);
        QStringList definitions;
        for (const QString &entry : entries.mid(2))
            definitions += entry.section(QLatin1Char('|'), 1);
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
