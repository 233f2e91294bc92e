// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/Layout.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStyleOptionGroupBox>
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

// A label that wraps its text needs the height that follows from its width.
QSize leastSize(const QWidget &control)
{
    const auto *label = qobject_cast<const QLabel *>(&control);
    if (label && label->hasHeightForWidth() && !label->text().isEmpty())
        return {0, label->heightForWidth(label->width())};
    return control.minimumSizeHint();
}

bool isTooSmall(const QWidget &control)
{
    const QSize least = leastSize(control);
    return control.width() < least.width() || control.height() < least.height();
}

// Where the style paints the title, in the coordinates of the box. Its text is two pixels further
// to the right.
QRect titleOf(const QGroupBox &box)
{
    QStyleOptionGroupBox option;
    option.initFrom(&box);
    option.text = box.title();
    option.lineWidth = 1;
    option.textAlignment = box.alignment();
    option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
    return box.style()
        ->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &box)
        .translated(2, 0);
}

void checkTitle(const QGroupBox &box, Caller caller)
{
    if (box.title().isEmpty())
        return;
    const QRect title = titleOf(box);
    if (!box.rect().contains(title) ||
        title.width() < box.fontMetrics().horizontalAdvance(box.title()))
        failTest(u"the title of "_s + box.objectName() + u" is cut"_s, caller);
    const auto inside = box.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *control : inside)
        if (control->isVisible() && control->geometry().intersects(title.adjusted(0, -1, 0, 1)))
            failTest(u"the title of "_s + box.objectName() + u" touches "_s + control->objectName(),
                     caller);
}

void checkPlaceholder(const QLineEdit &box, Caller caller)
{
    constexpr int besideText = 2; // pixels that Qt leaves free
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.lineWidth = 1;
    const QRect room = box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
    if (box.text().isEmpty() &&
        box.fontMetrics().horizontalAdvance(box.placeholderText()) > room.width() - 2 * besideText)
        failTest(u"the placeholder of "_s + box.objectName() + u" is cut"_s, caller);
}

// The scroll area that moves the control, if one does.
const QScrollArea *areaOf(const QWidget &control)
{
    for (const QWidget *part = &control; !part->isWindow(); part = part->parentWidget()) {
        const auto *area = qobject_cast<const QScrollArea *>(part->parentWidget()->parentWidget());
        if (area && area->viewport() == part->parentWidget())
            return area;
    }
    return nullptr;
}

// Whether one covers the other where both can be seen. Within one scroll area the controls that are
// scrolled out of view count, too.
bool overlap(const QWidget &one, const QWidget &other)
{
    if (one.isAncestorOf(&other) || other.isAncestorOf(&one))
        return false;
    const bool moveTogether = areaOf(one) == areaOf(other);
    const auto seen = [moveTogether](const QWidget &control) {
        const QRect place = Layout::placeOf(control);
        const QScrollArea *area = areaOf(control);
        return area && !moveTogether ? place & Layout::placeOf(*area->viewport()) : place;
    };
    return seen(one).intersects(seen(other));
}

// What does not fit into a scroll area can be reached with a bar, and no button that ends a dialog
// needs one.
void checkScrolledControl(const QWidget &control, const QScrollArea &area, Caller caller)
{
    const QSize rest = area.widget()->size() - area.viewport()->size();
    if ((rest.width() > 0 && area.horizontalScrollBarPolicy() == Qt::ScrollBarAlwaysOff) ||
        (rest.height() > 0 && area.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff))
        failTest(area.objectName() + u" has no bar for what it holds"_s, caller);
    const auto *button = qobject_cast<const QPushButton *>(&control);
    if (button && button->isDefault())
        failTest(control.objectName() + u" can be scrolled out of view"_s, caller);
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
        const auto *area =
            qobject_cast<const QScrollArea *>(control->parentWidget()->parentWidget());
        const bool scrolls = area && area->widget() == control;
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
        const QScrollArea *area = areaOf(*control);
        if (area)
            checkScrolledControl(*control, *area, caller);
        if ((!area && !window.rect().contains(placeOf(*control))) ||
            !control->parentWidget()->rect().contains(control->geometry()))
            failTest(name + u" is cut"_s, caller);
        if (holdsOneLine(*control) && isTooSmall(*control))
            failTest(name + u" is too small: "_s + text(control->size()) + u", not "_s +
                         text(leastSize(*control)),
                     caller);
        if (const auto *box = qobject_cast<const QGroupBox *>(control))
            checkTitle(*box, caller);
        if (const auto *box = qobject_cast<const QLineEdit *>(control))
            checkPlaceholder(*box, caller);
        for (const QWidget *other : controls)
            if (other != control && overlap(*control, *other))
                failTest(name + u" and "_s + other->objectName() + u" overlap"_s, caller);
    }
}

void Layout::checkHasRoomFor(const QWidget &control, const QString &line, Caller caller)
{
    const QSize needed(control.fontMetrics().horizontalAdvance(line),
                       control.fontMetrics().height());
    if (control.width() < needed.width() || control.height() < needed.height())
        failTest(u"the text of "_s + control.objectName() + u" is cut: "_s + text(control.size()) +
                     u", not "_s + text(needed),
                 caller);
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
    const QSize size = window.isMaximized()
                           ? window.minimumSizeHint().expandedTo(window.minimumSize())
                           : window.size();
    if (size.width() > room.width() || size.height() > room.height() - titleBar)
        failTest(text(size) + u" is larger than the screen"_s, caller);
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
