// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/WordPage.h"
#include "editor/ui_frmMain.h"
#include "flash/dlgQuickFlash.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/ProgressShown.h"
#include "runtime/BinaryFile.h"
#include "runtime/SameFile.h"
#include "transfer/Import.h"
#include "transfer/TextFile.h"
#include "transfer/dlgExport.h"

using namespace Module1;

void frmMain::mnuImport_Click()
{
    const Integer remembered = gVocabList().CurrentWord();
    m_fileDialog.Filter = QStringLiteral("Vocab Data (*.lwx)|*.lwx|Data Interchange Format (*.dif)|"
                                         "*.dif|All files (*.*)|*.*");
    m_fileDialog.DialogTitle = QStringLiteral("Import words");
    m_fileDialog.DefaultExt.clear();
    m_fileDialog.InitDir.clear();
    m_fileDialog.FileName.clear();
    if (!m_fileDialog.ShowOpen(this))
        return;
    const QString openList = gFileName;
    gFileName = m_fileDialog.FileName;
    runGuarded([this] { importWords(gFileName); });
    gFileName = openList;
    // The next new word goes behind what came in.
    if (m_mode == Mode::NewWord)
        showNewWordRow();
    else
        m_page->FillGrid(firstAfterImport(remembered.toInt(), m_page->FirstShownItem().toInt(),
                                          gVocabList().NumWords().toInt()));
    gVocabList().CurrentWord(1);
    m_page->returnToChosen();
}

void frmMain::refresh()
{
    m_page->FillGrid(m_page->FirstShownItem());
    repaint();
}

// The kind of the file is what follows the first dot of its whole path.
void frmMain::importWords(const QString &path)
{
    const QString kind = path.mid(path.indexOf(QLatin1Char('.')) + 1, 3);
    Import import(this);
    ProgressShown progress(this);
    connect(&import, &Import::refresh, this, guarded(this, &frmMain::refresh));
    // The entries behind a deleted one move up.
    connect(&import, &Import::deleted, this, guarded(this, &frmMain::letShownEntryGo));
    connect(&import, &Import::changed, this, [this] { m_ui->mnuSave->setEnabled(true); });
    connect(&import, &Import::progress, &progress, &ProgressShown::show);
    connect(&import, &Import::paused, &progress, &ProgressShown::pause);
    if (kind == QLatin1String("lwx"))
        import.ImportWordList();
    else if (kind == QLatin1String("dif"))
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
}

void frmMain::cmdQuickFlash_Click()
{
    if (gVocabList().NumWords() == 0) {
        MsgBox(QStringLiteral("Your current wordlist is empty"));
        return;
    }
    dlgQuickFlash dialog(this);
    connect(&dialog, &dlgQuickFlash::terminated, this, &frmMain::show);
    dialog.exec();
}
