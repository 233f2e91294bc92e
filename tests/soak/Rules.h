// SPDX-License-Identifier: GPL-3.0-or-later
// What the program is to do and does not do yet: each of these becomes true, and then goes, with
// the change that brings it.
#pragma once

namespace Rules {

inline constexpr bool EscDeclines = true;         // deleting, adding twice, resetting
inline constexpr bool SaveAsOpens = true;         // the saved file is the loaded one
inline constexpr bool SaveAsOffersOwnName = true; // and none at all for an untitled list
inline constexpr bool TextFileSparesLists = true; // refuses the open list's own file
inline constexpr bool EnterAddsToNewList = true;  // after File > New
inline constexpr bool PastesAreOneLine = true;    // in txtWord
inline constexpr bool ImportKeepsEntry = true;    // in the boxes, where nothing was deleted
inline constexpr bool PagesStayFull = true;       // under the wheel and the keys
inline constexpr bool ExportSparesOthers = true;  // refuses a target that is no list
inline constexpr bool CopiesAreKept = true;       // of a list with changes, in the lists' folder
inline constexpr bool PastedWordsMatch = false;   // in the game, a tab and a line break in one word

} // namespace Rules
