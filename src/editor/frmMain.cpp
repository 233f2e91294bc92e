// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/MainLayout.h"
#include "editor/UnsavedCopy.h"
#include "editor/WordPage.h"
#include "editor/ui_frmMain.h"
#include "game/Top10File.h"
#include "game/frmTanglewit.h"
#include "platform/EndRequest.h"
#include "platform/MsgBox.h"
#include "platform/Paths.h"
#include "platform/Screen.h"

#include <QKeyEvent>
#include <QShortcut>

#include <algorithm>

namespace {

constexpr int Spacing = 8;     // pixels, as all measures below
constexpr int LineHeight = 32; // of a one-line box or a button
constexpr int ButtonWidth = 116;
constexpr int SmallestEntryArea = 260;

} // namespace

frmMain::frmMain()
    : m_ui(std::make_unique<Ui::frmMain>()), m_fileDialog(pathOf(Place::WordLists)),
      m_unsavedCopy(std::make_unique<UnsavedCopy>(this))
{
    m_ui->setupUi(this);
    m_page = std::make_unique<WordPage>(*m_ui->MSFlexGrid1, *m_ui->VScroll1);
    for (QAction *separator : {m_ui->sep1, m_ui->sep2, m_ui->sep})
        separator->setSeparator(true);
    connectHandlers();
    addShortcuts();
}

frmMain::~frmMain() = default;

void frmMain::connectHandlers()
{
    onClick(m_ui->cmdNewWord, &frmMain::cmdNewWord_Click);
    onClick(m_ui->cmdAdd, &frmMain::cmdAdd_Click);
    onClick(m_ui->cmdAbort, &frmMain::cmdAbort_Click);
    onClick(m_ui->cmdDelete, &frmMain::cmdDelete_Click);
    onClick(m_ui->cmdSearch, &frmMain::cmdSearch_Click);
    onClick(m_ui->cmdQuickFlash, &frmMain::cmdQuickFlash_Click);
    onClick(m_ui->cmdPlayScramble, &frmMain::cmdPlayScramble_Click);

    const auto onChoice = [this](QAction *item, void (frmMain::*handler)()) {
        connect(item, &QAction::triggered, this, guarded(this, handler));
    };
    onChoice(m_ui->mnuNew, &frmMain::mnuNew_Click);
    onChoice(m_ui->mnuOpen, &frmMain::mnuOpen_Click);
    onChoice(m_ui->mnuSave, &frmMain::mnuSave_Click);
    onChoice(m_ui->mnuSaveAs, &frmMain::mnuSaveAs_Click);
    onChoice(m_ui->mnuCreateTextFile, &frmMain::mnuCreateTextFile_Click);
    onChoice(m_ui->mnuPageSetup, &frmMain::mnuPageSetup_Click);
    onChoice(m_ui->mnuPrinterSetup, &frmMain::mnuPrinterSetup_Click);
    onChoice(m_ui->mnuPrint, &frmMain::mnuPrint_Click);
    onChoice(m_ui->mnuPrintWholeList, &frmMain::mnuPrintWholeList_Click);
    onChoice(m_ui->mnuExport, &frmMain::mnuExport_Click);
    onChoice(m_ui->mnuImport, &frmMain::mnuImport_Click);
    onChoice(m_ui->mnuPlayScramble, &frmMain::cmdPlayScramble_Click);
    onChoice(m_ui->mnuQuickFlash, &frmMain::cmdQuickFlash_Click);
    onChoice(m_ui->mnuUpbeat, &frmMain::mnuUpbeat_Click);
    onChoice(m_ui->mnuSoothing, &frmMain::mnuSoothing_Click);
    onChoice(m_ui->mnuMusicOff, &frmMain::mnuMusicOff_Click);
    onChoice(m_ui->mnuExit, &frmMain::mnuExit_Click);
    onChoice(m_ui->mnuDeleteWord, &frmMain::mnuDeleteWord_Click);

    connect(m_ui->txtDefinition, &QPlainTextEdit::textChanged, this,
            guarded(this, &frmMain::txtDefinition_Change));
    connect(m_ui->txtSentence, &QPlainTextEdit::textChanged, this,
            guarded(this, &frmMain::txtSentence_Change));
    connect(m_ui->MSFlexGrid1, &MSFlexGrid::Click, this,
            guarded(this, &frmMain::MSFlexGrid1_Click));
}

