// SPDX-License-Identifier: GPL-3.0-or-later
// The boxes that hold one entry and the buttons below them, in the lower half of the main window.
#pragma once

#include "core/VocabRecord.h"
#include "editor/EditorMode.h"
#include "platform/DefaultButton.h"

#include <QObject>

class QKeyEvent;
struct MainLayout;

namespace Ui {
class frmMain;
}

class EntryArea final : public QObject
{
    Q_OBJECT

public:
    explicit EntryArea(Ui::frmMain &ui);

    void place(const MainLayout &layout, int height);
    // In pixels; four lines of a definition can be read.
    [[nodiscard]] int leastHeight() const;

    // The keyboard goes to the control that the mode names, or to `focus`.
    void show(EditorMode mode) { show(mode, lookOf(mode).focus); }
    void show(EditorMode mode, EntryFocus focus);
    [[nodiscard]] EditorMode mode() const { return m_mode; }
    void giveFocus(EntryFocus control);
    // True where the key was Enter, which presses the default button.
    bool press(const QKeyEvent &event, QWidget *focus) const;

    void showEntry(const VocabRecord &entry);
    // As it is typed, outer blanks included.
    [[nodiscard]] VocabRecord entry() const;
    [[nodiscard]] QString word() const;
    void selectWord();
    void ClearEntryBoxes();

private:
    [[nodiscard]] int lineHeight() const;
    [[nodiscard]] int titleHeight() const;
    void placeButtons(int left, int right, int playLeft, int top);
    void showTips(bool updates);
    void txtDefinition_Change();
    void txtSentence_Change();

    Ui::frmMain &m_ui;
    DefaultButton m_defaultButton;
    EditorMode m_mode = EditorMode::Idle;
};
