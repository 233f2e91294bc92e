// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/GridPage.h"
#include "runtime/RunTimeError.h"
#include "support/Caller.h"

#include <QAccessible>
#include <QFontMetrics>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void turnWheelBy(QWidget &widget, int eighthsOfADegree,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointF spot(50, 50);
    QWheelEvent event(spot, widget.mapToGlobal(spot), {}, {0, eighthsOfADegree}, Qt::NoButton,
                      modifiers, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&widget, &event);
}

void turnWheel(QWidget &widget, int notches, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    turnWheelBy(widget, notches * 120, modifiers);
}

QAccessibleTableInterface &tableOf(MSFlexGrid &grid)
{
    return *QAccessible::queryAccessibleInterface(&grid)->tableInterface();
}

void expectEmptyCells(const MSFlexGrid &grid, Caller caller = Caller::current())
{
    if (grid.rowCount() != Rows || grid.columnCount() != 4)
        return failTest(
            u"the grid has %1 rows and %2 columns"_s.arg(grid.rowCount()).arg(grid.columnCount()),
            caller);
    for (int row = 0; row < Rows; ++row)
        for (int column = 0; column < 4; ++column)
            if (!grid.text(row, column).isEmpty() || grid.cellBold(row, column) ||
                grid.cellBackColour(row, column) != MSFlexGrid::White)
                return failTest(
                    u"cell %1, %2 is not empty, white and of normal weight"_s.arg(row).arg(column),
                    caller);
}

} // namespace

