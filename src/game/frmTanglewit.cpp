// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/frmTanglewit.h"

#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Scramble.h"
#include "game/TypeSizes.h"
#include "game/dlgGameOver.h"
#include "game/ui_frmTanglewit.h"
#include "platform/Screen.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

using namespace Module1;

namespace {

constexpr int NarrowScreen = 12000;       // twips
constexpr QSize LargestWindow(1200, 900); // pixels

const QString StartPrompt = QStringLiteral("Please click Start to begin.");
const QString RestartPrompt = QStringLiteral("Please click Restart to shuffle.");

// Maximised on a narrow screen; else up to nine tenths of the screen, in proportion 4 to 3.
void takeSize(QWidget &window)
{
    const QSize wholeScreen = screenInTwips(window);
    if (wholeScreen.width() <= NarrowScreen) {
        window.resize(pixels(wholeScreen.width()), window.height());
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
        return;
    }
    const QRect room = window.screen()->availableGeometry();
    const QSize proportion = QSize(4, 3).scaled(room.size() * 0.9, Qt::KeepAspectRatio);
    window.resize(proportion.boundedTo(LargestWindow).expandedTo(window.minimumSize()));
    window.move(room.center() - window.rect().center());
}

void showPrompt(QLabel &clue, const QString &prompt)
{
    showText(clue, prompt, definitionTypeSize(prompt.size()));
}

} // namespace

frmTanglewit::frmTanglewit(MusicMenu menu, QWidget *mainWindow)
    : m_ui(std::make_unique<Ui::frmTanglewit>()), m_music(menu), m_mainWindow(mainWindow)
{
    m_ui->setupUi(this);
    m_Timer1.setParent(this);
    m_Timer1.setObjectName(QStringLiteral("Timer1"));
    connectHandlers();
    // They share one place, which keeps its size.
    for (QPushButton *button : {m_ui->cmdShow, m_ui->cmdHide}) {
        QSizePolicy policy = button->sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        button->setSizePolicy(policy);
    }
}

frmTanglewit::~frmTanglewit() = default;

void frmTanglewit::connectHandlers()
{
    onClick(m_ui->cmdStart, &frmTanglewit::cmdStart_Click);
    onClick(m_ui->cmdEnter, &frmTanglewit::cmdEnter_Click);
    onClick(m_ui->cmdRestart, &frmTanglewit::cmdRestart_Click);
    onClick(m_ui->cmdQuit, &frmTanglewit::cmdQuit_Click);
    onClick(m_ui->cmdShow, &frmTanglewit::cmdShow_Click);
    onClick(m_ui->cmdHide, &frmTanglewit::cmdHide_Click);
    onClick(m_ui->cmdViewTop10, &frmTanglewit::cmdViewTop10_Click);
    connect(m_ui->VScroll1, &QScrollBar::valueChanged, this,
            guarded(this, &frmTanglewit::VScroll1_Change));
    connect(&m_Timer1, &QTimer::timeout, this, guarded(this, &frmTanglewit::Timer1_Timer));
}

void frmTanglewit::Form_Load()
{
    takeSize(*this);
    m_Timer1.setInterval(1000);
    newGame();
    ResetBoard();
    gOrderIndex = 1;
    gOrderSize = std::min(gVocabList().NumWords(), Integer(LongestWordOrder));
    gWordOrder.resize(gVocabList().NumWords().toInt());
    showWordSwitch(true);
    m_music.fillTracks();
}

void frmTanglewit::newGame()
{
    m_game = {};
    m_ui->lstHits->clear();
    m_ui->lstMisses->clear();
}

void frmTanglewit::Form_Unload()
{
    m_Timer1.stop();
    if (!m_isQuitting)
        m_music.stop();
    Q_EMIT left();
}

void frmTanglewit::Form_Terminate()
{
    Q_EMIT left();
}

void frmTanglewit::keyPressEvent(QKeyEvent *event)
{
    if (!m_defaultButton.press(*event, focusWidget()))
        Form::keyPressEvent(event);
}

// The bar rests at 0. The lower arrow sets it to 1, the upper one to -1.
void frmTanglewit::VScroll1_Change()
{
    const int value = m_ui->VScroll1->value();
    m_game.changeStartLevel(value == 0 ? 0 : value > 0 ? -1 : 1);
    m_ui->VScroll1->setValue(0);
    showGame();
}

