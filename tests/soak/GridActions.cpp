// SPDX-License-Identifier: GPL-3.0-or-later
// The grid and its scroll bar.
#include "soak/Soak.h"

#include <QApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

bool isGridShown(Soak &soak)
{
    return !soak.game();
}

// Expects that a click in the row picks the entry in it. False if it has none.
bool expectPick(Soak &soak, int row)
{
    Model &model = soak.model;
    const int position = soak.main().grid().text(row, 0).toInt();
    if (row < 1 || position < 1 || position > model.count())
        return false;
    model.mode = Model::Mode::Editing;
    model.shown = position;
    model.newWord = false;
    model.wordSelected = true;
    return true;
}

void compareBoxes(Soak &soak)
{
    const Model &model = soak.model;
    const Entry &entry = model.entry(model.shown);
    MainWindow &main = soak.main();
    if (main.text("txtWord") != entry.word || main.text("txtDefinition") != entry.definition ||
        main.text("txtSentence") != entry.sentence)
        failTest(u"the boxes do not show entry %1"_s.arg(model.shown));
}

void clickCell(Soak &soak)
{
    const int row =
        soak.chance(70) ? soak.roll(std::min(23, soak.model.count()) + 1) : soak.roll(24);
    const int column = soak.roll(4);
    soak.note(u"row %1, column %2"_s.arg(row).arg(column));
    const bool picks = expectPick(soak, row);
    soak.main().clickCell(row, column);
    if (picks)
        compareBoxes(soak);
}

void pressSpace(Soak &soak)
{
    MSFlexGrid &grid = soak.main().grid();
    const bool picks = expectPick(soak, grid.Row());
    Soak::press(grid, Qt::Key_Space);
    if (picks)
        compareBoxes(soak);
}

int firstShown(Soak &soak)
{
    return soak.main().grid().text(1, 0).toInt();
}

// The wheel and the keys stop at the last full page. Before them the scroll bar may have gone
// further.
void comparePage(Soak &soak, int firstBefore)
{
    const int first = firstShown(soak);
    const int last = std::max({1, soak.model.count() - 22, firstBefore});
    const bool isShown = soak.model.count() > 0 && !soak.model.overflowsOnPage(1);
    if (isShown && (first < 1 || first > last))
        failTest(u"the page begins at %1"_s.arg(first));
}

void pressGridKeys(Soak &soak)
{
    constexpr Qt::Key keys[] = {Qt::Key_Up,       Qt::Key_Down, Qt::Key_PageUp,
                                Qt::Key_PageDown, Qt::Key_Home, Qt::Key_End};
    for (int times = 1 + soak.roll(4); times > 0; --times) {
        const Qt::Key key = soak.oneOf(keys);
        soak.note(QKeySequence(key).toString());
        const int before = firstShown(soak);
        if (soak.model.count() > 0)
            soak.expectPage(1);
        Soak::press(soak.main().grid(), key);
        Soak::waitFor(soak.main().window());
        comparePage(soak, before);
    }
}

void turnWheel(Soak &soak)
{
    QWidget &page = *soak.main().grid().viewport();
    const QPointF middle = page.rect().center();
    const int notches = (1 + soak.roll(4)) * (soak.chance(50) ? 1 : -1);
    soak.note(u"%1 notches"_s.arg(notches));
    QWheelEvent event(middle, page.mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    const int before = firstShown(soak);
    if (soak.model.count() > 0)
        soak.expectPage(1);
    QCoreApplication::sendEvent(&page, &event);
    comparePage(soak, before);
}

// The scroll bar stops at the last entry, except for a list of one page.
void expectPageOfBar(Soak &soak, int value)
{
    const int count = soak.model.count();
    if (count == 0 || value == soak.main().bar().value())
        return;
    const int first = std::max(1, value);
    soak.expectPage(first > 22 ? std::min(first, count) : first);
}

void dragBar(Soak &soak)
{
    QScrollBar &bar = soak.main().bar();
    const int value = soak.roll(bar.maximum() + 1);
    soak.note(u"to %1 of %2"_s.arg(value).arg(bar.maximum()));
    expectPageOfBar(soak, value);
    bar.setSliderDown(true);
    bar.setSliderPosition(value);
    bar.setSliderDown(false);
}

void clickBar(Soak &soak)
{
    QScrollBar &bar = soak.main().bar();
    const std::pair<QAbstractSlider::SliderAction, int> clicks[] = {
        {QAbstractSlider::SliderSingleStepAdd, bar.singleStep()},
        {QAbstractSlider::SliderSingleStepSub, -bar.singleStep()},
        {QAbstractSlider::SliderPageStepAdd, bar.pageStep()},
        {QAbstractSlider::SliderPageStepSub, -bar.pageStep()}};
    const auto [click, step] = soak.oneOf(clicks);
    expectPageOfBar(soak, std::clamp(bar.value() + step, 0, bar.maximum()));
    bar.triggerAction(click);
}

} // namespace

std::vector<Action> gridActions()
{
    return {
        {"click a cell", 30, isGridShown, clickCell},
        {"Space in the grid", 5, isGridShown, pressSpace},
        {"keys in the grid", 10, isGridShown, pressGridKeys},
        {"wheel over the grid", 8, isGridShown, turnWheel},
        {"drag the scroll bar", 8, isGridShown, dragBar},
        {"click the scroll bar", 8, isGridShown, clickBar},
    };
}
