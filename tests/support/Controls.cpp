// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Controls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyleOptionSlider>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

bool isUsable(const QWidget &control)
{
    return control.isVisible() && control.isEnabled();
}

// The control that has the focus. None fails the test.
QWidget *focusWidget(Caller caller)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        failTest(u"no control has the keyboard focus"_s, caller);
    return focus;
}

} // namespace

void Controls::waitUntilActive(QWidget &window, Caller caller)
{
    if (!QTest::qWaitForWindowActive(&window))
        failTest(window.objectName() + u" does not become active"_s, caller);
}

void Controls::click(QAbstractButton &button, Caller caller)
{
    if (!isUsable(button))
        return failTest(button.objectName() + u" is hidden or disabled and cannot be clicked"_s,
                        caller);
    QTest::mouseClick(&button, Qt::LeftButton);
}

void Controls::choose(QAction &item, Caller caller)
{
    if (!item.isVisible() || !item.isEnabled())
        return failTest(item.objectName() + u" is hidden or disabled and cannot be chosen"_s,
                        caller);
    item.trigger();
}

void Controls::type(QWidget &box, const QString &text, Caller caller)
{
    if (!isUsable(box))
        return failTest(box.objectName() + u" is hidden or disabled and takes no text"_s, caller);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, text);
}

void Controls::press(Qt::Key key, Qt::KeyboardModifiers modifiers, Caller caller)
{
    if (QWidget *focus = focusWidget(caller))
        QTest::keyClick(focus, key, modifiers);
}

void Controls::holdOn(Qt::Key key, const QString &text, Caller caller)
{
    if (QWidget *focus = focusWidget(caller)) {
        QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, text, true);
        QApplication::sendEvent(focus, &again);
    }
}

QRect Controls::placeOf(const QScrollBar &bar, QStyle::SubControl part)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.subControls = QStyle::SC_All;
    option.orientation = bar.orientation();
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.sliderPosition = bar.sliderPosition();
    option.sliderValue = bar.value();
    option.singleStep = bar.singleStep();
    option.pageStep = bar.pageStep();
    return bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, part, &bar);
}

QPoint Controls::middleOf(const QScrollBar &bar, QStyle::SubControl part, Caller caller)
{
    const QRect place = placeOf(bar, part);
    if (place.isEmpty() || !bar.rect().contains(place.center()))
        failTest(bar.objectName() + u" has no such arrow or slider"_s, caller);
    return place.center();
}

QString Controls::focusedControl()
{
    const QWidget *focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

QStringList Controls::tabRound(Qt::Key key, Qt::KeyboardModifiers modifiers, Caller caller)
{
    constexpr int mostControls = 40; // of any window
    QStringList round{focusedControl()};
    while (round.size() < mostControls) {
        press(key, modifiers, caller);
        if (focusedControl() == round.constFirst())
            return round;
        round += focusedControl();
    }
    return round;
}
