// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of the main window. CTest runs this on screens of several sizes.
#include "core/Module1.h"
#include "editor/MainLayout.h"
#include "editor/MainWindow.h"
#include "platform/Screen.h"
#include "support/FormTest.h"
#include "support/LargeType.h"
#include "support/Layout.h"

#include <QAccessible>
#include <QGroupBox>
#include <QHeaderView>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>
#include <cstdlib>
#include <iterator>

using namespace Qt::StringLiterals;

namespace {

void checkNothingIsCut(MainWindow &main, Caller caller = Caller::current())
{
    QVERIFY(Layout::visibleControls(main.window()).size() > 15);
    Layout::checkNothingIsCut(main.window(), caller);
    Layout::checkNames(main.window(), caller);
    // At least two lines of text must fit.
    for (const char *box : {"txtDefinition", "txtSentence"}) {
        const auto &text = main.control<QWidget>(box);
        QVERIFY2(text.height() >= 2 * text.fontMetrics().lineSpacing() + 8, box);
    }
}

void checkRowsFillTheGrid(MainWindow &main)
{
    MSFlexGrid &grid = main.grid();
    int height = 0;
    for (int row = 0; row <= 23; ++row) {
        QVERIFY(std::abs(grid.rowHeight(row) - grid.rowHeight(1)) <= 1);
        height += grid.rowHeight(row);
    }
    QCOMPARE(height, grid.viewport()->height());
    // The row of the 24th entry begins at the bottom of the grid.
    QCOMPARE(grid.rowViewportPosition(24), grid.viewport()->height());
    QVERIFY(!grid.horizontalScrollBar()->isVisible());
    QVERIFY(!grid.verticalScrollBar()->isVisible());
    QVERIFY(grid.fontMetrics().ascent() + grid.fontMetrics().descent() <= grid.rowHeight(1) + 2);
    QCOMPARE(Module1::gRowHeight, grid.RowHeight(1));
}

void checkTheColumnsAreWhole(MainWindow &main)
{
    const MSFlexGrid &grid = main.grid();
    QVERIFY(grid.columnViewportPosition(3) + grid.columnWidth(3) <= grid.viewport()->width());
    QVERIFY(grid.columnWidth(0) >= grid.fontMetrics().horizontalAdvance(u"32000"_s) + 8);
}

} // namespace

