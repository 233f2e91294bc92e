// SPDX-License-Identifier: GPL-3.0-or-later
// DIF files that are cut off, shuffled or damaged, the same in every run.
#include "platform/Guarded.h"
#include "transfer/ImportRun.h"

#include <QRegularExpression>

#include <random>

using namespace ImportTools;
using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QStringList Rows{u"cat|an animal"_s, u"dog|a pet"_s,   u"caf\u00E9|a place"_s,
                       u"\"\"x\"\"|"_s,    u"cat|another"_s, u"cow|gives milk"_s};
constexpr int Header = 13;
constexpr int LinesOfARow = 6;

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

    void aDamagedFileIsImportedOrReported_data()
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

    void aDamagedFileIsImportedOrReported()
    {
        QFETCH(QByteArray, bytes);
        gSkipAll = true; // the damage may have made two words equal
        QString told;
        m_run->answers.expectAnyMsgBox(QMessageBox::Ok,
                                       [&told](QMessageBox &box) { told = box.text(); });
        run(bytes);
        static const QRegularExpression count(u"^(\\d+) words added$"_s);
        static const QRegularExpression error(
            u"^Run-time error '(5|6|9|13)':\n\n(Invalid procedure call or argument|Overflow|"
            "Subscript out of range|Type mismatch)$"_s);
        QVERIFY2(count.match(told).hasMatch() || error.match(told).hasMatch(), qPrintable(told));
        const int added = gVocabList().NumWords().toInt() - 1;
        QCOMPARE(gImportCount.toInt(), added);
        if (count.match(told).hasMatch())
            QCOMPARE(count.match(told).captured(1).toInt(), added);
        QCOMPARE(openEntries().constFirst(), u"dog|old"_s);
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
