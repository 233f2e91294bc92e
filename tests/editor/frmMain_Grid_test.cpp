// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/ShownPage.h"
#include "support/FormTest.h"

#include <QHelpEvent>
#include <QMetaEnum>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QPoint middleOf(MSFlexGrid &grid, int row, int column)
{
    return grid.visualItemRect(grid.item(row, column)).center();
}

void turnWheel(MSFlexGrid &grid, int notches)
{
    const QPoint place = middleOf(grid, 5, 1);
    QWidget &viewport = *grid.viewport();
    QWheelEvent wheel(place, viewport.mapToGlobal(place), {}, {0, notches * 120}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&viewport, &wheel);
}

// Moves the mouse there with its left button down.
void drag(QScrollBar &bar, QPoint to)
{
    QMouseEvent move(QEvent::MouseMove, to, bar.mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&bar, &move);
}

void typeWords(MainWindow &main, int count)
{
    main.click("cmdNewWord");
    for (int i = 1; i <= count; ++i) {
        main.typeEntry(u"word %1"_s.arg(i), u"definition %1"_s.arg(i), u"sentence %1"_s.arg(i));
        main.click("cmdAdd");
    }
}

void askForToolTip(MSFlexGrid &grid, int row, int column)
{
    const QPoint place = middleOf(grid, row, column);
    QHelpEvent help(QEvent::ToolTip, place, grid.viewport()->mapToGlobal(place));
    QApplication::sendEvent(grid.viewport(), &help);
}

} // namespace

