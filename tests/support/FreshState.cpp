// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/FreshState.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "support/Controls.h"

#include <QDir>
#include <QSettings>

using namespace Qt::StringLiterals;

namespace {

void resetGlobals()
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

} // namespace

FreshState::FreshState()
{
    if (!m_home.isValid())
        Controls::fail(m_home.errorString());
    const auto place = [this](const char *variable, const QString &folder) {
        const QString path = this->path(folder);
        QDir().mkpath(path);
        qputenv(variable, QFile::encodeName(path));
    };
    place("HOME", u"."_s);
    place("XDG_DATA_HOME", u".local/share"_s);
    place("XDG_CONFIG_HOME", u".config"_s);
    place("XDG_CACHE_HOME", u".cache"_s);
    // Where the file dialog keeps its state.
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, path(u".config"_s));
    resetGlobals();
}

FreshState::~FreshState()
{
    resetGlobals();
}
