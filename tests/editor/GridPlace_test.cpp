// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/GridPlace.h"

#include <QTest>

namespace {

GridPlace movedTimes(GridPlace place, GridMove move, int times, int entries)
{
    for (int i = 0; i < times; ++i)
        place = placeAfter(move, place, entries);
    return place;
}

} // namespace

class GridPlace_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aKeyLeadsTo_data();
    void aKeyLeadsTo();
    void downWalksThroughEveryEntryToTheLastFullPage();
    void upWalksBackThroughEveryEntry();
    void theWheelLeadsTo_data();
    void theWheelLeadsTo();
    void thePageOfANewWordEndsWithItsRow_data();
    void thePageOfANewWordEndsWithItsRow();
};

void GridPlace_test::aKeyLeadsTo_data()
{
    QTest::addColumn<GridMove>("move");
    QTest::addColumn<int>("entries");
    QTest::addColumn<GridPlace>("from");
    QTest::addColumn<GridPlace>("to");
    const auto row = [](const char *name, GridMove move, int entries, GridPlace from,
                        GridPlace to) { QTest::newRow(name) << move << entries << from << to; };
    row("up inside the page", GridMove::RowUp, 60, {30, 5}, {30, 4});
    row("up at the upper edge", GridMove::RowUp, 60, {30, 1}, {29, 1});
    row("up at the first entry", GridMove::RowUp, 60, {1, 1}, {1, 1});
    row("down inside the page", GridMove::RowDown, 60, {30, 5}, {30, 6});
    row("down at the lower edge", GridMove::RowDown, 60, {30, 23}, {31, 23});
    row("down at the last entry", GridMove::RowDown, 60, {38, 23}, {38, 23});
    row("down at the end of a short list", GridMove::RowDown, 7, {1, 7}, {1, 7});
    row("page up", GridMove::PageUp, 60, {30, 5}, {7, 5});
    row("page up onto the first page", GridMove::PageUp, 60, {5, 22}, {1, 3});
    row("page up on the first page", GridMove::PageUp, 60, {1, 9}, {1, 1});
    row("page down", GridMove::PageDown, 60, {2, 5}, {25, 5});
    row("page down onto the last page", GridMove::PageDown, 60, {30, 1}, {38, 16});
    row("page down on the last page", GridMove::PageDown, 60, {38, 9}, {38, 23});
    row("page down in a short list", GridMove::PageDown, 7, {1, 2}, {1, 7});
    row("home", GridMove::First, 60, {30, 5}, {1, 1});
    row("end", GridMove::Last, 60, {30, 5}, {38, 23});
    row("end of a list of one page", GridMove::Last, 23, {1, 1}, {1, 23});
    row("end of a short list", GridMove::Last, 7, {1, 1}, {1, 7});
    row("end of the only entry", GridMove::Last, 1, {1, 1}, {1, 1});
    row("end of the longest list that has pages", GridMove::Last, 32766, {1, 1}, {32744, 23});
    // The scroll bar goes further than the last full page.
    row("up behind the last full page", GridMove::RowUp, 60, {60, 1}, {59, 1});
    row("down behind the last full page", GridMove::RowDown, 60, {59, 2}, {59, 2});
    row("page up from behind the last full page", GridMove::PageUp, 60, {60, 1}, {37, 1});
    row("page down behind the last full page", GridMove::PageDown, 60, {50, 1}, {50, 11});
    row("end from behind the last full page", GridMove::Last, 60, {60, 1}, {38, 23});
    row("up on an empty page", GridMove::RowUp, 60, {0, 1}, {38, 23});
    row("down on an empty page", GridMove::RowDown, 5, {0, 1}, {1, 5});
    row("end on an empty page", GridMove::Last, 5, {0, 1}, {1, 5});
    // A click may leave the current cell where no entry is.
    row("up from below the last entry", GridMove::RowUp, 7, {1, 20}, {1, 7});
    row("down from below the last entry", GridMove::RowDown, 7, {1, 20}, {1, 7});
    row("down from the header", GridMove::RowDown, 7, {1, 0}, {1, 1});
    row("up from the header", GridMove::RowUp, 60, {5, 0}, {4, 1});
    row("page down from the header", GridMove::PageDown, 60, {2, 0}, {25, 1});
    row("page up from below the last entry", GridMove::PageUp, 60, {50, 20}, {27, 11});
}

