// SPDX-License-Identifier: GPL-3.0-or-later
// The modes of the editor, and what the entry area offers in each of them.
#pragma once

enum class EditorMode {
    Idle,
    NewList, // after File > New: the boxes take the first word, while New Word is still shown
    NewWord,
    Editing, // an entry that was picked in the grid
    Search,  // without a hit yet
    Found,
};

// What can have the keyboard.
enum class EntryFocus { Grid, NewWord, Word, Definition, Sentence };

struct EntryLook
{
    // Add, also as Update, and New Word have one place.
    enum class Shown { NewWord, Add, Update };
    enum Button { NewWord = 1, Add = 2, Abort = 4, Delete = 8, Search = 16 };
    enum class Boxes { None, Word, All };

    Shown shown;
    int enabledButtons; // Button values
    Button defaultButton;
    Boxes enabledBoxes;
    EntryFocus focus;

    [[nodiscard]] bool isEnabled(Button button) const { return (enabledButtons & button) != 0; }
};

[[nodiscard]] const EntryLook &lookOf(EditorMode mode);
// Where an entry is edited first after a click in this column of the grid.
[[nodiscard]] EntryFocus boxOfColumn(int column);
