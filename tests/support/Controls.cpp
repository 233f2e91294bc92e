// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Controls.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QTest>

using namespace Qt::StringLiterals;

void Controls::fail(const QString &what)
{
    qFatal("%s: %s", QTest::currentTestFunction(), qUtf8Printable(what));
}

void Controls::click(QAbstractButton &button)
{
    if (!button.isVisible() || !button.isEnabled())
        fail(button.objectName() + u" is hidden or disabled and cannot be clicked"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
}

void Controls::choose(QAction &item)
{
    if (!item.isVisible() || !item.isEnabled())
        fail(item.objectName() + u" is hidden or disabled and cannot be chosen"_s);
    item.trigger();
}

void Controls::type(QWidget &box, const QString &text)
{
    if (!box.isVisible() || !box.isEnabled())
        fail(box.objectName() + u" is hidden or disabled and takes no text"_s);
    box.setFocus();
    QTest::keyClick(&box, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClicks(&box, text);
}

void Controls::press(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        fail(u"nothing has the keyboard focus"_s);
    QTest::keyClick(focus, key, modifiers);
}

void Controls::holdOn(Qt::Key key, const QString &text)
{
    QWidget *focus = QApplication::focusWidget();
    if (!focus)
        fail(u"nothing has the keyboard focus"_s);
    QKeyEvent again(QEvent::KeyPress, key, Qt::NoModifier, text, true);
    QApplication::sendEvent(focus, &again);
}

QString Controls::focusedControl()
{
    const QWidget *focus = QApplication::focusWidget();
    return focus ? focus->objectName() : QString();
}

QStringList Controls::tabRound(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    constexpr int mostControls = 40; // of any window
    QStringList round{focusedControl()};
    while (round.size() < mostControls) {
        press(key, modifiers);
        if (focusedControl() == round.constFirst())
            return round;
        round += focusedControl();
    }
    return round;
}
