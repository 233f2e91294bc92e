// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the word list as a page of the grid, and below it the boxes and buttons in
// which one entry is typed, changed, found and deleted.
#pragma once

#include "platform/CommonDialog.h"
#include "platform/DefaultButton.h"
#include "platform/Form.h"
#include "platform/PrinterDialog.h"
#include "runtime/Integer.h"

#include <QMainWindow>

#include <memory>

class QAction;
class UnsavedCopy;
class WordPage;
class frmTanglewit;
enum class MsgBoxButtons;
struct MainLayout;

namespace Ui {
class frmMain;
}

class frmMain final : public Form<QMainWindow>
{
    Q_OBJECT

public:
    frmMain();
    ~frmMain() override;

protected:
    void Form_Load() override;
    void Form_GotFocus() override;
    void Form_Terminate() override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    enum class Mode { Idle, NewList, NewWord, Editing, Search };

    // frmMain.cpp: the shell
    void connectHandlers();
    void addShortcuts();
    void loadTop10();
    void fitToWindow();
    void placeEntryArea(const MainLayout &layout, int height);
    void showMode(Mode mode);
    void showCaption();
    void mnuExit_Click();

    // frmMain_Entry.cpp: entry editing and search
    void cmdNewWord_Click();
    void cmdAdd_Click();
    void cmdAbort_Click();
    void cmdDelete_Click();
    void cmdSearch_Click();
    void mnuDeleteWord_Click();
    void txtDefinition_Change();
    void txtSentence_Change();
    void addWord();
    void updateWord();
    void showEntry();
    void showHit(Integer hit);
    void ClearEntryBoxes();
    void DisableEntryBoxes();
    void EnableEntryBoxes();
    void letShownEntryGo();
    [[nodiscard]] bool isCurrentWordAnEntry() const;

    void MSFlexGrid1_Click(int row, int column);
    void showNewWordRow();

    // frmMain_Transfer.cpp: import, export, text file, flash cards
    void mnuImport_Click();
    void mnuExport_Click();
    void mnuCreateTextFile_Click();
    void cmdQuickFlash_Click();
    void importWords(const QString &path);
    void refresh();

    // frmMain_Game.cpp: the game and its music
    void cmdPlayScramble_Click();
    void mnuUpbeat_Click();
    void mnuSoothing_Click();
    void mnuMusicOff_Click();
    void checkMusic(const QAction *chosen);
    void unloadGame();

    // frmMain_Print.cpp: printing
    void mnuPrint_Click();
    void mnuPrinterSetup_Click();
    void mnuPageSetup_Click();
    void mnuPrintWholeList_Click();
    [[nodiscard]] SystemPrinter &printer();

    // frmMain_File.cpp: file commands
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    [[nodiscard]] bool openFile();
    void showFirstPage();
    [[nodiscard]] bool mayEndLesson(MsgBoxButtons saveAnswers);

    std::unique_ptr<Ui::frmMain> m_ui;
    std::unique_ptr<WordPage> m_page;
    std::unique_ptr<frmTanglewit> m_frmTanglewit; // made for the first game
    DefaultButton m_defaultButton;
    CommonDialog m_fileDialog;
    PrinterDialog m_printerDialog;
    std::unique_ptr<SystemPrinter> m_printer;
    std::unique_ptr<UnsavedCopy> m_unsavedCopy;

    Mode m_mode = Mode::Idle;
};
