// SPDX-License-Identifier: GPL-3.0-or-later
// The way of Tab through every window, and the letters that are pressed with Alt.
#include "editor/EveryWindow.h"
#include "support/FormTest.h"
#include "support/Layout.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLayout>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>

using namespace Qt::StringLiterals;

namespace {

bool isReachedByTab(const QWidget &widget, const QWidget &window)
{
    // Arrow keys lead from an option to the others of its group.
    const auto *option = qobject_cast<const QRadioButton *>(&widget);
    return widget.window() == &window && widget.isVisible() && widget.isEnabled() &&
           (widget.focusPolicy() & Qt::TabFocus) != 0 && !widget.focusProxy() &&
           (!option || option->isChecked());
}

// In the order of Tab, from the first one after the window.
QList<QWidget *> tabRound(QWidget &window)
{
    QList<QWidget *> round;
    for (QWidget *next = window.nextInFocusChain(); next != &window;
         next = next->nextInFocusChain())
        if (isReachedByTab(*next, window))
            round += next;
    return round;
}

// A part of a window that contains others: a widget or a layout.
struct Part
{
    const QObject *object;
    QRect place; // in the window
};

// The layouts from this one to the one that has the widget.
bool findIn(QLayout &layout, const QWidget &widget, QPoint parent, QList<Part> &path)
{
    path += {&layout, layout.geometry().translated(parent)};
    for (int i = 0; i < layout.count(); ++i) {
        QLayoutItem *item = layout.itemAt(i);
        const bool found = item->layout() ? findIn(*item->layout(), widget, parent, path)
                                          : item->widget() == &widget;
        if (found)
            return true;
    }
    path.removeLast();
    return false;
}

// From the window to the widget.
QList<Part> pathTo(const QWidget &widget)
{
    if (widget.isWindow())
        return {{&widget, widget.rect()}};
    const QWidget &parent = *widget.parentWidget();
    QList<Part> path = pathTo(parent);
    if (parent.layout())
        findIn(*parent.layout(), widget, Layout::placeOf(parent).topLeft(), path);
    return path << Part{&widget, Layout::placeOf(widget)};
}

// Downwards or to the right, from one to the other of the largest parts that have only one of them:
// a column is read to its end before the next one begins.
bool goesOn(const QWidget &from, const QWidget &to)
{
    const QList<Part> start = pathTo(from);
    const QList<Part> end = pathTo(to);
    qsizetype level = 0;
    while (start[level].object == end[level].object)
        ++level;
    const QRect a = start[level].place;
    const QRect b = end[level].place;
    return b.top() > a.bottom() || (b.left() > a.right() && b.bottom() >= a.top());
}

// "cmdYes -> txtWord" for each step of Tab that goes back, but for the one that begins anew.
QStringList stepsBack(QWidget &window)
{
    QStringList steps;
    const QList<QWidget *> round = tabRound(window);
    for (qsizetype i = 0; i < round.size(); ++i) {
        const QWidget &from = *round[i];
        const QWidget &to = *round[(i + 1) % round.size()];
        if (&from != &to && !goesOn(from, to))
            steps += from.objectName() + u" -> "_s + to.objectName();
    }
    return steps.size() <= 1 ? QStringList() : steps;
}

class Mnemonics
{
public:
    void add(const QString &text)
    {
        const QKeySequence key = QKeySequence::mnemonic(text);
        if (!key.isEmpty())
            m_texts[key.toString()] += text;
    }

    void addActions(const QWidget &menu)
    {
        for (const QAction *action : menu.actions())
            if (action->isVisible() && !action->isSeparator())
                add(action->text());
    }

    [[nodiscard]] QStringList clashes() const
    {
        QStringList clashes;
        for (auto it = m_texts.cbegin(); it != m_texts.cend(); ++it)
            if (it->size() > 1)
                clashes += it.key() + u": "_s + it->join(u", "_s);
        return clashes;
    }
    [[nodiscard]] bool isEmpty() const { return m_texts.isEmpty(); }

private:
    QMap<QString, QStringList> m_texts;
};

Mnemonics mnemonicsOf(const QWidget &window)
{
    Mnemonics mnemonics;
    if (qobject_cast<const QMenu *>(&window)) {
        mnemonics.addActions(window);
        return mnemonics;
    }
    for (const QWidget *widget : window.findChildren<QWidget *>()) {
        if (widget->window() != &window || !widget->isVisible())
            continue;
        if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
            mnemonics.add(button->text());
        else if (const auto *label = qobject_cast<const QLabel *>(widget); label && label->buddy())
            mnemonics.add(label->text());
        else if (const auto *group = qobject_cast<const QGroupBox *>(widget))
            mnemonics.add(group->title());
        else if (const auto *bar = qobject_cast<const QMenuBar *>(widget))
            mnemonics.addActions(*bar);
    }
    return mnemonics;
}

} // namespace

class WindowKeys_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tabGoesAsTheEyeDoes_data() { EveryWindow::addRows(); }

    void tabGoesAsTheEyeDoes()
    {
        EveryWindow::open([](QWidget &window) {
            const QStringList steps = stepsBack(window);
            QVERIFY2(steps.isEmpty(), qPrintable(steps.join(u", "_s)));
        });
    }

    void noTwoThingsHaveTheSameLetter_data() { EveryWindow::addRows(); }

    void noTwoThingsHaveTheSameLetter()
    {
        EveryWindow::open([](QWidget &window) {
            const Mnemonics mnemonics = mnemonicsOf(window);
            QCOMPARE(mnemonics.clashes(), QStringList());
            const bool hasLetters = !QStringList{u"splash"_s, u"Music menu"_s}.contains(
                QString::fromLatin1(QTest::currentDataTag()));
            QCOMPARE(!mnemonics.isEmpty(), hasLetters);
        });
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<WindowKeys_test>(argc, argv);
}

#include "WindowKeys_test.moc"