void frmTanglewit::cmdStart_Click()
{
    showMode(Mode::Playing);
    ShowFirstWord();
    if (isTooShortToScramble(gVocabList().Word()))
        return; // the game waits for Restart, Quit or the close box
    m_ui->txtUserAnswer->setEnabled(true);
    m_Timer1.start();
    gScore = 0;
    showGame();
    m_ui->txtUserAnswer->setFocus();
    m_ui->VScroll1->setEnabled(false);
    m_music.startGame();
}

void frmTanglewit::cmdRestart_Click()
{
    gOrderIndex = 1;
    Shuffle();
    newGame();
    ResetBoard();
    showPrompt(*m_ui->lblClue, QStringLiteral("Word List has been shuffled. ") + StartPrompt);
}

void frmTanglewit::cmdQuit_Click()
{
    m_isQuitting = true;
    close();
    m_isQuitting = false;
    dlgGameOver dialog(m_music, m_mainWindow);
    dialog.setTitle(QStringLiteral("Good bye. Thank you for playing The Tanglewit!!!"));
    dialog.exec();
    Q_EMIT left();
}

// setFocus does nothing while the answer box is disabled.
void frmTanglewit::cmdShow_Click()
{
    showWordSwitch(true);
    m_ui->txtUserAnswer->setFocus();
}

void frmTanglewit::cmdHide_Click()
{
    showWordSwitch(false);
    m_ui->txtUserAnswer->setFocus();
}

void frmTanglewit::cmdViewTop10_Click()
{
    gViewTop10Only = true;
    dlgGameOver(m_music, this).exec();
    gViewTop10Only = false;
    showGame(); // the dialog's Close sets the score to 0
}

// Does not change lives, level and lists.
void frmTanglewit::ResetBoard()
{
    m_Timer1.stop();
    gScore = 0;
    showGame();
    showMode(Mode::Ready);
    m_ui->lblSentence->clear();
    m_ui->VScroll1->setEnabled(true);
}

// In Playing the answer box is enabled, and the level switch disabled, once a word is shown.
void frmTanglewit::showMode(Mode mode)
{
    const bool isReady = mode == Mode::Ready;
    const bool isPlaying = mode == Mode::Playing;
    if (!isPlaying) {
        m_ui->lblScrambledWord->clear();
        showPrompt(*m_ui->lblClue, isReady ? StartPrompt : RestartPrompt);
        m_ui->tileRack->prepare(0);
        m_ui->txtUserAnswer->clear();
        m_ui->txtUserAnswer->setEnabled(false);
    }
    m_ui->cmdEnter->setEnabled(isPlaying);
    m_ui->cmdEnter->setVisible(!isReady);
    m_ui->cmdStart->setVisible(isReady);
    m_ui->cmdStart->setEnabled(isReady);
    m_defaultButton.set(isReady ? m_ui->cmdStart : isPlaying ? m_ui->cmdEnter : nullptr);
    if (!isPlaying)
        (isReady ? m_ui->cmdStart : m_ui->cmdRestart)->setFocus();
}

void frmTanglewit::showWordSwitch(bool wordIsShown)
{
    m_ui->cmdShow->setVisible(!wordIsShown);
    m_ui->cmdHide->setVisible(wordIsShown);
    m_ui->lblScrambledWord->setVisible(wordIsShown);
}

void frmTanglewit::showGame()
{
    const Integer hits = m_game.HitCount;
    m_ui->frmHits->setTitle(hits == 0 ? QStringLiteral("Hits")
                                      : QStringLiteral("Hits: ") + hits.toText());
    m_ui->lblScore->setText(gScore.toText());
    m_ui->lblLevel->setText(m_game.Level.toText());
    m_ui->lblNumLifes->setText(m_game.NumLifes.toText());
    m_ui->lifeHearts->setLives(m_game.NumLifes);
    m_ui->lblCountDown->setSeconds(m_game.CountDown, m_game.TimeLimit);
    // While no letter is uncovered, the list may have no current word.
    const Integer uncovered = m_game.NextLetter - 1;
    m_ui->tileRack->uncover(uncovered, uncovered == 0 ? QString() : gVocabList().Word());
}
