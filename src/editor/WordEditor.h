// SPDX-License-Identifier: GPL-3.0-or-later
// The editor of the open list: adds, picks, changes, finds and deletes entries, in the entry area
// and the page of the list above it.
#pragma once

#include "editor/EntryArea.h"
#include "editor/WordPage.h"

class WordEditor final : public QObject
{
    Q_OBJECT

public:
    explicit WordEditor(Ui::frmMain &ui);

    void place(const MainLayout &layout, int entryHeight);
    // Of the entry area, in pixels.
    [[nodiscard]] int leastHeight() const { return m_area.leastHeight(); }
    [[nodiscard]] EditorMode mode() const { return m_area.mode(); }
    // The entry that is picked or found; 0 = none.
    [[nodiscard]] Integer chosenEntry() const { return m_page.chosen(); }
    // True where the key was Enter, which presses the default button.
    bool press(const QKeyEvent &event, QWidget *focus) const;

    void showEmptyList(EditorMode mode);
    // Of a list that was opened.
    void showFirstPage();
    // Again, after a change elsewhere.
    void refillPage();
    // After an import.
    void showImported(Integer positionBefore);
    // Ends the editing of an entry that is picked or found.
    void letEntryGo();

    void cmdAbort_Click();
    void mnuDeleteWord_Click();

Q_SIGNALS:
    // There are changes to save.
    void changed();

private:
    void cmdNewWord_Click();
    void cmdAdd_Click();
    void cmdDelete_Click();
    void cmdSearch_Click();
    void MSFlexGrid1_Click(int row, int column);
    void addWord();
    void updateWord();
    void showNewWordRow();
    void showHit(Integer hit);
    void showEntry();
    void clearBoxes();

    EntryArea m_area;
    WordPage m_page;
};
