// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: the editor of the word list below its menus.
#pragma once

#include "platform/CommonDialog.h"
#include "platform/Form.h"

#include <QMainWindow>

#include <memory>

class GameMenu;
class HelpMenu;
class PrintMenu;
class QuietLine;
class UnsavedCopy;
class WordEditor;
enum class MsgBoxButtons;

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
    // frmMain.cpp: the window
    void connectHandlers();
    void fitToWindow();
    void showCaption();
    void noteUnchanged();

    // frmMain_File.cpp: list files and text files
    void mnuNew_Click();
    void mnuOpen_Click();
    void mnuSave_Click();
    void mnuSaveAs_Click();
    void mnuImport_Click();
    void mnuExport_Click();
    void mnuCreateTextFile_Click();
    [[nodiscard]] bool mayEndLesson(MsgBoxButtons saveAnswers);
    [[nodiscard]] bool openFile();
    void importWords(const QString &path);
    void refresh();

    std::unique_ptr<Ui::frmMain> m_ui;
    std::unique_ptr<WordEditor> m_editor;
    std::unique_ptr<QuietLine> m_quietLine;
    std::unique_ptr<GameMenu> m_gameMenu;
    std::unique_ptr<PrintMenu> m_printMenu;
    std::unique_ptr<HelpMenu> m_helpMenu;
    CommonDialog m_fileDialog;
    std::unique_ptr<UnsavedCopy> m_unsavedCopy;
};
