// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive tools are told of the controls of every window.
#include "editor/EveryWindow.h"
#include "editor/MainWindow.h"
#include "game/GameForm.h"
#include "platform/QuietLabel.h"
#include "support/FormTest.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

bool isPartOfAControlOfQt(const QWidget &widget)
{
    return widget.objectName().isEmpty() || widget.objectName().startsWith(u"qt_"_s);
}

// Holds controls and is none itself.
bool isContainer(const QWidget &widget)
{
    return widget.metaObject() == &QWidget::staticMetaObject ||
           widget.objectName() == u"settingsArea"_s;
}

// Also those that assistive tools on Linux are told as "unknown".
bool isGeneral(QAccessible::Role role)
{
    const QList general{QAccessible::NoRole,    QAccessible::Client, QAccessible::Border,
                        QAccessible::Indicator, QAccessible::Clock,  QAccessible::Whitespace};
    return general.contains(role);
}

bool isEmptyLabel(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const auto *quiet = qobject_cast<const QuietLabel *>(&widget);
    return (label && label->text().isEmpty()) || (quiet && quiet->text().isEmpty());
}

// A number or a sign says nothing without what is beside it.
bool needsDescription(const QString &name)
{
    return std::none_of(name.cbegin(), name.cend(), [](QChar c) { return c.isLetter(); });
}

// What is missing, or nothing.
QStringList missingIn(QWidget &widget)
{
    const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(&widget);
    if (!seen)
        return {u"all"_s};
    QStringList missing;
    const QString name = seen->text(QAccessible::Name);
    const bool isGroup = seen->role() == QAccessible::Grouping;
    if (isGeneral(seen->role()))
        missing += u"role"_s;
    if (name.isEmpty() && !isGroup && !isEmptyLabel(widget))
        missing += u"name"_s;
    if (name.contains(u'&'))
        missing += u"name without mnemonic"_s;
    if (needsDescription(name) && !isGroup && !isEmptyLabel(widget) &&
        seen->text(QAccessible::Description).isEmpty())
        missing += u"description"_s;
    const QAccessible::State state = seen->state();
    if (state.disabled == widget.isEnabled())
        missing += u"state: disabled"_s;
    if (widget.isEnabled() && state.focusable != (widget.focusPolicy() != Qt::NoFocus))
        missing += u"state: focusable"_s;
    if (state.focused != widget.hasFocus())
        missing += u"state: focused"_s;
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        if (state.checkable != button->isCheckable() || state.checked != button->isChecked())
            missing += u"state: checked"_s;
    if (const auto *box = qobject_cast<const QLineEdit *>(&widget))
        if (state.readOnly != box->isReadOnly())
            missing += u"state: read-only"_s;
    return missing;
}

} // namespace

class AccessibleTree_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachControlIsNamed_data() { EveryWindow::addRows(); }

    void eachControlIsNamed()
    {
        EveryWindow::open([](QWidget &window) {
            QStringList mistakes;
            const auto *seen = QAccessible::queryAccessibleInterface(&window);
            if (isGeneral(seen->role()))
                mistakes += u"the window: role"_s;
            for (auto *widget : window.findChildren<QWidget *>()) {
                if (widget->window() != &window || !widget->isVisible() ||
                    isPartOfAControlOfQt(*widget) || isContainer(*widget))
                    continue;
                for (const QString &missing : missingIn(*widget))
                    mistakes += widget->objectName() + u": "_s + missing;
            }
            QVERIFY2(mistakes.isEmpty(), qPrintable(mistakes.join(u"; "_s)));
        });
    }

    void lettersOfTheGameAreTextsThatNobodyCanPress()
    {
        GameForm game;
        game.start();
        game.passTime(10);
        const QString tile = game.tiles().value(0);
        const QAccessibleInterface *seen = QAccessible::queryAccessibleInterface(
            &game.button(u"cmdLetters_%1"_s.arg(tile.section(u' ', 0, 0)).toLatin1()));
        QCOMPARE(seen->role(), QAccessible::StaticText);
        QCOMPARE(seen->text(QAccessible::Name), tile.section(u' ', 1));
    }

    void allItemsOfTheMenusAreNamed_data()
    {
        QTest::addColumn<QByteArray>("menu");
        for (const char *menu : {"mnuFile", "mnuEdit", "mnuGame", "mnuMusic", "mnuHelp"})
            QTest::newRow(menu) << QByteArray(menu);
    }

    void allItemsOfTheMenusAreNamed()
    {
        QFETCH(QByteArray, menu);
        MainWindow main;
        QAccessibleInterface *seen =
            QAccessible::queryAccessibleInterface(&main.control<QMenu>(menu));
        QVERIFY(seen->childCount() > 0);
        for (int i = 0; i < seen->childCount(); ++i) {
            const QAccessibleInterface *item = seen->child(i);
            if (item->role() == QAccessible::Separator)
                continue;
            QCOMPARE(item->role(), QAccessible::MenuItem);
            QVERIFY(!item->text(QAccessible::Name).isEmpty());
        }
    }

    void theGridIsReadCellByCellWithItsRowNumbers()
    {
        MainWindow main;
        main.fill(40);
        main.bar().setValue(5);
        QAccessibleTableInterface *table =
            QAccessible::queryAccessibleInterface(&main.grid())->tableInterface();
        QVERIFY(table->rowCount() > 23);
        for (int row = 1; row <= 23; ++row) {
            for (int column = 0; column < 4; ++column) {
                QAccessibleInterface *cell = table->cellAt(row, column);
                QCOMPARE(cell->role(), QAccessible::Cell);
                QCOMPARE(cell->text(QAccessible::Name), main.row(row).at(column));
            }
            QCOMPARE(table->rowDescription(row), QString::number(row + 4));
        }
        QCOMPARE(table->columnDescription(2), u"Definition"_s);
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<AccessibleTree_test>(argc, argv);
}

#include "AccessibleTree_test.moc"
