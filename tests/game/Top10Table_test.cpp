// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Table.h"

#include "game/Top10Rows.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QDate Day(2024, 2, 29);

} // namespace

class Top10Table_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScoreGoesBelowItsEquals_data()
    {
        QTest::addColumn<QList<int>>("points");
        QTest::addColumn<int>("score");
        QTest::addColumn<int>("row");
        const QList<int> full{100, 90, 80, 70, 60, 50, 40, 30, 20, 10};
        QTest::newRow("empty table") << QList<int>{} << 7 << 1;
        QTest::newRow("empty table, 1 point") << QList<int>{} << 1 << 1;
        QTest::newRow("empty table, no points") << QList<int>{} << 0 << 0;
        QTest::newRow("unused rows, no points") << QList<int>{50, 40} << 0 << 0;
        QTest::newRow("negative row, no points") << QList<int>{50, -1} << 0 << 0;
        QTest::newRow("best") << full << 101 << 1;
        QTest::newRow("as the best") << full << 100 << 2;
        QTest::newRow("below the best") << full << 99 << 2;
        QTest::newRow("as the second") << full << 90 << 3;
        QTest::newRow("as row 9") << full << 20 << 10;
        QTest::newRow("last") << full << 11 << 10;
        QTest::newRow("as the last") << full << 10 << 0;
        QTest::newRow("too few") << full << 9 << 0;
        QTest::newRow("several equals") << QList<int>{50, 50, 50, 40} << 50 << 4;
        QTest::newRow("ten equals") << QList<int>(10, 50) << 50 << 0;
        QTest::newRow("ten equals, one more") << QList<int>(10, 50) << 51 << 1;
        QTest::newRow("first unused row") << QList<int>{50, 40, 30} << 5 << 4;
        QTest::newRow("only row 10 is unused") << QList<int>(9, 50) << 5 << 10;
        QTest::newRow("largest score") << full << 32767 << 1;
        QTest::newRow("row 1 unused before others") << QList<int>{0, 90, 80} << 7 << 1;
    }

    void aScoreGoesBelowItsEquals()
    {
        QFETCH(QList<int>, points);
        QFETCH(int, score);
        QFETCH(int, row);
        const Top10Table table = tableOf(points);
        QCOMPARE(rowOfScore(table, score), Integer(row));
        QCOMPARE(fieldsOf(table), fieldsOf(tableOf(points)));
    }

    void rowsFromTheNewOneMoveDown_data()
    {
        QTest::addColumn<int>("row");
        for (int row = 1; row <= 10; ++row)
            QTest::addRow("row %d", row) << row;
    }

    void rowsFromTheNewOneMoveDown()
    {
        QFETCH(int, row);
        QStringList expected = fieldsOf(fullTable());
        expected.insert(row - 1, u"2024-02-29||77"_s);
        expected.removeLast();
        Top10Table table = fullTable();
        enterScore(table, row, 77, Day);
        QCOMPARE(fieldsOf(table), expected);
    }

    void anUnusedFirstRowClearsTheTableFirst_data()
    {
        QTest::addColumn<QList<int>>("points");
        QTest::newRow("empty") << QList<int>{};
        QTest::newRow("row 1 unused before others") << QList<int>{0, 90, 80};
    }

    void anUnusedFirstRowClearsTheTableFirst()
    {
        QFETCH(QList<int>, points);
        Top10Table table = tableOf(points);
        enterScore(table, 1, 7, Day);
        QStringList expected{u"2024-02-29||7"_s};
        for (int row = 2; row <= 10; ++row)
            expected << u"2024-02-29||0"_s;
        QCOMPARE(fieldsOf(table), expected);
    }

    void tenScoresFillTheTableBestFirst()
    {
        Top10Table table = emptyTop10(Day);
        for (const int score : {5, 9, 5, 1, 12, 9, 9, 3, 2, 7, 4, 1}) {
            const Integer row = rowOfScore(table, score);
            if (row != 0)
                enterScore(table, row, score, Day);
        }
        QStringList points;
        for (const Top10Entry &entry : table)
            points << entry.Points.toText();
        QCOMPARE(points.join(u' '), u"12 9 9 9 7 5 5 4 3 2"_s);
    }

    void resetKeepsTheDates()
    {
        Top10Table table = tableOf({30, 20});
        resetScores(table);
        QStringList expected{u"2020-01-01||0"_s, u"2020-01-02||0"_s};
        for (int row = 3; row <= 10; ++row)
            expected << u"2020-02-01||0"_s;
        QCOMPARE(fieldsOf(table), expected);
    }

    void rowsShowDatePointsAndName()
    {
        QCOMPARE(rowText({Day, u"Ann"_s, 7}), dateText(Day) + u"   7 :   Ann"_s);
        QCOMPARE(rowText({Day, QString(), 32767}), dateText(Day) + u"   32767 :   "_s);
        QCOMPARE(rowText({Day, u"a : b"_s, -3}), dateText(Day) + u"   -3 :   a : b"_s);
        QCOMPARE(unnamedRowText({Day, QString(), 7}), dateText(Day) + u"   7 : "_s);
        QVERIFY(dateText(Day).contains(u"29"_s));
    }

    void anUnusedRowIsAnEmptyText()
    {
        QCOMPARE(rowText({Day, QString(), 0}), QString());
        QCOMPARE(rowText({Day, u"Ann"_s, 0}), QString());
    }

    void anInvalidDateIsAnEmptyText()
    {
        QCOMPARE(rowText({QDate(), u"Ann"_s, 7}), u"   7 :   Ann"_s);
        QCOMPARE(unnamedRowText({QDate(), QString(), 7}), u"   7 : "_s);
    }
};

QTEST_GUILESS_MAIN(Top10Table_test)

#include "Top10Table_test.moc"
