// SPDX-License-Identifier: GPL-3.0-or-later
// What the first start of the program finds: an empty home folder, and the shared globals with
// their first values. The destructor resets the globals.
#pragma once

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/FreshHome.h"

class FreshState final : public FreshHome
{
public:
    FreshState() { resetGlobals(); }
    ~FreshState() { resetGlobals(); }
    Q_DISABLE_COPY_MOVE(FreshState)

private:
    static void resetGlobals()
    {
        using namespace Module1;
        for (cVocabList *list : {&gVocabList(), &gImportList(), &gExportList()})
            *list = cVocabList();
        gFileName.clear();
        gFileTitle.clear();
        gOpenedFile.clear();
        gChanged = gSaved = gNewWord = gWordSelected = false;
        gLastItem = gRowHeight = gHighlightRow = 0;
        gRowItem = {};
        gAddThis = gAddAll = gSkipAll = gStopImport = false;
        gImportWord.clear();
        gImportDef.clear();
        gImportSen.clear();
        gImportCount = 0;
        gDifLines = {};
        gWordOrder = {};
        gOrderIndex = gOrderSize = 0;
        gScore = 0;
        gTop10 = {};
        gViewTop10Only = gUpbeatMusic = gMusicOff = PrintItemNumber = false;
        gFastBeatTracks = gSoftBeatTracks = {};
        PrintOrientation.clear();
        TopMargin = BottomMargin = LeftMargin = RightMargin = 0;
        FromWord = ToWord = 0;
    }
};
