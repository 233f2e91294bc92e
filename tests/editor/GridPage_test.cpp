// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/GridPage.h"

#include <QTest>

namespace {

GridPlace movedTimes(GridPlace place, GridMove move, int times, int entries)
{
    for (int i = 0; i < times; ++i)
        place = placeAfter(move, place, entries);
    return place;
}

} // namespace

class GridPage_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageBeginsWithItsFirstItem_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("entries");
        QTest::addColumn<GridPage>("expected");
        const auto row = [](int top, int entries, GridPage page) {
            QTest::addRow("%d of %d", top, entries) << top << entries << page;
        };
        row(1, 0, {1, 1, 1}); // one row with a number alone
        row(1, 1, {1, 1, 1});
        row(1, 5, {1, 5, 5});
        row(1, 22, {1, 22, 22});
        row(1, 23, {1, 23, 23});
        row(1, 24, {1, 24, 24});
        row(1, 25, {1, 24, 24});
        row(2, 24, {2, 24, 23});
        row(50, 100, {50, 73, 24});
        row(77, 100, {77, 100, 24});
        row(78, 100, {78, 100, 23});
        row(100, 100, {100, 100, 1});
        row(5, 5, {5, 5, 1});
        row(6, 5, {0, 5, 0});
        row(0, 5, {1, 5, 5});
        row(0, 60, {1, 23, 23});
        row(32000, 32000, {32000, 32000, 1});
        row(32744, 32767, {32744, 32767, 24});
    }

    void aPageBeginsWithItsFirstItem()
    {
        QFETCH(int, top);
        QFETCH(int, entries);
        QFETCH(GridPage, expected);
        const GridPage page = pageFrom(top, entries);
        QCOMPARE(page.first, expected.first);
        QCOMPARE(page.last, expected.last);
        QCOMPARE(page.numberedRows, expected.numberedRows);
    }

    void rowsAndItemsOfAPageBelongTogether_data()
    {
        QTest::addColumn<GridPage>("page");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("item");
        QTest::newRow("header") << GridPage{30, 53, 24} << 0 << 0;
        QTest::newRow("first row") << GridPage{30, 53, 24} << 1 << 30;
        QTest::newRow("last row") << GridPage{30, 53, 24} << 24 << 53;
        QTest::newRow("below the last entry") << GridPage{1, 5, 5} << 6 << 0;
        QTest::newRow("empty page") << GridPage{0, 5, 0} << 1 << 0;
    }

    void rowsAndItemsOfAPageBelongTogether()
    {
        QFETCH(GridPage, page);
        QFETCH(int, row);
        QFETCH(int, item);
        QCOMPARE(page.itemIn(row), item);
        if (item > 0)
            QCOMPARE(page.rowOf(item), row);
        QCOMPARE(page.rowOf(page.first - 1), 0);
        QCOMPARE(page.rowOf(page.last + 1), 0);
        QCOMPARE(page.rowOf(0), 0);
    }

    void aNumberedPageHasItemsInAllRows_data()
    {
        QTest::addColumn<GridPage>("page");
        QTest::addColumn<int>("top");
        QTest::addColumn<GridPage>("expected");
        QTest::newRow("no page") << GridPage{} << 1 << GridPage{1, 0, 23};
        QTest::newRow("from 0") << GridPage{} << 0 << GridPage{1, 0, 23};
        QTest::newRow("a short list") << GridPage{1, 5, 5} << 1 << GridPage{1, 5, 23};
        QTest::newRow("the row below the edge")
            << GridPage{30, 53, 24} << 30 << GridPage{30, 53, 24};
    }

    void aNumberedPageHasItemsInAllRows()
    {
        QFETCH(GridPage, page);
        QFETCH(int, top);
        page.numberFrom(top);
        QTEST(page, "expected");
        // A row with a number need not have an entry.
        QCOMPARE(page.rowOf(page.last + 1), 0);
    }

    void aPageBeyond16BitsOverflows_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("entries");
        QTest::newRow("the last full page of the longest list") << 32745 << 32767;
        QTest::newRow("the last entry") << 32766 << 32766;
    }

    void aPageBeyond16BitsOverflows()
    {
        QFETCH(int, top);
        QFETCH(int, entries);
        QVERIFY_THROWS_EXCEPTION(RunTimeError, static_cast<void>(pageFrom(top, entries)));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, static_cast<void>(scrollMaximum(Integer::Max)));
    }

    void theScrollBarEndsOneAfterTheLastEntry()
    {
        for (const int entries : {0, 1, 5, 100, 32766})
            QCOMPARE(scrollMaximum(entries).toInt(), entries + 1);
    }

    void theScrollBarStopsAt_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("expected");
        QTest::newRow("the minimum") << 0 << 60 << 0;
        QTest::newRow("a page") << 10 << 60 << 10;
        QTest::newRow("the last entry") << 60 << 60 << 60;
        QTest::newRow("behind the last entry") << 61 << 60 << 60;
        QTest::newRow("behind a list of 22") << 23 << 22 << 22;
        QTest::newRow("behind a list of 21") << 22 << 21 << 22;
        QTest::newRow("behind a short list") << 6 << 5 << 6;
        QTest::newRow("behind 32000 entries") << 32001 << 32000 << 32000;
    }

    void theScrollBarStopsAt()
    {
        QFETCH(int, value);
        QFETCH(int, entries);
        QTEST(scrollValue(value, entries), "expected");
    }

    void aKeyLeadsTo_data()
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
        // The scroll bar can go beyond the last full page.
        row("up behind the last full page", GridMove::RowUp, 60, {60, 1}, {59, 1});
        row("down behind the last full page", GridMove::RowDown, 60, {59, 2}, {59, 2});
        row("page up from behind the last full page", GridMove::PageUp, 60, {60, 1}, {37, 1});
        row("page down behind the last full page", GridMove::PageDown, 60, {50, 1}, {50, 11});
        row("end from behind the last full page", GridMove::Last, 60, {60, 1}, {38, 23});
        row("up on an empty page", GridMove::RowUp, 60, {0, 1}, {38, 23});
        row("down on an empty page", GridMove::RowDown, 5, {0, 1}, {1, 5});
        row("end on an empty page", GridMove::Last, 5, {0, 1}, {1, 5});
        // A click may make a cell without an entry the current one.
        row("up from below the last entry", GridMove::RowUp, 7, {1, 20}, {1, 7});
        row("down from below the last entry", GridMove::RowDown, 7, {1, 20}, {1, 7});
        row("down from the header", GridMove::RowDown, 7, {1, 0}, {1, 1});
        row("up from the header", GridMove::RowUp, 60, {5, 0}, {4, 1});
        row("page down from the header", GridMove::PageDown, 60, {2, 0}, {25, 1});
        row("page up from below the last entry", GridMove::PageUp, 60, {50, 20}, {27, 11});
    }

    void aKeyLeadsTo()
    {
        QFETCH(GridMove, move);
        QFETCH(int, entries);
        QFETCH(GridPlace, from);
        QFETCH(GridPlace, to);
        const GridPlace place = placeAfter(move, from, entries);
        QCOMPARE(place.first, to.first);
        QCOMPARE(place.row, to.row);
    }

    void downWalksThroughEveryEntryToTheLastFullPage()
    {
        GridPlace place;
        for (int entry = 2; entry <= 60; ++entry) {
            place = placeAfter(GridMove::RowDown, place, 60);
            QCOMPARE(place.first + place.row - 1, entry);
            QVERIFY(place.row <= GridPage::Rows);
        }
        QCOMPARE(place.first, 38);
    }

    void upWalksBackThroughEveryEntry()
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

    void theWheelLeadsTo_data()
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

    void theWheelLeadsTo()
    {
        QFETCH(int, first);
        QFETCH(int, rows);
        QFETCH(int, entries);
        QTEST(firstAfterWheel(first, rows, entries), "expected");
    }

    void theNextNewWordIsInTheRow_data()
    {
        QTest::addColumn<int>("entries");
        QTest::addColumn<GridPlace>("expected");
        QTest::newRow("no entry") << 0 << GridPlace{1, 1};
        QTest::newRow("one entry") << 1 << GridPlace{1, 2};
        QTest::newRow("the new word fills the page") << 22 << GridPlace{1, 23};
        QTest::newRow("a full page") << 23 << GridPlace{2, 23};
        QTest::newRow("one entry more") << 24 << GridPlace{3, 23};
        QTest::newRow("two pages") << 30 << GridPlace{9, 23};
        QTest::newRow("many pages") << 100 << GridPlace{79, 23};
        QTest::newRow("the longest list") << 32767 << GridPlace{32746, 23};
    }

    void theNextNewWordIsInTheRow()
    {
        QFETCH(int, entries);
        QTEST(placeOfNewWord(entries), "expected");
    }

    void aHitIsInTheRow_data()
    {
        QTest::addColumn<int>("hit");
        QTest::addColumn<int>("entries");
        QTest::addColumn<GridPlace>("expected");
        QTest::newRow("first of 5") << 1 << 5 << GridPlace{1, 1};
        QTest::newRow("last of 5") << 5 << 5 << GridPlace{1, 5};
        QTest::newRow("last of 22") << 22 << 22 << GridPlace{1, 22};
        QTest::newRow("first of 23") << 1 << 23 << GridPlace{1, 1};
        QTest::newRow("third of 23") << 3 << 23 << GridPlace{3, 1};
        QTest::newRow("last of 23") << 23 << 23 << GridPlace{23, 1};
        QTest::newRow("50 of 100") << 50 << 100 << GridPlace{50, 1};
        QTest::newRow("last of 100") << 100 << 100 << GridPlace{100, 1};
    }

    void aHitIsInTheRow()
    {
        QFETCH(int, hit);
        QFETCH(int, entries);
        QTEST(placeOfHit(hit, entries), "expected");
    }

    void aDeletionKeepsThePageUnlessItIsBehindTheList_data()
    {
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("entries"); // that are left
        QTest::addColumn<int>("expected");
        QTest::newRow("first page") << 1 << 59 << 1;
        QTest::newRow("a page in the middle") << 30 << 59 << 30;
        QTest::newRow("the last entry's page") << 59 << 59 << 59;
        QTest::newRow("the page of the entry that went") << 60 << 59 << 59;
        QTest::newRow("an empty page") << 0 << 5 << 0;
    }

    void aDeletionKeepsThePageUnlessItIsBehindTheList()
    {
        QFETCH(int, first);
        QFETCH(int, entries);
        QTEST(firstAfterDelete(first, entries), "expected");
    }

    void anImportShowsThePageOf_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("first");
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("expected");
        QTest::newRow("the position before") << 12 << 1 << 32 << 12;
        QTest::newRow("the last entry") << 32 << 1 << 32 << 32;
        QTest::newRow("the page, the position being behind the list") << 33 << 9 << 32 << 9;
        QTest::newRow("the last entry, the page being behind the list") << 33 << 35 << 32 << 32;
        QTest::newRow("an empty page") << 6 << 0 << 5 << 0;
        QTest::newRow("an empty list") << 1 << 1 << 0 << 0;
    }

    void anImportShowsThePageOf()
    {
        QFETCH(int, position);
        QFETCH(int, first);
        QFETCH(int, entries);
        QTEST(firstAfterImport(position, first, entries), "expected");
    }
};

QTEST_APPLESS_MAIN(GridPage_test)
#include "GridPage_test.moc"
