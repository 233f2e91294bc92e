// SPDX-License-Identifier: GPL-3.0-or-later
// The state that all windows share, one copy for the whole run.
#pragma once

#include "runtime/Array.h"
#include "runtime/Currency.h"
#include "runtime/Integer.h"

#include <QDate>
#include <QString>

#include <array>

class cVocabList;

// One row of the Top 10 table.
struct Top10Entry
{
    QDate EntryDate;
    QString PlayerName; // empty for an unused row
    Integer Points;     // 0 marks an unused row
};

namespace Module1 {

// Each list is created at the first call.
cVocabList &gVocabList();  // open in the main window
cVocabList &gImportList(); // a file being imported
cVocabList &gExportList(); // the target of an export

inline QString gFileName;     // the path that SaveFile and OpenFile use; empty = untitled
inline QString gFileTitle;    // the open list's file name without folder
inline QString gOpenedFile;   // the path of the file whose contents are loaded
inline bool gChanged = false; // the list has unsaved changes
inline bool gSaved = false;   // the last save was completed

inline bool gNewWord = false;      // the entry boxes hold a new word being typed
inline bool gWordSelected = false; // an entry has been picked in the grid for editing

inline Integer gLastItem;     // list position of the last entry that the grid page shows
inline Integer gRowHeight;    // of one grid row, in twips
inline Integer gHighlightRow; // grid row that is marked; 0 = none

// The list position shown in grid row r is element r - 1; rows 1 to 24.
inline std::array<Integer, 24> gRowItem;

// The answers of the existing-word dialog, and what is being imported.
inline bool gAddThis = false;    // add the conflicting word
inline bool gAddAll = false;     // add every further word without checking
inline bool gSkipAll = false;    // skip every further conflicting word without asking
inline bool gStopImport = false; // the import ends here
inline QString gImportWord;
inline QString gImportDef;
inline QString gImportSen;
inline Integer gImportCount;     // words added by this import
inline Array<QString> gDifLines; // of the last DIF file read

inline Array<Integer> gWordOrder; // list positions in the order in which they are asked
inline Integer gOrderIndex;       // position in gWordOrder of the word on show
inline Integer gOrderSize;        // positions of gWordOrder in use

inline Integer gScore;                    // points of the game
inline std::array<Top10Entry, 10> gTop10; // best first
inline bool gViewTop10Only = false;       // the Top 10 dialog is only looked at

inline bool gUpbeatMusic = false; // the chosen set is the upbeat one
inline bool gMusicOff = false;    // no music is to be played
// Wave files of levels 1 to 10. Empty until a game is opened while music is chosen.
inline Array<QString> gFastBeatTracks;
inline Array<QString> gSoftBeatTracks;

// The margins of printed pages in inches, 0 to 3, and the range of entries. FromWord or ToWord 0
// means that no range was set yet.
inline Currency TopMargin;
inline Currency BottomMargin;
inline Currency LeftMargin;
inline Currency RightMargin;
inline Integer FromWord;
inline Integer ToWord; // below FromWord, the range runs downwards
inline bool PrintItemNumber = false;
inline QString PrintOrientation; // "Portrait" or "Landscape"

} // namespace Module1