class frmMain_Grid_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPageShowsTheEntriesFromItsFirst_data()
    {
        QTest::addColumn<int>("entries");
        QTest::addColumn<int>("top");
        QTest::newRow("page 1 of 5") << 5 << 1;
        QTest::newRow("page 5 of 5") << 5 << 5;
        QTest::newRow("page 50 of 100") << 100 << 50;
        QTest::newRow("page 100 of 100") << 100 << 100;
    }

    void aPageShowsTheEntriesFromItsFirst()
    {
        QFETCH(int, entries);
        QFETCH(int, top);
        MainWindow main;
        main.fill(entries);
        main.bar().setValue(top);
        QCOMPARE(main.bar().value(), top);
        comparePage(main, top);
        QCOMPARE(main.markedRows(), QList<int>());
    }

    void theHeaderIsAboveEachPage()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(30);
        QCOMPARE(main.row(0),
                 (QStringList{QString(), u"Vocabulary Word"_s, u"Definition"_s, u"Sentence"_s}));
        for (int column = 1; column <= 3; ++column)
            QVERIFY(main.grid().cellBold(0, column));
        QCOMPARE(main.grid().rowCount(), 25);
        QCOMPARE(main.grid().Row(), 1);
        QCOMPARE(main.grid().Col(), 1);
    }

    void aFillRemembersWhichEntriesItShows()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(10);
        QCOMPARE(gLastItem, 33);
        for (std::size_t i = 0; i < 24; ++i)
            QCOMPARE(gRowItem[i], 10 + i);
        main.bar().setValue(50);
        QCOMPARE(gLastItem, 60);
        for (std::size_t i = 0; i < 11; ++i)
            QCOMPARE(gRowItem[i], 50 + i);
        main.bar().setValue(1);
        QCOMPARE(gLastItem, 24);
        main.fill(5);
        QCOMPARE(gLastItem, 5);
    }

    void theScrollBarGoesFromZeroToOneBehindTheList()
    {
        MainWindow main;
        main.fill(5);
        QCOMPARE(main.bar().minimum(), 0);
        QCOMPARE(main.bar().maximum(), 6);
        QCOMPARE(main.bar().singleStep(), 1);
        QCOMPARE(main.bar().pageStep(), 23);
    }

    void valueZeroShowsThePageFromEntryOne()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(10);
        main.bar().setValue(0);
        QCOMPARE(main.bar().value(), 0);
        comparePage(main, 1);
        QCOMPARE(gLastItem, 24);
    }

    void aDragToTheEndOfALongListShowsThePageOfTheLastEntry()
    {
        MainWindow main;
        main.fill(60);
        QScrollBar &bar = main.bar();
        const QPoint slider = Controls::middleOf(bar, QStyle::SC_ScrollBarSlider);
        QTest::mousePress(&bar, Qt::LeftButton, {}, slider);
        QVERIFY(bar.isSliderDown());
        drag(bar, {slider.x(), bar.height() / 2});
        QVERIFY(bar.value() > 1 && bar.value() < 60);
        comparePage(main, bar.value());
        // The mouse moves the bar to its maximum, one after the last entry; the bar goes back by
        // one.
        const QSignalSpy values(&bar, &QScrollBar::sliderMoved);
        drag(bar, {slider.x(), bar.height() - 1});
        QCOMPARE(values.constLast().constFirst().toInt(), 61);
        QCOMPARE(bar.value(), 60);
        comparePage(main, 60);
        QTest::mouseRelease(&bar, Qt::LeftButton, {}, {slider.x(), bar.height() - 1});
        QCOMPARE(bar.value(), 60);
        comparePage(main, 60);
    }

    void onAShortListTheMaximumShowsAnEmptyPage()
    {
        MainWindow main;
        main.fill(5);
        main.bar().setValue(6);
        QCOMPARE(main.bar().value(), 6);
        for (int row = 1; row <= 24; ++row)
            QCOMPARE(main.row(row), EditorModes::emptyRow());
        main.clickCell(1, 1);
        QCOMPARE(main.look(), EditorModes::idle());
        main.bar().setValue(5);
        comparePage(main, 5);
        QVERIFY(main.answers.allSeen());
    }

    void onAnEmptyListScrollingDoesNothing()
    {
        MainWindow main;
        const Integer current = gVocabList().CurrentWord();
        main.bar().setValue(1);
        main.bar().setValue(0);
        QCOMPARE(main.row(1), EditorModes::numberedRow(1));
        QCOMPARE(gVocabList().CurrentWord(), current);
        QCOMPARE(gLastItem, 1);
        QVERIFY(main.answers.allSeen());
    }

    void withNothingPickedTheCurrentPositionIsAfterThePage_data()
    {
        QTest::addColumn<int>("top");
        QTest::addColumn<int>("position");
        QTest::newRow("first page") << 2 << 26;
        QTest::newRow("last entries") << 50 << 61;
    }

    void withNothingPickedTheCurrentPositionIsAfterThePage()
    {
        QFETCH(int, top);
        MainWindow main;
        main.fill(60);
        main.bar().setValue(top);
        QTEST(gVocabList().CurrentWord().toInt(), "position");
    }

    void theWheelScrolls()
    {
        MainWindow main;
        main.fill(60);
        const int lines = QApplication::wheelScrollLines();
        QVERIFY(lines > 0);
        turnWheel(main.grid(), -1);
        QCOMPARE(main.bar().value(), 1 + lines);
        comparePage(main, 1 + lines);
        turnWheel(main.grid(), -1);
        turnWheel(main.grid(), 1);
        comparePage(main, 1 + lines);
    }

    void theWheelStopsAtTheFirstEntryAndAtTheLastFullPage()
    {
        MainWindow main;
        main.fill(60);
        turnWheel(main.grid(), -100);
        comparePage(main, 38);
        QCOMPARE(main.bar().value(), 38);
        turnWheel(main.grid(), -1);
        comparePage(main, 38);
        turnWheel(main.grid(), 100);
        comparePage(main, 1);
        QCOMPARE(main.bar().value(), 1);
    }

    void afterTypedWordsTheWheelKeepsTheListVisible()
    {
        // The bar's value is the new entry, but the page begins with the first one.
        MainWindow main;
        typeWords(main, 7);
        for (const int notches : {1, 1, -1, -1, -5, 5}) {
            turnWheel(main.grid(), notches);
            for (int row = 1; row <= 7; ++row)
                QCOMPARE(main.row(row), EditorModes::filledRow(row));
        }
        QCOMPARE(main.markedRows(), QList<int>{8});
    }

    void theWheelReturnsFromAPageAfterTheLastEntry()
    {
        MainWindow main;
        main.fill(5);
        main.bar().setValue(6);
        QCOMPARE(main.row(1), EditorModes::emptyRow());
        turnWheel(main.grid(), -1);
        comparePage(main, 1);

        main.fill(60);
        main.bar().setValue(60);
        turnWheel(main.grid(), -1);
        comparePage(main, 60);
        turnWheel(main.grid(), 1);
        comparePage(main, 60 - QApplication::wheelScrollLines());
    }

    void keysOverTheGridMoveThePage_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<int>("top"); // from 30
        QTest::addColumn<int>("row"); // from 1
        QTest::newRow("Up") << Qt::Key_Up << 29 << 1;
        QTest::newRow("Down") << Qt::Key_Down << 30 << 2;
        QTest::newRow("Page Up") << Qt::Key_PageUp << 7 << 1;
        QTest::newRow("Page Down") << Qt::Key_PageDown << 38 << 16;
        QTest::newRow("Home") << Qt::Key_Home << 1 << 1;
        QTest::newRow("End") << Qt::Key_End << 38 << 23;
    }

    void keysOverTheGridMoveThePage()
    {
        QFETCH(Qt::Key, key);
        QFETCH(int, top);
        QFETCH(int, row);
        MainWindow main;
        main.fill(60);
        main.bar().setValue(30);
        main.grid().setFocus();
        Controls::press(key);
        comparePage(main, top);
        QCOMPARE(main.bar().value(), top);
        QCOMPARE(main.grid().Row(), row);
        QCOMPARE(main.grid().Col(), 1);
        QVERIFY(main.grid().hasFocus());
    }

    void keysBeginAtThePageThatIsShown_data()
    {
        QTest::addColumn<Qt::Key>("key");
        for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown,
                                  Qt::Key_Home, Qt::Key_End})
            QTest::newRow(QMetaEnum::fromType<Qt::Key>().valueToKey(key)) << key;
    }

    void keysBeginAtThePageThatIsShown()
    {
        QFETCH(Qt::Key, key);
        MainWindow main;
        typeWords(main, 7);
        main.grid().setFocus();
        for (int i = 0; i < 3; ++i)
            Controls::press(key);
        for (int row = 1; row <= 7; ++row)
            QCOMPARE(main.row(row), EditorModes::filledRow(row));
        QVERIFY(main.grid().Row() >= 1);
        QVERIFY(main.grid().Row() <= 7);
    }

    void endMakesTheLastEntryCurrentAndSpacePicksIt_data()
    {
        QTest::addColumn<int>("entries");
        for (const int entries : {5, 60})
            QTest::addRow("%d", entries) << entries;
    }

    void endMakesTheLastEntryCurrentAndSpacePicksIt()
    {
        QFETCH(int, entries);
        MainWindow main;
        main.fill(entries);
        main.grid().setFocus();
        Controls::press(Qt::Key_End);
        comparePage(main, std::max(1, entries - 22));
        QCOMPARE(main.row(main.grid().Row()), EditorModes::filledRow(entries));
        Controls::press(Qt::Key_Space);
        QCOMPARE(main.text("txtWord"), u"word %1"_s.arg(entries));
        QCOMPARE(main.look(), EditorModes::editing());
    }

    void aMoveInsideThePageKeepsTheMark()
    {
        MainWindow main;
        main.fill(5);
        main.click("cmdNewWord");
        QCOMPARE(main.markedRows(), QList<int>{6});
        main.grid().setFocus();
        Controls::press(Qt::Key_Down);
        QCOMPARE(main.grid().Row(), 2);
        QCOMPARE(main.markedRows(), QList<int>{6});
    }

    void onAnEmptyListKeysAndWheelDoNothing()
    {
        MainWindow main;
        main.grid().setFocus();
        turnWheel(main.grid(), -1);
        for (const Qt::Key key : {Qt::Key_Down, Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home})
            Controls::press(key);
        QCOMPARE(main.row(1), EditorModes::numberedRow(1));
        QCOMPARE(main.grid().Row(), 1);
        QVERIFY(main.answers.allSeen());
    }

    void spacePicksTheFirstRowOfAScrolledPage()
    {
        MainWindow main;
        main.fill(60);
        main.bar().setValue(2);
        main.grid().setFocus();
        Controls::press(Qt::Key_Space);
        QCOMPARE(main.text("txtWord"), u"word 2"_s);
        QCOMPARE(main.look(), EditorModes::editing());
        QVERIFY(main.control<QWidget>("txtWord").hasFocus());
    }

    void enterOverTheGridIsTheDefaultButton_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::newRow("Return") << Qt::Key_Return;
        QTest::newRow("Enter") << Qt::Key_Enter;
    }

    void enterOverTheGridIsTheDefaultButton()
    {
        QFETCH(Qt::Key, key);
        MainWindow main;
        main.fill(60);
        main.grid().setFocus();
        Controls::press(key);
        QCOMPARE(main.look(), EditorModes::newWord());
    }

    void tabLeavesTheGrid()
    {
        MainWindow main;
        main.fill(5);
        main.grid().setFocus();
        Controls::press(Qt::Key_Tab);
        QVERIFY(!main.grid().hasFocus());
        QVERIFY(QApplication::focusWidget());
    }

    void textsTooLongForTheirCellAreShownWholeInAToolTip_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("long") << u"a <long> & winding text "_s.repeated(20).trimmed();
        QTest::newRow("several lines") << u"one\r\ntwo "_s + u"three "_s.repeated(40).trimmed();
    }

    void textsTooLongForTheirCellAreShownWholeInAToolTip()
    {
        QFETCH(QString, text);
        MainWindow main;
        gVocabList().AddVocab(u"cat"_s, text, text);
        main.bar().setValue(1);
        MSFlexGrid &grid = main.grid();
        QCOMPARE(grid.textElideMode(), Qt::ElideRight);
        QString shown = text.toHtmlEscaped();
        shown.replace(u"\r\n"_s, u"\n"_s);
        QVERIFY(!grid.wordWrap());
        for (const int column : {2, 3}) {
            askForToolTip(grid, 1, column);
            QTRY_VERIFY(QToolTip::isVisible());
            QVERIFY(QToolTip::text().contains(shown));
            QToolTip::hideText();
            QTRY_VERIFY(!QToolTip::isVisible());
        }
    }

    void textsThatFitHaveNoToolTip()
    {
        MainWindow main;
        main.fill(1);
        for (const int column : {1, 2, 3}) {
            askForToolTip(main.grid(), 1, column);
            QVERIFY(!QToolTip::isVisible());
        }
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Grid_test>(argc, argv);
}

#include "frmMain_Grid_test.moc"