class frmMain_Layout_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLayoutIsComputedFromTheScreen()
    {
        MainWindow main;
        const QSize screen = screenInTwips(main.window());
        const MainLayout layout = mainLayout(screen.width(), screen.height());

        MSFlexGrid &grid = main.grid();
        QCOMPARE(grid.columnWidth(1), pixels(layout.columnWidths[0]));
        QCOMPARE(grid.columnWidth(2), pixels(layout.columnWidths[1]));
        QCOMPARE(grid.columnWidth(3), pixels(layout.columnWidths[2]));
        QCOMPARE(grid.height() * TwipsPerPixel, layout.gridHeight);
        const auto &frame = main.control<QGroupBox>("Frame1");
        QCOMPARE(frame.y() * TwipsPerPixel, layout.gridHeight);
        QCOMPARE(frame.width(), pixels(layout.frameWidth));
        const auto &frameSen = main.control<QGroupBox>("FrameSen");
        QCOMPARE(main.control<QGroupBox>("FrameDef").width(), pixels(layout.frameDefWidth));
        QCOMPARE(frameSen.width(), pixels(layout.frameDefWidth));
        QCOMPARE(frameSen.x(), pixels(layout.frameSenLeft));
        for (const char *box : {"txtDefinition", "txtSentence"})
            QCOMPARE(main.control<QWidget>(box).width(), pixels(layout.textWidth));
        QCOMPARE(main.control<QWidget>("cmdPlayScramble").x(), pixels(layout.playLeft));
    }

    void neighboursLieSideBySide()
    {
        MainWindow main;
        MSFlexGrid &grid = main.grid();
        QVERIFY(grid.columnWidth(0) > 0);
        QCOMPARE(grid.y(), 0);
        const QScrollBar &bar = main.bar();
        QCOMPARE(bar.y(), grid.y());
        QCOMPARE(bar.height(), grid.height());
        QCOMPARE(bar.x(), grid.x() + grid.width());
        const auto &play = main.control<QPushButton>("cmdPlayScramble");
        const auto &flash = main.control<QPushButton>("cmdQuickFlash");
        QCOMPARE(flash.x(), play.x() - flash.width());
        QCOMPARE(flash.y(), play.y());
    }

    void aTallWindowShowsTheEntryInLargerType()
    {
        MainWindow main;
        main.window().showNormal();
        const auto typeIn = [&main](int height) {
            main.window().resize(1000, height);
            QCoreApplication::processEvents();
            QSet<int> sizes;
            for (const char *box : {"txtWord", "txtDefinition", "txtSentence"})
                sizes += QFontInfo(main.control<QWidget>(box).font()).pixelSize();
            checkNothingIsCut(main);
            return sizes;
        };
        const int screen = main.window().screen()->size().height();
        const QSet<int> usual = typeIn(screen / 2 + 400);
        QCOMPARE(usual.size(), 1);
        QCOMPARE(typeIn(screen / 2 + 1000), QSet<int>{*usual.begin() * 3 / 2});
        QCOMPARE(typeIn(screen / 2 + 400), usual);
    }

    void controlsAboveOneAnotherShareTheirEdges()
    {
        MainWindow main;
        main.fill(5);
        const auto place = [&main](const char *name) {
            return Layout::placeOf(main.control<QWidget>(name));
        };
        const QRect definition = place("txtDefinition");
        const QRect sentence = place("txtSentence");
        QCOMPARE(place("Label1").left(), definition.left());
        QCOMPARE(place("cmdNewWord").left(), definition.left());
        QCOMPARE(place("txtWord").right(), definition.right());
        QCOMPARE(place("lblQuiet").left(), sentence.left());
        QCOMPARE(place("lblQuiet").right(), sentence.right());
        QCOMPARE(place("cmdPlayScramble").right(), sentence.right());
        QCOMPARE(sentence.top(), definition.top());
        QCOMPARE(sentence.bottom(), definition.bottom());
        // Each box is in the middle of its half of the window.
        const int window = main.window().width();
        QVERIFY(std::abs(definition.left() - (window - 1 - sentence.right())) <= 1);
        QVERIFY(std::abs(definition.left() - (window / 2 - 1 - definition.right())) <= 2);
    }

    void theWindowFitsTheScreen_data() { Layout::addTypeSizes(); }

    void theWindowFitsTheScreen()
    {
        QFETCH(double, type);
        const LargeType font(type);
        MainWindow main;
        main.fill(40);
        QCOMPARE(main.window().geometry(), main.window().screen()->availableGeometry());
        checkNothingIsCut(main);
        main.click("cmdNewWord");
        checkNothingIsCut(main);
        checkRowsFillTheGrid(main);
        checkTheColumnsAreWhole(main);
    }

    void theHintOfAnEmptyListIsWhole_data() { Layout::addTypeSizes(); }

    void theHintOfAnEmptyListIsWhole()
    {
        QFETCH(double, type);
        const LargeType font(type);
        MainWindow main;
        QVERIFY(Layout::visibleControls(main.window())
                    .contains(&main.control<QWidget>("lblEmptyList")));
        checkNothingIsCut(main);
    }

    void theHintOfAnEmptyListIsWholeInASmallWindow()
    {
        MainWindow main;
        main.window().showNormal();
        main.window().resize(main.window().minimumSize());
        QTRY_COMPARE(main.window().size(), main.window().minimumSize());
        checkNothingIsCut(main);
        main.window().resize(900, 900);
        QTRY_COMPARE(main.window().width(), 900);
        checkNothingIsCut(main);
    }

    void nothingIsCutInAnyMode_data()
    {
        QTest::addColumn<QString>("mode");
        for (const char *mode : {"idle", "new word", "editing", "search"})
            QTest::newRow(mode) << QString::fromLatin1(mode);
    }

    void nothingIsCutInAnyMode()
    {
        QFETCH(QString, mode);
        MainWindow main;
        main.fill(30);
        if (mode == u"new word"_s)
            main.click("cmdNewWord");
        else if (mode == u"editing"_s)
            main.clickCell(2, 1);
        else if (mode == u"search"_s)
            main.click("cmdSearch");
        checkNothingIsCut(main);
    }

    void theHeaderAnd23RowsFillTheGridExactly()
    {
        MainWindow main;
        checkRowsFillTheGrid(main);
        main.fill(40);
        checkRowsFillTheGrid(main);
    }

    void theGridHoldsItsRowsInWindowsOfOtherSizes_data()
    {
        QTest::addColumn<QSize>("size");
        for (const QSize size : {QSize(800, 540), QSize(1000, 700), QSize(1024, 728),
                                 QSize(1024, 768), QSize(1366, 728), QSize(1366, 768),
                                 QSize(1920, 1040), QSize(1920, 1080), QSize(1917, 1073)})
            QTest::addRow("%dx%d", size.width(), size.height()) << size;
    }

    void theGridHoldsItsRowsInWindowsOfOtherSizes()
    {
        QFETCH(QSize, size);
        MainWindow main;
        main.fill(40);
        main.window().showNormal();
        main.window().resize(size);
        QTRY_COMPARE(main.window().size(), size);
        checkRowsFillTheGrid(main);
        checkNothingIsCut(main);
    }

    void theWindowHasItsMenuAndFillsTheScreen()
    {
        MainWindow main;
        QVERIFY(main.window().isMaximized());
        QVERIFY(!main.window().isFullScreen());
        QVERIFY(!main.window().windowFlags().testFlag(Qt::FramelessWindowHint));
        QCOMPARE(main.window().geometry(), main.window().screen()->availableGeometry());
        QVERIFY(main.control<QMenuBar>("menuBar").isVisible());
    }

    void everyControlThatAPersonUsesHasAnAccessibleName_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("MSFlexGrid1") << u"Word list"_s;
        QTest::newRow("VScroll1") << u"First entry shown"_s;
        QTest::newRow("txtWord") << u"Word"_s;
        QTest::newRow("txtDefinition") << u"Definition"_s;
        QTest::newRow("txtSentence") << u"Sentence"_s;
        QTest::newRow("cmdNewWord") << u"New Word"_s;
        QTest::newRow("cmdAdd") << u"Add"_s;
        QTest::newRow("cmdAbort") << u"Abort"_s;
        QTest::newRow("cmdDelete") << u"Delete"_s;
        QTest::newRow("cmdSearch") << u"Search"_s;
        QTest::newRow("cmdPlayScramble") << u"Play"_s;
        QTest::newRow("cmdQuickFlash") << u"Quick Flash"_s;
    }

    void everyControlThatAPersonUsesHasAnAccessibleName()
    {
        MainWindow main;
        QAccessibleInterface *found =
            QAccessible::queryAccessibleInterface(&main.control<QWidget>(QTest::currentDataTag()));
        QVERIFY(found);
        QTEST(found->text(QAccessible::Name), "name");
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Layout_test>(argc, argv);
}

#include "frmMain_Layout_test.moc"
