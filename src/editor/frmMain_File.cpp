// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/QuietLine.h"
#include "editor/WordEditor.h"
#include "editor/ui_frmMain.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/ProgressShown.h"
#include "runtime/BinaryFile.h"
#include "runtime/SameFile.h"
#include "transfer/Import.h"
#include "transfer/TextFile.h"
#include "transfer/dlgExport.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <utility>

using namespace Module1;

namespace {

const QString ListFilter = QStringLiteral("Vocab Data (*.lwx)|*.lwx|All files (*.*)|*.*");

// A list without a file of its own keeps the name in the caption after a cancelled Open.
QString nameToOffer()
{
    if (!gFileName.isEmpty())
        return gFileName;
    return gOpenedFile.isEmpty() ? QStringLiteral("words.lwx") : QFileInfo(gOpenedFile).fileName();
}

// Restores the open list's name at the end of the scope.
[[nodiscard]] auto nameKeeper()
{
    return qScopeGuard([name = gFileName, title = gFileTitle] {
        gFileName = name;
        gFileTitle = title;
    });
}

} // namespace

void frmMain::mnuSave_Click()
{
    if (gFileName.isEmpty()) {
        mnuSaveAs_Click();
        return;
    }
    gVocabList().SaveFile();
    if (gVocabList().NumWords() > 0) // an empty list writes no file
        gOpenedFile = gFileName;
    m_ui->mnuSave->setEnabled(false);
    MsgBox(gFileName + QStringLiteral(" has been saved."));
    gChanged = false; // SaveFile clears it as well, but not for an empty list
    gSaved = true;
}

void frmMain::mnuSaveAs_Click()
{
    gSaved = false;
    m_fileDialog.DialogTitle = QStringLiteral("Save File As");
    m_fileDialog.Filter = ListFilter;
    m_fileDialog.DefaultExt = QStringLiteral("lwx");
    m_fileDialog.InitDir.clear();
    m_fileDialog.OverwritePrompt = true;
    // The list's own name is offered, not what was imported or written as text last.
    const QString lastUsed = std::exchange(m_fileDialog.FileName, nameToOffer());
    if (!m_fileDialog.ShowSave(this)) {
        m_fileDialog.FileName = lastUsed;
        return;
    }
    auto keeper = nameKeeper();
    gFileName = m_fileDialog.FileName;
    gFileTitle = m_fileDialog.FileTitle;
    gVocabList().SaveFile();
    keeper.dismiss();
    // An empty list writes no file: opening one by that name has to read it.
    gOpenedFile = gVocabList().NumWords() > 0 ? gFileName : QString();
    noteUnchanged();
    showCaption();
    gSaved = true;
}

void frmMain::mnuNew_Click()
{
    if (!mayEndLesson(MsgBoxButtons::YesNoCancel))
        return;
    gVocabList().ClearList();
    gOpenedFile.clear();
    gFileName.clear();
    gFileTitle.clear();
    m_fileDialog.FileName.clear();
    showCaption();
    m_editor->showEmptyList(EditorMode::NewList);
    gNewWord = true;
    gWordSelected = false;
    gChanged = false;
}

void frmMain::mnuOpen_Click()
{
    if (!mayEndLesson(MsgBoxButtons::YesNo))
        return;
    const bool isRead = openFile();
    m_editor->cmdAbort_Click();
    if (isRead)
        m_editor->showFirstPage();
}

// Asks before the open list is replaced, and saves it if the person says so. False where it stays:
// after Cancel, or where it was not saved.
bool frmMain::mayEndLesson(MsgBoxButtons saveAnswers)
{
    if (MsgBox(QStringLiteral("End current lesson?"), MsgBoxButtons::OkCancel) ==
        MsgBoxAnswer::Cancel)
        return false;
    if (!gChanged)
        return true;
    const MsgBoxAnswer answer = MsgBox(QStringLiteral("Do you want to save changes?"), saveAnswers);
    if (answer == MsgBoxAnswer::Yes) {
        mnuSave_Click();
        return gSaved;
    }
    return answer == MsgBoxAnswer::No;
}

