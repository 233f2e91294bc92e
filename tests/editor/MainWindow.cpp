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

MainWindow::MainWindow(Start start)
{
    // As at any start but the first.
    QDir().mkpath(pathOf(Place::WordLists));
    m_window = std::make_unique<frmMain>();
    if (start == Start::Shown)
        show();
}

MainWindow::~MainWindow() = default;

void MainWindow::show()
{
    m_window->showMaximized();
    if (!QTest::qWaitForWindowActive(m_window.get()))
        Controls::fail(u"the main window does not become active"_s);
}

QScrollBar &MainWindow::bar()
{
    return control<QScrollBar>("VScroll1");
}

void MainWindow::click(const char *button)
{
    Controls::click(control<QPushButton>(button));
}

void MainWindow::choose(const char *menuItem)
{
    Controls::choose(action(menuItem));
}

void MainWindow::type(const char *box, const QString &text)
{
    Controls::type(control<QWidget>(box), text);
}

QString MainWindow::text(const char *box)
{
    auto &widget = control<QWidget>(box);
    if (const auto *line = qobject_cast<QLineEdit *>(&widget))
        return line->text();
    if (const auto *lines = qobject_cast<EntryTextBox *>(&widget))
        return lines->text();
    Controls::fail(QLatin1String(box) + u" is no text box"_s);
}

void MainWindow::typeEntry(const QString &word, const QString &definition, const QString &sentence)
{
    type("txtWord", word);
    type("txtDefinition", definition);
    type("txtSentence", sentence);
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

void MainWindow::clickCell(int row, int column)
{
    MSFlexGrid &table = grid();
    const QRect cell = table.visualItemRect(table.item(row, column));
    if (!table.viewport()->rect().contains(cell.center()))
        Controls::fail(u"row %1, column %2 is out of sight"_s.arg(row).arg(column));
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, cell.center());
}

QStringList MainWindow::row(int row)
{
    QStringList texts;
    for (int column = 0; column < 4; ++column)
        texts += grid().text(row, column);
    return texts;
}

QList<int> MainWindow::markedRows()
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
            Controls::fail(u"row %1 is marked in part"_s.arg(row));
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