void frmMain::addShortcuts()
{
    // A click of a disabled or hidden button does nothing.
    const auto add = [this](const QKeySequence &keys, QPushButton *button) {
        auto *shortcut = new QShortcut(keys, this);
        connect(shortcut, &QShortcut::activated, button, [button] {
            if (button->isVisible())
                button->click();
        });
    };
    add(Qt::Key_Escape, m_ui->cmdAbort);
    add(QKeySequence::Find, m_ui->cmdSearch);
}

void frmMain::Form_Load()
{
    using namespace Module1;
    gVocabList().ClearList();
    gFileName.clear();
    gOpenedFile.clear();

    gNewWord = gWordSelected = gChanged = false;

    fitToWindow();
    m_page->showNoEntries();
    ClearEntryBoxes();
    loadTop10();
    DisableEntryBoxes();
    gUpbeatMusic = true;
    gMusicOff = true;
    PrintItemNumber = true;
    PrintOrientation = QStringLiteral("Portrait");

    m_ui->mnuSave->setEnabled(false);
    gFileTitle.clear();
    showCaption();
    showMode(Mode::Idle);
    m_ui->MSFlexGrid1->setFocus();
}

void frmMain::loadTop10()
{
    Module1::gTop10 = emptyTop10(QDate::currentDate());
    // Without the table the editor works as well.
    runGuarded([] { Module1::gTop10 = Top10File::read(pathOf(Place::Top10), Module1::gTop10); });
}

void frmMain::Form_GotFocus()
{
    if (m_ui->txtWord->isEnabled())
        m_ui->txtWord->setFocus();
}

void frmMain::Form_Terminate()
{
    using namespace Module1;
    const LastQuestions asking;
    const bool asked = gChanged;
    const bool save = asked && MsgBox(QStringLiteral("Your changes have not been saved.  "
                                                     "Do you want to save them?"),
                                      MsgBoxButtons::YesNo) == MsgBoxAnswer::Yes;
    if (save && !gFileName.isEmpty())
        gVocabList().SaveFile();
    else if (save)
        mnuSaveAs_Click();
    unloadGame();
    if (asked && !save)
        m_unsavedCopy->giveUp();
}

void frmMain::mnuExit_Click()
{
    close();
}

void frmMain::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    fitToWindow();
}

// Laid out from the whole screen's size, which the window takes; smaller where it is smaller.
void frmMain::fitToWindow()
{
    const QSize screen = screenInTwips(*this);
    const QSize inside = centralWidget()->size() * TwipsPerPixel;
    MainLayout layout = mainLayout(std::min(screen.width(), inside.width()), screen.height());
    // The grid gives way before the entry area is cut.
    const int room = std::max(0, inside.height() - SmallestEntryArea * TwipsPerPixel);
    layout.gridHeight = layout.frameTop = std::min(layout.gridHeight, room);
    m_page->place(layout);
    const int entryHeight = centralWidget()->height() - pixels(layout.frameTop);
    m_ui->Frame1->setGeometry(0, pixels(layout.frameTop), pixels(layout.frameWidth), entryHeight);
    placeEntryArea(layout, entryHeight);
}

