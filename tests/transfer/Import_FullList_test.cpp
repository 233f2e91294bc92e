// SPDX-License-Identifier: GPL-3.0-or-later
// A DIF file with more words than the open list has room for.
#include "transfer/ImportRun.h"

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString ListIsFull = u"Cannot add any more words. Maximum number of words= 32000"_s;

QStringList numbered(const char *word, int count)
{
    QStringList entries;
    for (int i = 1; i <= count; ++i)
        entries += u"%1 %2|d"_s.arg(QLatin1String(word)).arg(i);
    return entries;
}

} // namespace

class Import_FullList_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<ImportRun>();
        setOpenEntries(numbered("old", cVocabList::MaxWords));
    }

    void cleanup()
    {
        QVERIFY(m_run->answers.allSeen());
        QCOMPARE(gVocabList().NumWords().toInt(), cVocabList::MaxWords);
        m_run.reset();
    }

    void threeMessagesAndOneMoreComeBeforeTheCount_data()
    {
        QTest::addColumn<int>("words");
        QTest::addColumn<QString>("rest");
        QTest::newRow("3") << 3 << QString();
        QTest::newRow("4") << 4 << u"1 more word has not been added."_s;
        QTest::newRow("30000") << 30000 << u"29997 more words have not been added."_s;
    }

    void threeMessagesAndOneMoreComeBeforeTheCount()
    {
        QFETCH(int, words);
        QFETCH(QString, rest);
        expectRefusals(rest);
        m_run->expectAdded(words);
        m_run->dif(joined(difLinesOf(numbered("new", words))));
        QCOMPARE(gImportCount.toInt(), words);
    }

    // The progress bar is hidden before each message and starts again after it.
    void eachMessageIsAPause()
    {
        const QSignalSpy paused(&m_run->import, &Import::paused);
        expectRefusals(u"7 more words have not been added."_s);
        m_run->expectAdded(10);
        m_run->dif(joined(difLinesOf(numbered("new", 10))));
        QCOMPARE(paused.size(), 2 * 4 + 1); // the last one is for the number of words at the end
    }

    void eachImportTellsAnew()
    {
        for (int time = 0; time < 2; ++time) {
            expectRefusals(u"2 more words have not been added."_s);
            m_run->expectAdded(5);
            m_run->dif(joined(difLinesOf(numbered("new", 5))));
        }
    }

    // The last line, EOD, is missing.
    void anErrorComesAfterTheRest()
    {
        expectRefusals(u"2 more words have not been added."_s);
        QByteArrayList lines = difLinesOf(numbered("new", 5));
        lines.removeLast();
        QCOMPARE(m_run->difError(joined(lines)), 9);
    }

private:
    void expectRefusals(const QString &rest)
    {
        for (int i = 0; i < 3; ++i)
            m_run->answers.expectMsgBox(ListIsFull);
        if (!rest.isEmpty())
            m_run->answers.expectMsgBox(rest);
    }

    std::unique_ptr<ImportRun> m_run;
};

int main(int argc, char *argv[])
{
    return runFormTest<Import_FullList_test>(argc, argv);
}

#include "Import_FullList_test.moc"
