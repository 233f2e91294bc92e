// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/GameMenu.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/ui_frmMain.h"
#include "flash/dlgQuickFlash.h"
#include "game/frmTanglewit.h"
#include "platform/Guarded.h"
#include "platform/MsgBox.h"

using namespace Module1;

namespace {

// False for an empty list, after a message.
bool mayPractise()
{
    const bool hasWords = gVocabList().NumWords() > 0;
    if (!hasWords)
        MsgBox(QStringLiteral("Your current wordlist is empty"));
    return hasWords;
}

} // namespace

GameMenu::GameMenu(const Ui::frmMain &ui, QWidget *window) : m_ui(ui), m_window(window)
{
    onClick(ui.mnuPlayScramble, this, &GameMenu::cmdPlayScramble_Click);
    onClick(ui.mnuQuickFlash, this, &GameMenu::cmdQuickFlash_Click);
    onClick(ui.mnuUpbeat, this, &GameMenu::mnuUpbeat_Click);
    onClick(ui.mnuSoothing, this, &GameMenu::mnuSoothing_Click);
    onClick(ui.mnuMusicOff, this, &GameMenu::mnuMusicOff_Click);
    onClick(ui.cmdPlayScramble, this, &GameMenu::cmdPlayScramble_Click);
    onClick(ui.cmdQuickFlash, this, &GameMenu::cmdQuickFlash_Click);
}

GameMenu::~GameMenu() = default;

void GameMenu::unloadGame()
{
    if (m_frmTanglewit)
        m_frmTanglewit->close();
}

void GameMenu::cmdPlayScramble_Click()
{
    if (!mayPractise())
        return;
    if (!m_frmTanglewit) {
        m_frmTanglewit = std::make_unique<frmTanglewit>(
            MusicMenu{*m_ui.mnuUpbeat, *m_ui.mnuSoothing, *m_ui.mnuMusicOff}, m_window);
        connect(m_frmTanglewit.get(), &frmTanglewit::left, m_window, &QWidget::show);
    }
    m_frmTanglewit->show(); // before the main window goes, so that no empty desktop is seen
    m_window->hide();
}

void GameMenu::cmdQuickFlash_Click()
{
    if (!mayPractise())
        return;
    dlgQuickFlash dialog(m_window);
    connect(&dialog, &dlgQuickFlash::terminated, m_window, &QWidget::show);
    dialog.exec();
}

void GameMenu::mnuUpbeat_Click()
{
    chooseMusic(m_ui.mnuUpbeat);
}

void GameMenu::mnuSoothing_Click()
{
    chooseMusic(m_ui.mnuSoothing);
}

void GameMenu::mnuMusicOff_Click()
{
    chooseMusic(m_ui.mnuMusicOff);
}

void GameMenu::chooseMusic(const QAction *chosen)
{
    for (QAction *item : {m_ui.mnuUpbeat, m_ui.mnuSoothing, m_ui.mnuMusicOff})
        item->setChecked(item == chosen);
    gUpbeatMusic = chosen == m_ui.mnuUpbeat;
    gMusicOff = chosen == m_ui.mnuMusicOff;
}