// Three bands below one another: the word, the two long texts, the buttons.
void frmMain::placeEntryArea(const MainLayout &layout, int height)
{
    const int frameDefWidth = pixels(layout.frameDefWidth);
    const int labelWidth = m_ui->Label1->sizeHint().width();
    const int wordLeft = 2 * Spacing + labelWidth + Spacing;
    m_ui->Label1->setGeometry(2 * Spacing, Spacing, labelWidth, LineHeight);
    m_ui->txtWord->setGeometry(wordLeft, Spacing, Spacing + frameDefWidth - wordLeft, LineHeight);

    const int textTop = LineHeight + 2 * Spacing;
    const int buttonTop = height - LineHeight - Spacing;
    const int textHeight = buttonTop - textTop - Spacing;
    const int innerTop = 3 * Spacing;
    const auto placeText = [&](QGroupBox *frame, QWidget *box, int left) {
        frame->setGeometry(left, textTop, frameDefWidth, textHeight);
        const int boxWidth = pixels(layout.textWidth);
        box->setGeometry((frameDefWidth - boxWidth) / 2, innerTop, boxWidth,
                         textHeight - innerTop - 2 * Spacing);
    };
    placeText(m_ui->FrameDef, m_ui->txtDefinition, Spacing);
    placeText(m_ui->FrameSen, m_ui->txtSentence, pixels(layout.frameSenLeft));

    int left = Spacing;
    for (QPushButton *button : {m_ui->cmdAdd, m_ui->cmdAbort, m_ui->cmdDelete, m_ui->cmdSearch}) {
        button->setGeometry(left, buttonTop, ButtonWidth, LineHeight);
        left += ButtonWidth + Spacing;
    }
    // New Word and Add are never shown together.
    m_ui->cmdNewWord->setGeometry(m_ui->cmdAdd->geometry());
    const int playLeft = pixels(layout.playLeft);
    const int playWidth = pixels(layout.frameWidth) - playLeft;
    m_ui->cmdPlayScramble->setGeometry(playLeft, buttonTop, playWidth, LineHeight);
    m_ui->cmdQuickFlash->setGeometry(playLeft - playWidth, buttonTop, playWidth, LineHeight);
}

// What is visible, enabled and pressed by Enter in each mode. NewWord is entered by New Word,
// NewList by File > New; Search leaves the entry boxes as they are but for the word's.
void frmMain::showMode(Mode mode)
{
    m_mode = mode;
    const bool add = mode == Mode::NewWord || mode == Mode::Editing;
    m_ui->cmdAdd->setVisible(add);
    m_ui->cmdAdd->setEnabled(add || mode == Mode::NewList);
    m_ui->cmdAdd->setText(mode == Mode::Editing ? QStringLiteral("&Update")
                                                : QStringLiteral("&Add"));
    m_ui->cmdNewWord->setVisible(!add);
    m_ui->cmdNewWord->setEnabled(mode == Mode::Idle || mode == Mode::NewList);
    m_ui->cmdAbort->setEnabled(mode != Mode::Idle);
    m_ui->cmdSearch->setEnabled(mode == Mode::Idle || mode == Mode::Search);
    if (mode != Mode::Search)
        m_ui->cmdDelete->setEnabled(mode == Mode::Editing);

    switch (mode) {
    case Mode::Idle:
        DisableEntryBoxes();
        m_defaultButton.set(m_ui->cmdNewWord);
        break;
    case Mode::NewList:
    case Mode::NewWord:
    case Mode::Editing:
        EnableEntryBoxes();
        m_defaultButton.set(m_ui->cmdAdd);
        break;
    case Mode::Search:
        m_ui->txtWord->setEnabled(true);
        m_defaultButton.set(m_ui->cmdSearch);
        break;
    }
}

void frmMain::keyPressEvent(QKeyEvent *event)
{
    if (!m_defaultButton.press(*event, focusWidget()))
        QMainWindow::keyPressEvent(event);
}

void frmMain::showCaption()
{
    setWindowTitle(
        QStringLiteral("LexiBrook- The Tanglewit: ") +
        (Module1::gFileTitle.isEmpty() ? QStringLiteral("(Untitled)") : Module1::gFileTitle));
}
