// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Top10Note.h"

#include "game/Top10Rows.h"

#include <QTest>

class Top10Note_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theEndTellsThePlaceAndThePoints_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("score");
        QTest::addColumn<QString>("note");
        QTest::newRow("first") << 1 << 260 << u"First place with 260 points!"_s;
        QTest::newRow("second") << 2 << 95 << u"Second place with 95 points!"_s;
        QTest::newRow("third") << 3 << 85 << u"Third place with 85 points!"_s;
        QTest::newRow("fourth") << 4 << 75 << u"Place 4 with 75 points!"_s;
        QTest::newRow("last") << 10 << 11 << u"Place 10 with 11 points!"_s;
        QTest::newRow("one point") << 1 << 1 << u"First place with 1 point!"_s;
        QTest::newRow("too low") << 0 << 9 << u"You made 9 points. Place 10 takes 11."_s;
        QTest::newRow("equal to row 10") << 0 << 10 << u"You made 10 points. Place 10 takes 11."_s;
        QTest::newRow("too low with one point")
            << 0 << 1 << u"You made 1 point. Place 10 takes 11."_s;
        QTest::newRow("no points") << 0 << 0 << QString();
    }

    void theEndTellsThePlaceAndThePoints()
    {
        QFETCH(int, row);
        QFETCH(int, score);
        QTEST(noteAtTheEnd(fullTable(), row, score), "note");
    }

    void theHighestScoreOfAllIsNoOverflow()
    {
        Top10Table table = fullTable();
        table.back().Points = 32767;
        QCOMPARE(noteAtTheEnd(table, 0, 5), u"You made 5 points. Place 10 takes 32768."_s);
    }

    void theViewTellsWhatClosingDoes()
    {
        QCOMPARE(noteInTheView(5), u"Close ends this game's points; Esc goes back to the game"_s);
        QCOMPARE(noteInTheView(0), QString());
    }
};

QTEST_APPLESS_MAIN(Top10Note_test)

#include "Top10Note_test.moc"
