// SPDX-License-Identifier: GPL-3.0-or-later
// The main window after a start of the program: shown maximised and active, with a fresh home
// folder and the answers to its dialogs.
#pragma once

#include "core/FreshState.h"
#include "editor/frmMain.h"
#include "platform/MSFlexGrid.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"

#include <QList>
#include <QStringList>

class QScrollBar;

class MainWindow final
{
    FreshState m_state;
    std::unique_ptr<frmMain> m_window;

public:
    enum class Start { Shown, Hidden };
    explicit MainWindow(Start start = Start::Shown, Caller caller = Caller::current());
    ~MainWindow();
    Q_DISABLE_COPY_MOVE(MainWindow)

    DialogAnswers answers;

    // Shows the window maximised and waits until it is active.
    void show(Caller caller = Caller::current());

    [[nodiscard]] frmMain &window() { return *m_window; }
    // A path in the fresh home.
    [[nodiscard]] QString path(const QString &name) const { return m_state.path(name); }

    template <class Control>
    [[nodiscard]] Control &control(const char *name, Caller caller = Caller::current())
    {
        return Controls::find<Control>(*m_window, name, caller);
    }
    [[nodiscard]] QAction &action(const char *name, Caller caller = Caller::current())
    {
        return control<QAction>(name, caller);
    }
    [[nodiscard]] MSFlexGrid &grid() { return control<MSFlexGrid>("MSFlexGrid1"); }
    [[nodiscard]] QScrollBar &bar();

    void click(const char *button, Caller caller = Caller::current());
    void choose(const char *menuItem, Caller caller = Caller::current());
    void type(const char *box, const QString &text, Caller caller = Caller::current());
    // Of txtWord, txtDefinition or txtSentence.
    [[nodiscard]] QString text(const char *box, Caller caller = Caller::current());

    // Types an entry into the boxes, which must be enabled.
    void typeEntry(const QString &word, const QString &definition = {},
                   const QString &sentence = {}, Caller caller = Caller::current());

    // Replaces the entries of the list by ("word 1", "definition 1", "sentence 1"), … and shows the
    // page from entry 1.
    void fill(int entries);
    // The same with these words, "definition of " and "sentence of " each.
    void fill(const QStringList &words);

    // Clicks the middle of a cell, which must be visible.
    void clickCell(int row, int column, Caller caller = Caller::current());
    // Item number, word, definition and sentence that the grid shows in the row.
    [[nodiscard]] QStringList row(int row);
    // The rows that are bold and yellow in all three columns of texts. A row that is marked only in
    // part fails the test.
    [[nodiscard]] QList<int> markedRows(Caller caller = Caller::current());

    // What a person sees of the entry area, control by control: "hidden", or the button's caption
    // and then "disabled", "enabled" or "default"; of the text boxes "disabled" or "enabled".
    [[nodiscard]] QStringList look();

private:
    void showFirstPage();
};
