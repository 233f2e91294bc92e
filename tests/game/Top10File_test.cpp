// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10File.h"

#include "game/Top10Rows.h"
#include "runtime/ErrorNumber.h"
#include "runtime/Windows1252.h"
#include "support/TestFiles.h"

#include <QDataStream>
#include <QTest>

#include <bit>
#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

const QDate Day(2024, 2, 29);

// Default rows with names that are in no file.
Top10Table defaults()
{
    Top10Table table = emptyTop10(Day);
    for (std::size_t i = 0; i < table.size(); ++i)
        table[i].PlayerName = u"default %1"_s.arg(i);
    return table;
}

QByteArray tenRows()
{
    QByteArray bytes;
    for (int i = 1; i <= 10; ++i)
        bytes += fileRow(45000 + i, "Player " + QByteArray::number(i), 1000 - i);
    return bytes;
}

// The expected rows, read field by field with QDataStream.
QStringList readByStream(const QByteArray &bytes, const Top10Table &missing)
{
    QDataStream stream(bytes);
    stream.setByteOrder(QDataStream::LittleEndian);
    QStringList texts;
    for (const Top10Entry &row : missing) {
        if (stream.atEnd()) {
            texts << fieldsOf(row);
            continue;
        }
        quint64 bits = 0;
        quint16 length = 0;
        qint16 points = 0;
        stream >> bits;
        if (stream.status() != QDataStream::Ok)
            bits = 0;
        stream >> length;
        if (stream.status() != QDataStream::Ok)
            length = 0;
        QByteArray name(length, '\0');
        name.truncate(std::max(0, stream.readRawData(name.data(), length)));
        stream >> points;
        if (stream.status() != QDataStream::Ok)
            points = 0;
        const auto days = std::bit_cast<double>(bits);
        const bool isDate = days > -657'435 && days < 2'958'466; // years 100 to 9999
        const QDate date = isDate ? QDate(1899, 12, 30).addDays(qint64(std::trunc(days))) : QDate();
        texts << QStringList{date.toString(Qt::ISODate), fromWindows1252(name),
                             QString::number(points)}
                     .join(u'|');
    }
    return texts;
}

} // namespace

