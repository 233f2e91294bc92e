// SPDX-License-Identifier: GPL-3.0-or-later
// What the program is to do and does not do yet: each of these becomes true, and then goes, with
// the change that brings it.
#pragma once

namespace Rules {

inline constexpr bool EscDeclines = false;         // deleting, adding twice, resetting
inline constexpr bool SaveAsOpens = false;         // the saved file is the loaded one
inline constexpr bool SaveAsOffersOwnName = false; // and none at all for an untitled list
inline constexpr bool TextFileSparesLists = false; // refuses the open list's own file
inline constexpr bool EnterAddsToNewList = false;  // after File > New
inline constexpr bool PastesAreOneLine = false;    // in txtWord
inline constexpr bool ImportKeepsEntry = false;    // in the boxes, where nothing was deleted
inline constexpr bool PagesStayFull = false;       // under the wheel and the keys
inline constexpr bool ExportSparesOthers = false;  // refuses a target that is no list
inline constexpr bool CopiesAreKept = false;       // of a list with changes, in the lists' folder
inline constexpr bool PastedWordsMatch = false; // in the game, a tab and a line break in one word

} // namespace Rules
