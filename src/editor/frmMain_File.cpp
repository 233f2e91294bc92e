// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/WordPage.h"
#include "editor/ui_frmMain.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"

#include <QScopeGuard>

#include <utility>

using namespace Module1;

namespace {

const QString ListFilter = QStringLiteral("Vocab Data (*.lwx)|*.lwx|All files (*.*)|*.*");

// Puts the open list's name back at the end of the scope, unless it is dismissed.
auto fileNameRestorer()
{
    return qScopeGuard([fileName = gFileName, fileTitle = gFileTitle] {
        gFileName = fileName;
        gFileTitle = fileTitle;
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
    gChanged = false;
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
    const QString lastUsed = std::exchange(m_fileDialog.FileName, gFileName);
    if (!m_fileDialog.ShowSave(this)) {
        m_fileDialog.FileName = lastUsed;
        return;
    }
    auto restorer = fileNameRestorer();
    gFileName = m_fileDialog.FileName;
    gFileTitle = m_fileDialog.FileTitle;
    gVocabList().SaveFile();
    restorer.dismiss();
    // An empty list writes no file: opening one by that name has to read it.
    gOpenedFile = gVocabList().NumWords() > 0 ? gFileName : QString();
    m_ui->mnuSave->setEnabled(false);
    gChanged = false;
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
    ClearEntryBoxes();
    m_page->showNoEntries();
    showMode(Mode::NewList);
    m_ui->txtWord->setFocus();
    gNewWord = true;
    gWordSelected = false;
    gChanged = false;
}

void frmMain::mnuOpen_Click()
{
    if (!mayEndLesson(MsgBoxButtons::YesNo))
        return;
    const bool isRead = openFile();
    cmdAbort_Click();
    if (isRead)
        showFirstPage();
}

// Asks whether the list in work may go, and saves it where the person wants that. False where it
// is to stay: by a Cancel, or because it was not saved in the end.
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
    auto restorer = fileNameRestorer();
    gFileName = chosen ? m_fileDialog.FileName : QString();
    gFileTitle = chosen ? m_fileDialog.FileTitle : QString();
    const bool isRead = !gFileName.isEmpty() && gFileName != gOpenedFile && gVocabList().OpenFile();
    restorer.dismiss();
    if (!isRead)
        return false;
    gOpenedFile = gFileName;
    showCaption();
    gChanged = false;
    m_ui->mnuSave->setEnabled(false);
    // Here, so that the first search answers as fast as the others.
    gVocabList().prepareLookup();
    return true;
}

void frmMain::showFirstPage()
{
    gLastItem = 1;
    m_page->FillGrid(1);
    m_page->scrollTo(1);
    gVocabList().CurrentWord(1);
}