class MSFlexGrid_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newCellsAreEmptyWhiteAndOfNormalWeight()
    {
        MSFlexGrid grid;
        grid.setSize(Rows, 4);
        expectEmptyCells(grid);
    }

    void growingKeepsTheOldCells()
    {
        MSFlexGrid grid;
        grid.setSize(2, 2);
        grid.setText(1, 1, u"cat"_s);
        grid.setSize(3, 3);
        QCOMPARE(grid.text(1, 1), u"cat"_s);
        grid.setText(2, 2, u"dog"_s);
        QCOMPARE(grid.text(2, 2), u"dog"_s);
    }

    void clearEmptiesEveryCellHeaderIncluded()
    {
        MSFlexGrid grid;
        grid.setSize(Rows, 4);
        for (int row = 0; row < Rows; ++row) {
            for (int column = 0; column < 4; ++column) {
                grid.setText(row, column, u"cat"_s);
                grid.setCellBold(row, column, true);
                grid.setCellBackColour(row, column, MSFlexGrid::Yellow);
            }
        }
        grid.Clear();
        expectEmptyCells(grid);
    }

    void aTextIsKeptAsItIs()
    {
        MSFlexGrid grid;
        grid.setSize(2, 2);
        const QString text = u"  a\tb\r\nc \u00E9 <b>x</b> "_s;
        grid.setText(1, 1, text);
        QCOMPARE(grid.text(1, 1), text);
        grid.setText(1, 1, {});
        QCOMPARE(grid.text(1, 1), QString());
    }

    void outsideTheGridReadsEmptyAndWritingFails()
    {
        MSFlexGrid grid;
        grid.setSize(2, 2);
        QCOMPARE(grid.text(2, 0), QString());
        QCOMPARE(grid.text(-1, 0), QString());
        QVERIFY_THROWS_EXCEPTION(RunTimeError, grid.setText(2, 0, u"cat"_s));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, grid.setCellBold(0, 2, true));
        QVERIFY_THROWS_EXCEPTION(RunTimeError, grid.setCellBackColour(-1, 0, MSFlexGrid::Yellow));
    }

    void assistiveToolsReadTheHeadersOfRowsAndColumns()
    {
        GridPage page;
        page.grid.setText(0, 1, u"Word"_s);
        page.grid.setText(2, 0, u"12"_s);
        page.grid.setText(2, 1, u"cat"_s);
        QAccessibleTableInterface &table = tableOf(page.grid);
        QAccessibleInterface *cell = table.cellAt(2, 1);
        QCOMPARE(cell->text(QAccessible::Name), u"cat"_s);
        // Qt makes them for each call; they are deleted by their number only.
        const auto header = [](const QList<QAccessibleInterface *> &headers) {
            const QString name = headers.constFirst()->text(QAccessible::Name);
            for (QAccessibleInterface *made : headers)
                QAccessible::deleteAccessibleInterface(
                    QAccessible::registerAccessibleInterface(made));
            return name;
        };
        QCOMPARE(header(cell->tableCellInterface()->rowHeaderCells()), u"12"_s);
        QCOMPARE(header(cell->tableCellInterface()->columnHeaderCells()), u"Word"_s);
        QCOMPARE(table.rowDescription(2), u"12"_s);
        QCOMPARE(table.columnDescription(1), u"Word"_s);
        page.grid.Clear();
        QCOMPARE(table.rowDescription(2), QString());
    }

    void aCellThatAssistiveToolsSelectIsClicked()
    {
        GridPage page;
        const QSignalSpy clicks(&page.grid, &MSFlexGrid::Click);
        QAccessibleActionInterface *cell = tableOf(page.grid).cellAt(3, 2)->actionInterface();
        for (int times = 1; times <= 2; ++times) {
            cell->doAction(cell->actionNames().constFirst());
            QCOMPARE(clicks.size(), times);
            QCOMPARE(clicks.last(), QVariantList({3, 2}));
        }
        QVERIFY(page.grid.selectedItems().isEmpty());
    }

    void mouseAndKeysSelectNothing()
    {
        GridPage page;
        const QSignalSpy clicks(&page.grid, &MSFlexGrid::Click);
        QTest::mousePress(page.grid.viewport(), Qt::LeftButton, {}, page.centreOf(3, 2));
        QVERIFY(page.grid.selectedItems().isEmpty());
        QVERIFY(clicks.isEmpty());
        QTest::mouseRelease(page.grid.viewport(), Qt::LeftButton, {}, page.centreOf(3, 2));
        QCOMPARE(clicks.size(), 1);
        QTest::keyClick(&page.grid, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&page.grid, Qt::Key_Space);
        QVERIFY(page.grid.selectedItems().isEmpty());
        QCOMPARE(clicks.size(), 2);
    }

    void columnsAreMeasuredInTwips()
    {
        GridPage page;
        page.grid.setColWidth(1, 2194);
        QCOMPARE(page.grid.columnWidth(1), 146);
        QVERIFY(std::abs(page.grid.ColWidth(1) - 2194) < 15);
        page.grid.setColWidth(2, 5120);
        QCOMPARE(page.grid.columnWidth(2), 341);
        QCOMPARE(page.grid.RowHeight(1), page.grid.rowHeight(1) * 15);
    }

    void rowsShareTheHeightExactlyAtEveryHeight()
    {
        GridPage page;
        for (int height = 200; height <= 1100; height += 1) {
            page.grid.resize(600, height);
            const int inside = page.grid.viewport()->height();
            int sum = 0;
            int smallest = height;
            int largest = 0;
            for (int row = 0; row < VisibleRows; ++row) {
                const int rowHeight = page.grid.rowHeight(row);
                sum += rowHeight;
                smallest = std::min(smallest, rowHeight);
                largest = std::max(largest, rowHeight);
            }
            QCOMPARE(sum, inside);
            QVERIFY(largest - smallest <= 1);
            QVERIFY(page.grid.rowViewportPosition(VisibleRows) >= inside);
            QCOMPARE(page.grid.rowAt(inside - 1), VisibleRows - 1);
        }
    }

    void theTextFitsItsRow()
    {
        GridPage page;
        int previous = 0;
        for (int height = 384; height <= 1080;
             height += 12) { // from half the height of the smallest screen
            page.grid.resize(600, height);
            const int size = page.grid.font().pixelSize();
            QVERIFY2(QFontMetrics(page.grid.font()).height() <= page.grid.rowHeight(1),
                     qPrintable(u"at height %1"_s.arg(height)));
            QVERIFY(size >= previous);
            previous = size;
        }
        QVERIFY(previous > 11);
    }

    void anotherNumberOfRowsIsLaidOutAtOnce()
    {
        GridPage page;
        page.grid.setVisibleRows(10);
        int sum = 0;
        for (int row = 0; row < 10; ++row)
            sum += page.grid.rowHeight(row);
        QCOMPARE(sum, page.grid.viewport()->height());
    }

    void noScrollBarOfItsOwnIsShown()
    {
        GridPage page;
        page.grid.resize(100, 60);
        QVERIFY(!page.grid.verticalScrollBar()->isVisible());
        QVERIFY(!page.grid.horizontalScrollBar()->isVisible());
    }

    void navigationKeysAreSignalled_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<GridMove>("move");
        QTest::newRow("up") << Qt::Key_Up << GridMove::RowUp;
        QTest::newRow("down") << Qt::Key_Down << GridMove::RowDown;
        QTest::newRow("page up") << Qt::Key_PageUp << GridMove::PageUp;
        QTest::newRow("page down") << Qt::Key_PageDown << GridMove::PageDown;
        QTest::newRow("home") << Qt::Key_Home << GridMove::First;
        QTest::newRow("end") << Qt::Key_End << GridMove::Last;
    }

    void navigationKeysAreSignalled()
    {
        QFETCH(Qt::Key, key);
        QFETCH(GridMove, move);
        GridPage page;
        page.grid.setCurrent(3, 1);
        QSignalSpy moves(&page.grid, &MSFlexGrid::moved);
        QTest::keyClick(&page.grid, key);
        QCOMPARE(moves.size(), 1);
        QCOMPARE(moves.at(0).at(0).value<GridMove>(), move);
        QCOMPARE(page.grid.Row(), 3);
    }

    void otherKeysAreNotSignalled()
    {
        GridPage page;
        page.grid.setCurrent(3, 1);
        QSignalSpy moves(&page.grid, &MSFlexGrid::moved);
        QTest::keyClick(&page.grid, Qt::Key_Left);
        QTest::keyClick(&page.grid, Qt::Key_Right);
        QVERIFY(moves.isEmpty());
        QCOMPARE(page.grid.Row(), 3);
        QCOMPARE(page.grid.Col(), 1);
    }

    void theWheelSignalsTheNumberOfRows()
    {
        GridPage page;
        const int rows = QApplication::wheelScrollLines();
        QVERIFY(rows > 0);
        QSignalSpy turns(&page.grid, &MSFlexGrid::wheeled);
        turnWheel(*page.grid.viewport(), -1);
        turnWheel(*page.grid.viewport(), 2);
        QCOMPARE(turns, (QList<QVariantList>{{rows}, {-2 * rows}}));
    }

    void aFineWheelIsAddedUp()
    {
        GridPage page;
        QSignalSpy turns(&page.grid, &MSFlexGrid::wheeled);
        int rows = 0;
        for (int i = 0; i < 120; ++i)
            turnWheelBy(*page.grid.viewport(), -1);
        for (const QVariantList &turn : turns)
            rows += turn.at(0).toInt();
        QCOMPARE(rows, QApplication::wheelScrollLines());
        QCOMPARE(turns.size(), rows); // one signal for each row
    }

    void withControlOrShiftTheWheelTurnsPages()
    {
        GridPage page;
        QSignalSpy turns(&page.grid, &MSFlexGrid::wheeled);
        turnWheel(*page.grid.viewport(), -1, Qt::ControlModifier);
        turnWheel(*page.grid.viewport(), 1, Qt::ShiftModifier);
        QCOMPARE(turns, (QList<QVariantList>{{VisibleRows - 1}, {1 - VisibleRows}}));
    }

    void theGridItselfNeverScrolls()
    {
        GridPage page;
        page.grid.setText(24, 1, u"behind the edge"_s);
        turnWheel(*page.grid.viewport(), -10);
        for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Down})
            QTest::keyClick(&page.grid, key);
        page.grid.setCurrent(24, 3);
        QCOMPARE(page.grid.verticalScrollBar()->value(), 0);
        QCOMPARE(page.grid.rowViewportPosition(0), 0);
        QCOMPARE(page.grid.columnViewportPosition(0), 0);
    }

    void spaceClicksTheCurrentCellAndEnterIsLeftToTheWindow()
    {
        GridPage page;
        page.grid.setCurrent(7, 2);
        QCOMPARE(page.grid.Row(), 7);
        QCOMPARE(page.grid.Col(), 2);
        QSignalSpy clicks(&page.grid, &MSFlexGrid::Click);
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&page.grid, &enter);
        QVERIFY(!enter.isAccepted());
        QVERIFY(clicks.isEmpty());
        QTest::keyClick(&page.grid, Qt::Key_Space);
        QCOMPARE(clicks, (QList<QVariantList>{{7, 2}}));
    }

    void theMouseClicksTheCellUnderIt()
    {
        GridPage page;
        QSignalSpy clicks(&page.grid, &MSFlexGrid::Click);
        for (const int row : {0, 1, 12, 23})
            for (int column = 0; column < 4; ++column)
                QTest::mouseClick(page.grid.viewport(), Qt::LeftButton, {},
                                  page.centreOf(row, column));
        QCOMPARE(clicks.size(), 16);
        QCOMPARE(clicks.at(6), (QVariantList{1, 2}));
        QCOMPARE(clicks.at(15), (QVariantList{23, 3}));
        QCOMPARE(page.grid.Row(), 23);
        QCOMPARE(page.grid.Col(), 3);
    }

    void typingIsLeftToTheWindow()
    {
        GridPage page;
        page.grid.setText(5, 1, u"cat"_s);
        page.grid.setCurrent(1, 1);
        QKeyEvent event(QEvent::KeyPress, Qt::Key_C, Qt::NoModifier, u"c"_s);
        QCoreApplication::sendEvent(&page.grid, &event);
        QVERIFY(!event.isAccepted());
        QCOMPARE(page.grid.Row(), 1);
        QCOMPARE(page.grid.text(1, 1), QString());
    }

    void tabLeavesTheGrid()
    {
        QWidget window;
        auto *before = new QWidget(&window);
        auto *grid = new MSFlexGrid(&window);
        auto *behind = new QWidget(&window);
        for (QWidget *neighbour : {before, behind})
            neighbour->setFocusPolicy(Qt::StrongFocus);
        grid->setSize(Rows, 4);
        grid->setCurrent(1, 1);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), behind);
        grid->setFocus();
        QTest::keyClick(grid, Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), before);
        QCOMPARE(grid->Col(), 1);
    }
};

QTEST_MAIN(MSFlexGrid_test)
#include "MSFlexGrid_test.moc"
