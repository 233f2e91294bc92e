// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorMode.h"

EntryLook lookOf(EditorMode mode)
{
    using Boxes = EntryLook::Boxes;
    using Button = EntryLook::Button;
    EntryLook look;
    switch (mode) {
    case EditorMode::Idle:
        look = {.newWord = true, .search = true};
        break;
    case EditorMode::NewList:
        look = {.newWord = true,
                .add = true,
                .abort = true,
                .boxes = Boxes::All,
                .defaultButton = Button::Add,
                .focus = EntryFocus::Word};
        break;
    case EditorMode::NewWord:
        look = {.showsAdd = true,
                .add = true,
                .abort = true,
                .boxes = Boxes::All,
                .defaultButton = Button::Add,
                .focus = EntryFocus::Word};
        break;
    case EditorMode::Editing:
        look = {.showsAdd = true,
                .isUpdate = true,
                .add = true,
                .abort = true,
                .deletion = true,
                .boxes = Boxes::All,
                .defaultButton = Button::Add,
                .focus = EntryFocus::Word};
        break;
    case EditorMode::Search:
        look = {.abort = true,
                .search = true,
                .boxes = Boxes::Word,
                .defaultButton = Button::Search,
                .focus = EntryFocus::Word};
        break;
    case EditorMode::Found:
        look = {.abort = true,
                .deletion = true,
                .search = true,
                .boxes = Boxes::Word,
                .defaultButton = Button::Search,
                .focus = EntryFocus::Word};
        break;
    }
    return look;
}

EntryFocus boxOfColumn(int column)
{
    switch (column) {
    case 2:
        return EntryFocus::Definition;
    case 3:
        return EntryFocus::Sentence;
    default:
        return EntryFocus::Word;
    }
}