void GridPlace_test::aKeyLeadsTo()
{
    QFETCH(GridMove, move);
    QFETCH(int, entries);
    QFETCH(GridPlace, from);
    QFETCH(GridPlace, to);
    const GridPlace place = placeAfter(move, from, entries);
    QCOMPARE(place.first, to.first);
    QCOMPARE(place.row, to.row);
}

void GridPlace_test::downWalksThroughEveryEntryToTheLastFullPage()
{
    GridPlace place;
    for (int entry = 2; entry <= 60; ++entry) {
        place = placeAfter(GridMove::RowDown, place, 60);
        QCOMPARE(place.first + place.row - 1, entry);
        QVERIFY(place.row <= GridPlace::Rows);
    }
    QCOMPARE(place.first, 38);
}

void GridPlace_test::upWalksBackThroughEveryEntry()
{
    const GridPlace last = movedTimes({}, GridMove::Last, 1, 60);
    GridPlace place = last;
    for (int entry = 59; entry >= 1; --entry) {
        place = placeAfter(GridMove::RowUp, place, 60);
        QCOMPARE(place.first + place.row - 1, entry);
        QVERIFY(place.row >= 1);
    }
    QCOMPARE(place.first, 1);
    // Page by page back again.
    QVERIFY(movedTimes(place, GridMove::PageDown, 3, 60) == last);
}

void GridPlace_test::theWheelLeadsTo_data()
{
    QTest::addColumn<int>("first");
    QTest::addColumn<int>("rows");
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("expected");
    QTest::newRow("down") << 10 << 3 << 60 << 13;
    QTest::newRow("up") << 10 << -3 << 60 << 7;
    QTest::newRow("up to the first entry") << 2 << -3 << 60 << 1;
    QTest::newRow("up on the first page") << 1 << -3 << 60 << 1;
    QTest::newRow("down to the last full page") << 37 << 3 << 60 << 38;
    QTest::newRow("down on the last full page") << 38 << 3 << 60 << 38;
    QTest::newRow("down in a list of one page") << 1 << 3 << 23 << 1;
    QTest::newRow("down in a list of one entry more") << 1 << 3 << 24 << 2;
    QTest::newRow("down in a short list") << 1 << 3 << 7 << 1;
    QTest::newRow("down behind the last full page") << 50 << 3 << 60 << 50;
    QTest::newRow("up behind the last full page") << 60 << -3 << 60 << 57;
    QTest::newRow("on an empty page") << 0 << 3 << 60 << 38;
    QTest::newRow("on an empty page of a short list") << 0 << -3 << 5 << 1;
}

void GridPlace_test::theWheelLeadsTo()
{
    QFETCH(int, first);
    QFETCH(int, rows);
    QFETCH(int, entries);
    QTEST(firstAfterWheel(first, rows, entries), "expected");
}

void GridPlace_test::thePageOfANewWordEndsWithItsRow_data()
{
    QTest::addColumn<int>("entries");
    QTest::addColumn<int>("expected");
    QTest::newRow("no entry") << 0 << 1;
    QTest::newRow("the new word fills the page") << 22 << 1;
    QTest::newRow("a full page") << 23 << 2;
    QTest::newRow("many pages") << 100 << 79;
    QTest::newRow("the longest list") << 32767 << 32746;
}

void GridPlace_test::thePageOfANewWordEndsWithItsRow()
{
    QFETCH(int, entries);
    QTEST(firstOfNewWordPage(entries), "expected");
}

QTEST_APPLESS_MAIN(GridPlace_test)
#include "GridPlace_test.moc"
