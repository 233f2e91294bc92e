// SPDX-License-Identifier: GPL-3.0-or-later
// DIF files that are cut off, shuffled or damaged, the same in every run. An import has to end with
// the entries and the message that PlainReader finds.
#include "platform/Guarded.h"
#include "runtime/Windows1252.h"
#include "transfer/DifLines.h"
#include "transfer/ImportRun.h"

#include <random>

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QStringList Rows{u"cat|an animal"_s, u"dog|a pet"_s,   u"caf\u00E9|a place"_s,
                       u"\"\"x\"\"|"_s,    u"cat|another"_s, u"cow|gives milk"_s};
constexpr int Header = 13;
constexpr int LinesOfARow = 6;

class PlainReader
{
public:
    // The open list has this entry.
    PlainReader(const QByteArray &bytes, const QString &openEntry)
        : entries{openEntry}, m_words{parts(openEntry).constFirst()}
    {
        const bool hasReturns = bytes.contains('\r');
        for (const QByteArray &line : bytes.split(hasReturns ? '\r' : '\n'))
            m_lines +=
                !m_lines.isEmpty() && hasReturns && line.startsWith('\n') ? line.mid(1) : line;
        if (m_lines.constLast().isEmpty())
            m_lines.removeLast();
        try {
            readRows();
            told = u"%1 words added"_s.arg(entries.size() - 1);
        } catch (const RunTimeError &error) {
            told = error.report();
        }
    }

    QStringList entries; // of the open list after the import
    QString told;        // the message at the end

private:
    [[nodiscard]] QString line(int number) const
    {
        if (number > m_lines.size())
            throw RunTimeError(RunTimeError::SubscriptOutOfRange);
        return fromWindows1252(m_lines[number - 1]);
    }

    void readRows()
    {
        const bool hasRows = difVectors(line(5)) >= 1;
        const Integer values = difTuples(line(8));
        if (!hasRows)
            return;
        int at = Header + 1;
        do {
            if (line(at) != u"BOT") {
                ++at;
                continue;
            }
            m_texts[0] = difValue(line(at += 2));
            if (values == 2 || values == 3)
                m_texts[values.toInt() - 1] = difValue(line(at += 2));
            if (!m_words.contains(m_texts[0], Qt::CaseInsensitive)) {
                m_words += m_texts[0];
                entries += entryOf(m_texts);
            }
        } while (line(at) != u"EOD");
    }

    QByteArrayList m_lines;
    QStringList m_texts{{}, {}, {}}; // of the row that is read: word, definition and sentence
    QStringList m_words;             // of the open list
};

} // namespace

class Import_Damage_test final : public QObject
{
    Q_OBJECT

    using Random = std::mt19937;

    static std::size_t below(Random &random, qsizetype bound)
    {
        return random() % static_cast<std::size_t>(bound);
    }

private Q_SLOTS:
    void init()
    {
        m_run = std::make_unique<ImportRun>();
        setOpenEntries({u"dog|old"_s});
    }

    void cleanup()
    {
        QVERIFY(m_run->answers.allSeen());
        m_run.reset();
    }

    // 50 files.
    void aFileCutAfterAnyLineGivesItsWholeRows_data()
    {
        QTest::addColumn<int>("lines");
        for (int i = 0; i < difLinesOf(Rows).size(); ++i)
            QTest::addRow("%d lines", i) << i;
    }

    void aFileCutAfterAnyLineGivesItsWholeRows()
    {
        QFETCH(int, lines);
        gSkipAll = true;
        const QByteArrayList whole = difLinesOf(Rows);
        m_run->answers.expectMsgBox(u"Run-time error '9':\n\nSubscript out of range"_s);
        run(joined(whole.mid(0, lines)));
        // BOT, then a type line and a value line for the word and for the definition.
        int rows = 0;
        while (rows < Rows.size() && lines >= Header + rows * LinesOfARow + 5)
            ++rows;
        QStringList expected{u"dog|old"_s};
        for (int row = 0; row < rows; ++row)
            if (row != 1 && row != 4) // conflicts
                expected += Rows[row].chopped(Rows[row].endsWith(u'|') ? 1 : 0);
        QCOMPARE(openEntries(), expected);
    }

    void aDamagedFileGivesWhatItsLinesSay_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        Random random(20'040'917); // the same files in every run
        const QByteArrayList whole = difLinesOf(Rows);
        const QByteArrayList ends{"\r\n", "\r", "\n"};
        for (int i = 0; i < 90; ++i) {
            QByteArrayList lines = whole;
            for (int swaps = 0; swaps <= i % 5; ++swaps)
                lines.swapItemsAt(qsizetype(below(random, lines.size())),
                                  qsizetype(below(random, lines.size())));
            QTest::addRow("lines swapped %d", i) << joined(lines, ends[i % 3]);
        }
        for (int i = 0; i < 60; ++i) {
            QByteArrayList lines = whole;
            const auto line = qsizetype(below(random, lines.size()));
            if (i % 2 == 0)
                lines.removeAt(line);
            else
                lines.insert(line, lines[qsizetype(below(random, lines.size()))]);
            QTest::addRow("a line lost or doubled %d", i) << joined(lines, ends[i % 3]);
        }
        for (int i = 0; i < 90; ++i) {
            QByteArray bytes = joined(whole, ends[i % 3]);
            for (int damage = 0; damage <= i % 8; ++damage)
                bytes[qsizetype(below(random, bytes.size()))] = static_cast<char>(random());
            QTest::addRow("random bytes %d", i) << bytes;
        }
        for (int i = 0; i < 40; ++i) {
            QByteArray bytes = joined(whole, ends[i % 3]);
            bytes.truncate(qsizetype(below(random, bytes.size())));
            QTest::addRow("cut at a byte %d", i) << bytes;
        }
        for (int i = 0; i < 20; ++i) {
            QByteArray bytes;
            for (auto left = below(random, 2000); left > 0; --left)
                bytes += static_cast<char>(i % 2 == 0 ? random() : "BOTED01,\"\r\n"[random() % 10]);
            QTest::addRow("nothing but noise %d", i) << bytes;
        }
    }

    void aDamagedFileGivesWhatItsLinesSay()
    {
        QFETCH(QByteArray, bytes);
        gSkipAll = true; // the damage may have made two words equal
        const PlainReader expected(bytes, u"dog|old"_s);
        m_run->answers.expectMsgBox(expected.told);
        run(bytes);
        QCOMPARE(openEntries(), expected.entries);
        QCOMPARE(gImportCount.toInt(), expected.entries.size() - 1);
    }

    // After an error the next import works.
    void afterADamagedFileAGoodOneIsImported()
    {
        gSkipAll = true;
        m_run->answers.expectMsgBox(u"Run-time error '5':\n\nInvalid procedure call or argument"_s);
        QByteArrayList lines = difLinesOf(Rows);
        lines[15] = "V";
        run(joined(lines));
        m_run->expectAdded(4);
        run(joined(difLinesOf(Rows)));
    }

private:
    // Reports an error as the main window does.
    void run(const QByteArray &bytes)
    {
        runGuarded([&] { m_run->dif(bytes); });
    }

    std::unique_ptr<ImportRun> m_run;
};

int main(int argc, char *argv[])
{
    return runFormTest<Import_Damage_test>(argc, argv);
}

#include "Import_Damage_test.moc"
