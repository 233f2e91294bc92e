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
    enum class Boxes { None, Word, All };
    enum class Button { NewWord, Add, Search };

    bool showsAdd = false; // in the place of New Word
    bool isUpdate = false; // the caption of Add
    // Enabled buttons.
    bool newWord = false;
    bool add = false;
    bool abort = false;
    bool deletion = false;
    bool search = false;

    Boxes boxes = Boxes::None; // enabled
    Button defaultButton = Button::NewWord;
    EntryFocus focus = EntryFocus::Grid;

    bool operator==(const EntryLook &) const = default;
};

[[nodiscard]] EntryLook lookOf(EditorMode mode);
// Where an entry is edited first after a click in this column of the grid.
[[nodiscard]] EntryFocus boxOfColumn(int column);