// True where a file was read.
bool frmMain::openFile()
{
    m_fileDialog.DialogTitle = QStringLiteral("Open File");
    m_fileDialog.Filter = ListFilter;
    m_fileDialog.DefaultExt.clear();
    m_fileDialog.InitDir = pathOf(Place::WordLists);
    m_fileDialog.FileName.clear();
    const bool chosen = m_fileDialog.ShowOpen(this);
    auto keeper = nameKeeper();
    gFileName = chosen ? m_fileDialog.FileName : QString();
    gFileTitle = chosen ? m_fileDialog.FileTitle : QString();
    const bool isRead = !gFileName.isEmpty() && gFileName != gOpenedFile && gVocabList().OpenFile();
    keeper.dismiss();
    if (!isRead)
        return false;
    gOpenedFile = gFileName;
    showCaption();
    noteUnchanged();
    // So that the first search is as fast as the others.
    gVocabList().prepareLookup();
    return true;
}

void frmMain::mnuImport_Click()
{
    m_quietLine->say({});
    const Integer position = gVocabList().CurrentWord();
    m_fileDialog.Filter = QStringLiteral("Vocab Data (*.lwx)|*.lwx|Data Interchange Format (*.dif)|"
                                         "*.dif|All files (*.*)|*.*");
    m_fileDialog.DialogTitle = QStringLiteral("Import words");
    m_fileDialog.DefaultExt.clear();
    m_fileDialog.InitDir.clear();
    m_fileDialog.FileName.clear();
    if (!m_fileDialog.ShowOpen(this))
        return;
    const auto keeper = nameKeeper();
    gFileName = m_fileDialog.FileName;
    runGuarded([this] { importWords(gFileName); });
    m_editor->showImported(position);
}

void frmMain::refresh()
{
    m_editor->refillPage();
    repaint();
}

// The kind of the file is what follows the first dot of its whole path.
void frmMain::importWords(const QString &path)
{
    const QString kind = path.mid(path.indexOf(QLatin1Char('.')) + 1, 3);
    Import import(this);
    ProgressShown progress(this);
    connect(&import, &Import::refresh, this, guarded(this, &frmMain::refresh));
    // A deletion moves the entries behind it.
    connect(&import, &Import::deleted, m_editor.get(),
            guarded(m_editor.get(), &WordEditor::letEntryGo));
    connect(&import, &Import::changed, m_editor.get(), &WordEditor::changed);
    connect(&import, &Import::progress, &progress, &ProgressShown::show);
    connect(&import, &Import::paused, &progress, &ProgressShown::pause);
    const bool isList = kind == QLatin1String("lwx");
    if (!isList && kind != QLatin1String("dif")) {
        m_quietLine->say(QuietTexts::ofNoImport());
        return;
    }
    const auto report = qScopeGuard(
        [&] { m_quietLine->say(QuietTexts::ofImport(import.added(), import.refused())); });
    if (isList)
        import.ImportWordList();
    else
        import.ImportDif();
}

void frmMain::mnuExport_Click()
{
    if (gVocabList().NumWords() == 0) {
        MsgBox(QStringLiteral("Cannot export: Your current wordlist is empty"));
        return;
    }
    dlgExport dialog(pathOf(Place::WordLists), this);
    dialog.exec();
}

void frmMain::mnuCreateTextFile_Click()
{
    if (gVocabList().NumWords() == 0) {
        MsgBox(QStringLiteral("File not created: Your current wordlist is empty."));
        return;
    }
    m_quietLine->say({});
    m_fileDialog.DefaultExt = QStringLiteral("txt");
    m_fileDialog.OverwritePrompt = true;
    m_fileDialog.InitDir.clear();
    m_fileDialog.DialogTitle = QStringLiteral("Create Text File");
    m_fileDialog.Filter = QStringLiteral("Text (*.txt)|*.txt");
    const bool chosen = m_fileDialog.ShowSave(this);
    gSaved = gSaved && chosen; // a write that fails leaves it as it is
    if (!chosen)
        return;
    for (const QString &listFile : {gOpenedFile, gFileName}) {
        if (isSameFile(m_fileDialog.FileName, listFile)) {
            MsgBox(listFile + QStringLiteral(" file is currently in use."));
            return;
        }
    }
    BinaryFile::overwrite(m_fileDialog.FileName, textOfList(gVocabList()));
    showCaption();
    gSaved = true;
    m_quietLine->say(QuietTexts::ofTextFile(m_fileDialog.FileName));
}
