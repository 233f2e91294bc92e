// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/GameMenu.h"
#include "editor/HelpMenu.h"
#include "editor/MainLayout.h"
#include "editor/MenuIcons.h"
#include "editor/PrintMenu.h"
#include "editor/QuietLine.h"
#include "editor/UnsavedCopy.h"
#include "editor/WordEditor.h"
#include "editor/ui_frmMain.h"
#include "game/Top10File.h"
#include "platform/EndRequest.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/Screen.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

using namespace Module1;

namespace {

void loadTop10()
{
    gTop10 = emptyTop10(QDate::currentDate());
    // Without the table the editor works as well.
    runGuarded([] { gTop10 = Top10File::read(pathOf(Place::Top10), gTop10); });
}

void addShortcut(const QKeySequence &keys, QPushButton *button)
{
    auto *shortcut = new QShortcut(keys, button->window());
    // A click of a disabled button does nothing.
    QObject::connect(shortcut, &QShortcut::activated, button, [button] {
        if (button->isVisible())
            button->click();
    });
}

} // namespace

frmMain::frmMain()
    : m_ui(std::make_unique<Ui::frmMain>()), m_fileDialog(pathOf(Place::WordLists)),
      m_unsavedCopy(std::make_unique<UnsavedCopy>(this))
{
    m_ui->setupUi(this);
    for (QAction *separator : {m_ui->sep1, m_ui->sep2, m_ui->sep, m_ui->sepHelp})
        separator->setSeparator(true);
    m_editor = std::make_unique<WordEditor>(*m_ui);
    m_quietLine = std::make_unique<QuietLine>(*m_ui, *m_editor);
    m_gameMenu = std::make_unique<GameMenu>(*m_ui, this);
    m_printMenu = std::make_unique<PrintMenu>(*m_ui, this);
    m_helpMenu = std::make_unique<HelpMenu>(*m_ui, this);
    showMenuIcons(*m_ui);
    connectHandlers();
    addShortcut(Qt::Key_Escape, m_ui->cmdAbort);
    addShortcut(QKeySequence::Find, m_ui->cmdSearch);
}

frmMain::~frmMain() = default;

void frmMain::connectHandlers()
{
    onClick(m_ui->mnuNew, &frmMain::mnuNew_Click);
    onClick(m_ui->mnuOpen, &frmMain::mnuOpen_Click);
    onClick(m_ui->mnuSave, &frmMain::mnuSave_Click);
    onClick(m_ui->mnuSaveAs, &frmMain::mnuSaveAs_Click);
    onClick(m_ui->mnuCreateTextFile, &frmMain::mnuCreateTextFile_Click);
    onClick(m_ui->mnuExport, &frmMain::mnuExport_Click);
    onClick(m_ui->mnuImport, &frmMain::mnuImport_Click);
    connect(m_printMenu.get(), &PrintMenu::begun, this, [this] { m_quietLine->say({}); });
    connect(m_printMenu.get(), &PrintMenu::printed, this,
            [this](const QString &target) { m_quietLine->say(QuietTexts::ofPrint(target)); });
    connect(m_ui->mnuExit, &QAction::triggered, this, &frmMain::close);
    ::onClick(m_ui->mnuDeleteWord, m_editor.get(), &WordEditor::mnuDeleteWord_Click);
    connect(m_editor.get(), &WordEditor::changed, m_ui->mnuSave,
            [this] { m_ui->mnuSave->setEnabled(true); });
}

void frmMain::Form_Load()
{
    gVocabList().ClearList();
    gFileName.clear();
    gOpenedFile.clear();
    gFileTitle.clear();
    gNewWord = gWordSelected = false;
    noteUnchanged();
    showCaption();

    fitToWindow();
    m_editor->showEmptyList(EditorMode::Idle);
    loadTop10();
    gUpbeatMusic = true;
    gMusicOff = true;
    PrintItemNumber = true;
    PrintOrientation = QStringLiteral("Portrait");
}

void frmMain::Form_GotFocus()
{
    if (m_ui->txtWord->isEnabled())
        m_ui->txtWord->setFocus();
}

void frmMain::Form_Terminate()
{
    const LastQuestions asking;
    const bool asked = gChanged;
    const bool save = asked && MsgBox(QStringLiteral("Your changes have not been saved.  "
                                                     "Do you want to save them?"),
                                      MsgBoxButtons::YesNo) == MsgBoxAnswer::Yes;
    if (save && !gFileName.isEmpty())
        gVocabList().SaveFile();
    else if (save)
        mnuSaveAs_Click();
    m_gameMenu->unloadGame();
    if (asked && !save)
        m_unsavedCopy->giveUp();
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    fitToWindow();
}

// The layout for the full screen, no wider than the window. Where the window is lower, the grid
// gets smaller before the entry area is cut.
void frmMain::fitToWindow()
{
    const QSize screen = screenInTwips(*this);
    const QSize inside = centralWidget()->size() * TwipsPerPixel;
    MainLayout layout = mainLayout(std::min(screen.width(), inside.width()), screen.height());
    const int room = std::max(0, inside.height() - m_editor->leastHeight() * TwipsPerPixel);
    layout.gridHeight = layout.frameTop = std::min(layout.gridHeight, room);
    m_editor->place(layout, centralWidget()->height() - pixels(layout.frameTop));
}

void frmMain::keyPressEvent(QKeyEvent *event)
{
    if (!m_editor->press(*event, focusWidget()))
        QMainWindow::keyPressEvent(event);
}

void frmMain::showCaption()
{
    setWindowTitle(QStringLiteral("LexiBrook- The Tanglewit: ") +
                   (gFileTitle.isEmpty() ? QStringLiteral("(Untitled)") : gFileTitle));
}

// The list has no unsaved changes.
void frmMain::noteUnchanged()
{
    m_ui->mnuSave->setEnabled(false);
    gChanged = false;
}
