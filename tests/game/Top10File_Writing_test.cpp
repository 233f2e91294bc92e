// SPDX-License-Identifier: GPL-3.0-or-later
// Writing the table to its file.
#include "game/Top10File.h"

#include "game/Top10Rows.h"
#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate Day(2024, 2, 29);
const QString Name = u"top10.bin"_s;

Top10Table readBack(const QByteArray &bytes)
{
    return Top10File::decode(bytes, {});
}

Top10Table tableWithName(const QString &name)
{
    Top10Table table = tableOf({9, 8});
    table[0].PlayerName = name;
    return table;
}

} // namespace

class Top10File_Writing_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneNamedRowAndNineUnusedOnesHaveTheseBytes()
    {
        // 29 February 2024 is day 45351.
        Top10Table table = emptyTop10(Day);
        enterScore(table, 1, 7, Day);
        table[0].PlayerName = u"Ann"_s;
        const QByteArray first = QByteArray::fromHex("00000000E024E640 0300 416E6E 0700");
        const QByteArray unused = QByteArray::fromHex("00000000E024E640 0000 0000");
        QCOMPARE(first.size(), 15);
        QCOMPARE(unused.size(), 12);
        const QByteArray bytes = Top10File::encode(table);
        QCOMPARE(bytes, first + unused.repeated(9));
        QCOMPARE(bytes.size(), 123);
    }

    void aFullTableHasItsRowsOneBehindAnother()
    {
        QByteArray expected;
        for (int row = 1; row <= 10; ++row)
            expected += fileRow(43830 + row, "Player " + QByteArray::number(row), 110 - 10 * row);
        QCOMPARE(Top10File::encode(fullTable()), expected);
    }

    void pointsAreSigned()
    {
        Top10Table table = tableOf({32767, -1});
        table[9].Points = -32768;
        const QByteArray bytes = Top10File::encode(table);
        QCOMPARE(bytes.sliced(18, 2), QByteArray::fromHex("FF7F"));
        QCOMPARE(bytes.sliced(38, 2), QByteArray::fromHex("FFFF"));
        QCOMPARE(bytes.last(2), QByteArray::fromHex("0080"));
        QCOMPARE(fieldsOf(readBack(bytes)), fieldsOf(table));
    }

    void datesComeBack_data()
    {
        QTest::addColumn<QDate>("date");
        QTest::newRow("day 0") << QDate(1899, 12, 30);
        QTest::newRow("day before") << QDate(1899, 12, 29);
        QTest::newRow("leap day") << Day;
        QTest::newRow("first") << QDate(100, 1, 1);
        QTest::newRow("last") << QDate(9999, 12, 31);
        QTest::newRow("none") << QDate();
    }

    void datesComeBack()
    {
        QFETCH(QDate, date);
        Top10Table table = tableOf({9, 8});
        table[0].EntryDate = date;
        const QByteArray bytes = Top10File::encode(table);
        QCOMPARE(fieldsOf(readBack(bytes)), fieldsOf(table));
        QCOMPARE(readBack(bytes)[0].EntryDate.isValid(), date.isValid());
    }

    void namesAreWrittenInTheCodePage_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("readBack");
        const auto row = [](const char *what, const QString &name, const QByteArray &bytes,
                            const QString &readBack) {
            QTest::newRow(what) << name << bytes << readBack;
        };
        row("empty", u""_s, ""_ba, u""_s);
        row("accents and euro", u"Zoë €"_s, "Zo\xEB \x80"_ba, u"Zoë €"_s);
        row("letters that it lacks", u"Ωmega Ж"_s, "?mega ?"_ba, u"?mega ?"_s);
        row("a pair is one letter", u"😀!"_s, "?!"_ba, u"?!"_s);
        row("blanks stay", u" Ann "_s, " Ann "_ba, u" Ann "_s);
        row("longest", QString(65'535, u'é'), QByteArray(65'535, '\xE9'), QString(65'535, u'é'));
    }

    void namesAreWrittenInTheCodePage()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, bytes);
        QFETCH(QString, readBack);
        const QByteArray file = Top10File::encode(tableWithName(name));
        QVERIFY(file.startsWith(fileRow(43831, bytes, 9) + fileRow(43832, "Player 2", 8)));
        QCOMPARE(::readBack(file)[0].PlayerName, readBack);
    }

    void aTableComesBackFromItsFile()
    {
        const TestFolder folder;
        Top10File::write(folder.path(Name), fullTable());
        QCOMPARE(fieldsOf(Top10File::read(folder.path(Name), {})), fieldsOf(fullTable()));
        QCOMPARE(folder.names(), QStringList{Name});
    }

    void theTailOfALongerFileStays()
    {
        const TestFolder folder;
        const QByteArray content = Top10File::encode(fullTable());
        const QByteArray old = randomBytes(content.size() + 300, 3);
        const QString path = folder.write(Name, old);
        Top10File::write(path, fullTable());
        QCOMPARE(folder.bytes(Name), content + old.last(300));
        QCOMPARE(fieldsOf(Top10File::read(path, {})), fieldsOf(fullTable()));
    }

    void aFileCutAnywhereIsWholeAfterTheNextWrite()
    {
        const QByteArray whole = Top10File::encode(fullTable());
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const TestFolder folder;
            const QString path = folder.write(Name, whole.first(size));
            const Top10Table table = Top10File::read(path, emptyTop10(Day));
            Top10File::write(path, table);
            QCOMPARE(fieldsOf(Top10File::read(path, {})), fieldsOf(table));
            QVERIFY(folder.bytes(Name).size() >= 120);
        }
    }

    void whatIsReadFromADamagedFileComesBack()
    {
        std::mt19937 random(29);
        for (int i = 0; i < 4000; ++i) {
            QByteArray bytes = Top10File::encode(fullTable());
            for (auto hits = 1 + random() % 8; hits > 0; --hits)
                bytes[qsizetype(random() % unsigned(bytes.size()))] =
                    static_cast<char>(random() & 0xFF);
            const Top10Table table = Top10File::decode(bytes, emptyTop10(Day));
            QCOMPARE(fieldsOf(readBack(Top10File::encode(table))), fieldsOf(table));
        }
    }

    void aNameTooLongForItsLengthChangesNothing()
    {
        const TestFolder folder;
        const QString path = folder.write(Name, "the old file"_ba);
        QCOMPARE(reportOf([&] {
                     Top10File::write(path, tableWithName(QString(65'536, u'x')));
                     return 0;
                 }).section(u'\n', 0, 2),
                 u"Run-time error '6':\n\nOverflow"_s);
        QCOMPARE(folder.bytes(Name), "the old file"_ba);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    void aWriteThatFailsLeavesTheOldFile()
    {
        const TestFolder folder;
        const QString path = folder.write(Name, "the old file"_ba);
        QVERIFY(QFile::setPermissions(path, QFile::ReadOwner));
        QVERIFY(folder.setMode(0500));
        const int number = inChildProcess([&] {
            return dropPrivileges() ? int(errorNumberOf([&] {
                Top10File::write(path, fullTable());
                return 0;
            }))
                                    : 254;
        });
        QVERIFY(folder.setMode(0700));
        QCOMPARE(number, int(RunTimeError::PermissionDenied));
        QCOMPARE(folder.bytes(Name), "the old file"_ba);
        QCOMPARE(folder.names(), QStringList{Name});
    }

    void aMissingFolderIsPathNotFound()
    {
        const TestFolder folder;
        QCOMPARE(errorNumberOf([&] {
                     Top10File::write(folder.path(u"none/top10.bin"_s), fullTable());
                     return 0;
                 }),
                 RunTimeError::PathNotFound);
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(Top10File_Writing_test)

#include "Top10File_Writing_test.moc"