class Top10File_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anEmptyTableHasTenUnusedRowsOfTheDay()
    {
        const Top10Table table = emptyTop10(Day);
        QCOMPARE(table.size(), std::size_t(10));
        for (const Top10Entry &entry : table)
            QCOMPARE(fieldsOf(entry), u"2024-02-29||0"_s);
    }

    void rowsHaveTheseBytes()
    {
        // 2 January 1900 is day 3; Ann has 7 points.
        const QByteArray first = QByteArray::fromHex("0000000000000840 0300 416E6E 0700");
        const QByteArray unused = QByteArray::fromHex("00000000C0D5E540 0000 0000");
        QCOMPARE(first.size(), 15);
        const QByteArray bytes = first + unused.repeated(9);
        QCOMPARE(bytes.size(), 123);
        QStringList expected{u"1900-01-02|Ann|7"_s};
        for (int i = 2; i <= 10; ++i)
            expected << u"2022-06-06||0"_s;
        QCOMPARE(fieldsOf(Top10File::decode(bytes, defaults())), expected);
    }

    void allTenRowsAreReadInOrderAndNothingBehind()
    {
        const Top10Table table =
            Top10File::decode(tenRows() + fileRow(1, "eleventh", 1), defaults());
        for (int i = 1; i <= 10; ++i)
            QCOMPARE(fieldsOf(table[std::size_t(i - 1)]),
                     QStringList({QDate(2023, 3, 15).addDays(i).toString(Qt::ISODate),
                                  u"Player %1"_s.arg(i), QString::number(1000 - i)})
                         .join(u'|'));
    }

    void pointsAreSigned_data()
    {
        QTest::addColumn<int>("points");
        for (const int points : {-32768, -1, 0, 255, 256, 32767})
            QTest::addRow("%d", points) << points;
    }

    void pointsAreSigned()
    {
        QFETCH(int, points);
        const Top10Table table = Top10File::decode(fileRow(1, "A", points), defaults());
        QCOMPARE(table[0].Points.toInt(), points);
    }

    void namesAreReadFromTheCodePage_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("name");
        QTest::newRow("empty") << QByteArray() << QString();
        QTest::newRow("accents and euro") << "Zo\xEB \x80"_ba << u"Zoë €"_s;
        QTest::newRow("blanks stay") << " Ann "_ba << u" Ann "_s;
        QTest::newRow("longest") << QByteArray(65'535, 'x') << QString(65'535, u'x');
    }

    void namesAreReadFromTheCodePage()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, name);
        const Top10Table table =
            Top10File::decode(fileRow(1, bytes, 5) + fileRow(2, "next", 6), defaults());
        QCOMPARE(table[0].PlayerName, name);
        QCOMPARE(fieldsOf(table[1]), u"1900-01-01|next|6"_s);
    }

    void dayCountsAreDates_data()
    {
        QTest::addColumn<double>("days");
        QTest::addColumn<QDate>("date");
        QTest::newRow("day 0") << 0.0 << QDate(1899, 12, 30);
        QTest::newRow("minus zero") << -0.0 << QDate(1899, 12, 30);
        QTest::newRow("leap day") << 45351.0 << QDate(2024, 2, 29);
        QTest::newRow("time of day does not count") << 45351.999 << QDate(2024, 2, 29);
        QTest::newRow("negative") << -1.0 << QDate(1899, 12, 29);
        QTest::newRow("negative with a time of day") << -1.75 << QDate(1899, 12, 29);
        QTest::newRow("first") << -657434.0 << QDate(100, 1, 1);
        QTest::newRow("before the first") << -657435.0 << QDate();
        QTest::newRow("last") << 2958465.0 << QDate(9999, 12, 31);
        QTest::newRow("last with a time of day") << 2958465.5 << QDate(9999, 12, 31);
        QTest::newRow("behind the last") << 2958466.0 << QDate();
        QTest::newRow("huge") << 1e300 << QDate();
        QTest::newRow("huge negative") << -1e300 << QDate();
        QTest::newRow("tiny") << std::numeric_limits<double>::denorm_min() << QDate(1899, 12, 30);
        QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << QDate();
        QTest::newRow("minus infinite") << -std::numeric_limits<double>::infinity() << QDate();
        QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << QDate();
    }

    void dayCountsAreDates()
    {
        QFETCH(double, days);
        QFETCH(QDate, date);
        const Top10Table table = Top10File::decode(fileRow(days, "A", 5), defaults());
        QCOMPARE(table[0].EntryDate, date);
        QCOMPARE(table[0].PlayerName, u"A"_s);
        QCOMPARE(table[0].Points.toInt(), 5);
    }

    void rowsThatAShortFileLacksKeepTheirDefaults()
    {
        const Top10Table missing = defaults();
        const QByteArray whole = tenRows();
        QByteArray bytes;
        for (std::size_t rows = 0; rows <= 10; ++rows) {
            const QStringList texts = fieldsOf(Top10File::decode(bytes, missing));
            for (std::size_t i = 0; i < 10; ++i)
                if (i < rows)
                    QVERIFY(texts[qsizetype(i)].contains(u"|Player %1|"_s.arg(i + 1)));
                else
                    QCOMPARE(texts[qsizetype(i)], fieldsOf(missing[i]));
            bytes = whole.first(std::min(whole.size(), bytes.size() + (rows == 9 ? 21 : 20)));
        }
    }

    void aFileCutAnywhereKeepsTheBytesThatAreThere()
    {
        const QByteArray whole = tenRows();
        for (qsizetype size = 0; size <= whole.size(); ++size) {
            const QByteArray cut = whole.first(size);
            QCOMPARE(fieldsOf(Top10File::decode(cut, defaults())), readByStream(cut, defaults()));
        }
        // The expected texts for four of these cuts.
        const auto firstRow = [&](int size) {
            return fieldsOf(Top10File::decode(whole.first(size), defaults())[0]);
        };
        QCOMPARE(firstRow(7), u"1899-12-30||0"_s);
        QCOMPARE(firstRow(9), u"2023-03-16||0"_s);
        QCOMPARE(firstRow(13), u"2023-03-16|Pla|0"_s);
        QCOMPARE(firstRow(19), u"2023-03-16|Player 1|0"_s);
    }

    void randomDamageIsReadAsTheLayoutSays()
    {
        std::mt19937 random(17);
        for (int i = 0; i < 4000; ++i) {
            QByteArray bytes = tenRows();
            for (auto hits = 1 + random() % 5; hits > 0; --hits) {
                const auto at = qsizetype(random() % unsigned(bytes.size()));
                switch (random() % 3) {
                case 0:
                    bytes[at] = static_cast<char>(random() & 0xFF);
                    break;
                case 1:
                    bytes.insert(at, static_cast<char>(random() & 0xFF));
                    break;
                default:
                    bytes.remove(at, 1);
                }
            }
            QCOMPARE(fieldsOf(Top10File::decode(bytes, defaults())),
                     readByStream(bytes, defaults()));
        }
    }

    void randomBytesAreReadAsTheLayoutSays()
    {
        for (unsigned i = 0; i < 2000; ++i) {
            const QByteArray bytes = randomBytes(qsizetype(i % 500), i);
            QCOMPARE(fieldsOf(Top10File::decode(bytes, defaults())),
                     readByStream(bytes, defaults()));
        }
    }

    void aMissingFileIsCreatedEmptyAndGivesTheDefaults()
    {
        const TestFolder folder;
        QCOMPARE(fieldsOf(Top10File::read(folder.path(u"top10.bin"_s), defaults())),
                 fieldsOf(defaults()));
        QCOMPARE(folder.names(), QStringList{u"top10.bin"_s});
        QCOMPARE(folder.bytes(u"top10.bin"_s), QByteArray());
    }

    void aFileIsReadAndLeftAsItIs()
    {
        const TestFolder folder;
        const QString path = folder.write(u"top10.bin"_s, tenRows() + "old tail");
        QCOMPARE(fieldsOf(Top10File::read(path, defaults())), readByStream(tenRows(), defaults()));
        QCOMPARE(folder.bytes(u"top10.bin"_s), tenRows() + "old tail");
    }

    void aMissingFolderIsPathNotFound()
    {
        const TestFolder folder;
        QCOMPARE(errorNumberOf(
                     [&] { return Top10File::read(folder.path(u"none/top10.bin"_s), defaults()); }),
                 RunTimeError::PathNotFound);
        QCOMPARE(folder.names(), QStringList());
    }
};

QTEST_GUILESS_MAIN(Top10File_test)
#include "Top10File_test.moc"
