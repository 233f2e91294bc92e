// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/MainWindow.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/EntryTextBox.h"
#include "platform/Paths.h"

#include <QDir>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTest>

using namespace Qt::StringLiterals;

MainWindow::MainWindow(Start start, Caller caller) : answers(caller)
{
    // As at any start but the first.
    QDir().mkpath(pathOf(Place::WordLists));
    m_window = std::make_unique<frmMain>();
    if (start == Start::Shown)
        show(caller);
}

MainWindow::~MainWindow() = default;

void MainWindow::show(Caller caller)
{
    m_window->showMaximized();
    Controls::waitUntilActive(*m_window, caller);
}

QScrollBar &MainWindow::bar()
{
    return control<QScrollBar>("VScroll1");
}

void MainWindow::click(const char *button, Caller caller)
{
    Controls::click(control<QPushButton>(button, caller), caller);
}

void MainWindow::choose(const char *menuItem, Caller caller)
{
    Controls::choose(action(menuItem, caller), caller);
}

void MainWindow::type(const char *box, const QString &text, Caller caller)
{
    Controls::type(control<QWidget>(box, caller), text, caller);
}

QString MainWindow::text(const char *box, Caller caller)
{
    auto &widget = control<QWidget>(box, caller);
    if (const auto *line = qobject_cast<QLineEdit *>(&widget))
        return line->text();
    if (const auto *lines = qobject_cast<EntryTextBox *>(&widget))
        return lines->text();
    failTest(QLatin1String(box) + u" is no text box"_s, caller);
    return {};
}

void MainWindow::typeEntry(const QString &word, const QString &definition, const QString &sentence,
                           Caller caller)
{
    type("txtWord", word, caller);
    type("txtDefinition", definition, caller);
    type("txtSentence", sentence, caller);
}

void MainWindow::fill(int entries)
{
    QStringList words;
    for (int i = 1; i <= entries; ++i)
        words += QString::number(i);
    cVocabList &list = Module1::gVocabList();
    list.ClearList();
    for (const QString &number : words)
        list.AddVocab(u"word "_s + number, u"definition "_s + number, u"sentence "_s + number);
    showFirstPage();
}

void MainWindow::fill(const QStringList &words)
{
    cVocabList &list = Module1::gVocabList();
    list.ClearList();
    for (const QString &word : words)
        list.AddVocab(word, u"definition of "_s + word, u"sentence of "_s + word);
    showFirstPage();
}

void MainWindow::showFirstPage()
{
    {
        const QSignalBlocker blocker(bar());
        bar().setValue(0);
    }
    bar().setValue(1);
}

void MainWindow::clickCell(int row, int column, Caller caller)
{
    MSFlexGrid &table = grid();
    const QRect cell = table.visualItemRect(table.item(row, column));
    if (!table.viewport()->rect().contains(cell.center()))
        return failTest(u"row %1, column %2 is not visible"_s.arg(row).arg(column), caller);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
}

QStringList MainWindow::row(int row)
{
    QStringList texts;
    for (int column = 0; column < 4; ++column)
        texts += grid().text(row, column);
    return texts;
}

QList<int> MainWindow::markedRows(Caller caller)
{
    QList<int> rows;
    for (int row = 1; row < grid().rowCount(); ++row) {
        int marks = 0;
        for (int column = 1; column <= 3; ++column) {
            marks += grid().cellBackColour(row, column) == MSFlexGrid::Yellow ? 1 : 0;
            marks += grid().cellBold(row, column) ? 1 : 0;
        }
        if (marks == 6)
            rows += row;
        else if (marks != 0)
            failTest(u"row %1 is marked in part"_s.arg(row), caller);
    }
    return rows;
}

QStringList MainWindow::look()
{
    QStringList look;
    for (const char *name : {"cmdNewWord", "cmdAdd", "cmdAbort", "cmdDelete", "cmdSearch"}) {
        const auto &button = control<QPushButton>(name);
        QString state = u"hidden"_s;
        if (button.isVisible())
            state = button.text() + u' ' +
                    (!button.isEnabled()  ? u"disabled"_s
                     : button.isDefault() ? u"default"_s
                                          : u"enabled"_s);
        look += QLatin1String(name) + u": "_s + state;
    }
    for (const char *name : {"txtWord", "txtDefinition", "txtSentence"})
        look += QLatin1String(name) +
                (control<QWidget>(name).isEnabled() ? u": enabled"_s : u": disabled"_s);
    return look;
}
