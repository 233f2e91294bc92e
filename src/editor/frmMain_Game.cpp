// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/frmMain.h"
#include "editor/ui_frmMain.h"
#include "flash/dlgQuickFlash.h"
#include "game/frmTanglewit.h"
#include "platform/MsgBox.h"

using namespace Module1;

void frmMain::cmdPlayScramble_Click()
{
    if (gVocabList().NumWords() == 0) {
        MsgBox(QStringLiteral("Your current wordlist is empty"));
        return;
    }
    if (!m_frmTanglewit) {
        m_frmTanglewit = std::make_unique<frmTanglewit>(
            MusicMenu{*m_ui->mnuUpbeat, *m_ui->mnuSoothing, *m_ui->mnuMusicOff}, this);
        connect(m_frmTanglewit.get(), &frmTanglewit::left, this, &frmMain::show);
    }
    hide();
    m_frmTanglewit->show();
}

void frmMain::mnuUpbeat_Click()
{
    gUpbeatMusic = true;
    checkMusic(m_ui->mnuUpbeat);
    gMusicOff = false;
}

void frmMain::mnuSoothing_Click()
{
    gUpbeatMusic = false;
    checkMusic(m_ui->mnuSoothing);
    gMusicOff = false;
}

void frmMain::mnuMusicOff_Click()
{
    gUpbeatMusic = false;
    checkMusic(m_ui->mnuMusicOff);
    gMusicOff = true;
}

void frmMain::checkMusic(const QAction *chosen)
{
    for (QAction *item : {m_ui->mnuUpbeat, m_ui->mnuSoothing, m_ui->mnuMusicOff})
        item->setChecked(item == chosen);
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
