// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Layout.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QScreen>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

QString text(QSize size)
{
    return u"%1x%2"_s.arg(size.width()).arg(size.height());
}

bool holdsOneLine(const QWidget &control)
{
    return qobject_cast<const QAbstractButton *>(&control) ||
           qobject_cast<const QLabel *>(&control) || qobject_cast<const QLineEdit *>(&control);
}

bool isTooSmall(const QWidget &control)
{
    const QSize least = control.minimumSizeHint();
    return control.width() < least.width() || control.height() < least.height();
}

bool overlap(const QWidget &one, const QWidget &other)
{
    return !one.isAncestorOf(&other) && !other.isAncestorOf(&one) &&
           Layout::placeOf(one).intersects(Layout::placeOf(other));
}

} // namespace

QRect Layout::placeOf(const QWidget &control)
{
    return {control.mapTo(control.window(), QPoint()), control.size()};
}

QList<QWidget *> Layout::visibleControls(const QWidget &window)
{
    QList<QWidget *> controls;
    const QList<QWidget *> all = window.findChildren<QWidget *>();
    for (QWidget *control : all) {
        const QString name = control->objectName();
        const bool scrolls = control->parentWidget()->objectName() == u"qt_scrollarea_viewport"_s;
        if (control->window() == &window && control->isVisible() && !name.isEmpty() &&
            !name.startsWith(u"qt_"_s) && !scrolls)
            controls += control;
    }
    return controls;
}

void Layout::checkNothingIsCut(const QWidget &window, Caller caller)
{
    for (int i = 0; i < 5; ++i)
        QGuiApplication::processEvents();
    const QList<QWidget *> controls = visibleControls(window);
    for (const QWidget *control : controls) {
        const QString name = control->objectName();
        if (control->size().isEmpty())
            failTest(name + u" has no size"_s, caller);
        if (!window.rect().contains(placeOf(*control)) ||
            !control->parentWidget()->rect().contains(control->geometry()))
            failTest(name + u" is cut"_s, caller);
        if (holdsOneLine(*control) && isTooSmall(*control))
            failTest(name + u" is too small: "_s + text(control->size()) + u", not "_s +
                         text(control->minimumSizeHint()),
                     caller);
        for (const QWidget *other : controls)
            if (other != control && overlap(*control, *other))
                failTest(name + u" and "_s + other->objectName() + u" overlap"_s, caller);
    }
}

void Layout::checkNames(const QWidget &window, Caller caller)
{
    const QList<QWidget *> controls = visibleControls(window);
    for (QWidget *control : controls) {
        if (control->focusPolicy() == Qt::NoFocus)
            continue;
        const QAccessibleInterface *tool = QAccessible::queryAccessibleInterface(control);
        if (!tool || tool->text(QAccessible::Name).isEmpty())
            failTest(control->objectName() + u" has no name for assistive tools"_s, caller);
    }
}

void Layout::checkFitsTheScreen(const QWidget &window, Caller caller)
{
    checkNothingIsCut(window, caller);
    checkNames(window, caller);
    constexpr int titleBar = 30;
    const QRect room = window.screen()->availableGeometry();
    if (window.width() > room.width() || window.height() > room.height() - titleBar)
        failTest(text(window.size()) + u" is larger than the screen"_s, caller);
    if (!room.contains(window.geometry()))
        failTest(u"the window is not on the screen"_s, caller);
}

void Layout::addTypeSizes()
{
    QTest::addColumn<double>("type");
    QTest::newRow("usual type") << 1.0;
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    if (room.width() >= 1024 && room.height() >= 768)
        QTest::newRow("large type") << 1.5;
    if (room.width() >= 1920 && room.height() >= 1080)
        QTest::newRow("very large type") << 2.0;
}
