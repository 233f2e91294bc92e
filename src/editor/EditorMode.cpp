// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EditorMode.h"

#include <array>

const EntryLook &lookOf(EditorMode mode)
{
    using enum EntryLook::Button;
    using Shown = EntryLook::Shown;
    using Boxes = EntryLook::Boxes;
    using Focus = EntryFocus;
    // In the order of EditorMode.
    static constexpr std::array<EntryLook, 6> looks{{
        {Shown::NewWord, NewWord | Search, NewWord, Boxes::None, Focus::Grid},
        {Shown::NewWord, NewWord | Add | Abort, Add, Boxes::All, Focus::Word},
        {Shown::Add, Add | Abort, Add, Boxes::All, Focus::Word},
        {Shown::Update, Add | Abort | Delete, Add, Boxes::All, Focus::Word},
        {Shown::NewWord, Abort | Search, Search, Boxes::Word, Focus::Word},
        {Shown::NewWord, Abort | Delete | Search, Search, Boxes::Word, Focus::Word},
    }};
    return looks.at(static_cast<std::size_t>(mode));
}

EntryFocus boxOfColumn(int column)
{
    return column == 2   ? EntryFocus::Definition
           : column == 3 ? EntryFocus::Sentence
                         : EntryFocus::Word;
}
