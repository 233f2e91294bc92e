// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/frmTanglewit.h"

#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Scramble.h"
#include "game/dlgGameOver.h"
#include "game/ui_frmTanglewit.h"
#include "platform/ReducedMotion.h"
#include "platform/Screen.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

using namespace Module1;

namespace {

constexpr int NarrowScreen = 12000;       // twips
constexpr int LowScreen = 600;            // pixels
constexpr QSize LargestWindow(1200, 900); // pixels

// Maximised on a narrow or low screen; else up to nine tenths of the screen, in proportion 4 to 3.
void takeSize(QWidget &window)
{
    const QSize wholeScreen = screenInTwips(window);
    const QRect room = window.screen()->availableGeometry();
    const QSize proportion = QSize(4, 3).scaled(room.size() * 0.9, Qt::KeepAspectRatio);
    if (wholeScreen.width() <= NarrowScreen || room.height() <= LowScreen) {
        window.resize(pixels(wholeScreen.width()), window.height());
        window.setWindowState(window.windowState() | Qt::WindowMaximized);
        return;
    }
    window.resize(proportion.boundedTo(LargestWindow).expandedTo(window.minimumSize()));
    window.move(room.center() - window.rect().center());
}

} // namespace

frmTanglewit::frmTanglewit(MusicMenu menu, QWidget *mainWindow)
    : m_ui(std::make_unique<Ui::frmTanglewit>()),
      m_music(menu, [this](bool isPlaying) { m_ui->btnSpeaker->setVisible(isPlaying); }),
      m_mainWindow(mainWindow)
{
    m_ui->setupUi(this);
    m_board = std::make_unique<GameBoard>(*m_ui, *this);
    m_Timer1.setParent(this);
    m_Timer1.setObjectName(QStringLiteral("Timer1"));
    m_Timer1.setTimerType(Qt::PreciseTimer);
    connectHandlers();
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
    ReducedMotion::watch();
    m_Timer1.setInterval(1000);
    newGame();
    ResetBoard();
    gOrderIndex = 1;
    gOrderSize = std::min(gVocabList().NumWords(), Integer(LongestWordOrder));
    gWordOrder.resize(gVocabList().NumWords().toInt());
    m_board->showWordSwitch(true);
    m_music.fillTracks();
}

void frmTanglewit::newGame()
{
    m_game = {};
    m_board->clearLists();
}

void frmTanglewit::Form_Unload()
{
    m_Timer1.stop();
    if (!m_isQuitting)
        m_music.stopTrack();
    Q_EMIT left();
}

void frmTanglewit::Form_Terminate()
{
    Q_EMIT left();
}

void frmTanglewit::keyPressEvent(QKeyEvent *event)
{
    if (!m_board->press(*event, focusWidget()))
        Form::keyPressEvent(event);
}

void frmTanglewit::resizeEvent(QResizeEvent *event)
{
    Form::resizeEvent(event);
    m_board->fit(event->size().height());
}

// The bar rests at 0. The lower arrow sets it to 1, the upper one to -1.
void frmTanglewit::VScroll1_Change()
{
    const int value = m_ui->VScroll1->value();
    m_game.changeStartLevel(value == 0 ? 0 : value > 0 ? -1 : 1);
    m_ui->VScroll1->setValue(0);
    m_board->show(m_game);
}

void frmTanglewit::cmdStart_Click()
{
    m_board->show(GameBoard::Mode::Playing);
    m_ui->VScroll1->setEnabled(false);
    ShowFirstWord();
    if (isTooShortToScramble(gVocabList().Word()))
        return; // the game stands still
    m_ui->txtUserAnswer->setEnabled(true);
    m_Timer1.start();
    gScore = 0;
    m_board->show(m_game);
    m_ui->txtUserAnswer->setFocus();
    m_music.startGame();
}

void frmTanglewit::cmdRestart_Click()
{
    gOrderIndex = 1;
    Shuffle();
    newGame();
    ResetBoard();
    m_board->showPrompt(
        QStringLiteral("Word List has been shuffled. Please click Start to begin."));
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
    m_board->showWordSwitch(true);
    m_ui->txtUserAnswer->setFocus();
}

void frmTanglewit::cmdHide_Click()
{
    m_board->showWordSwitch(false);
    m_ui->txtUserAnswer->setFocus();
}

void frmTanglewit::cmdViewTop10_Click()
{
    gViewTop10Only = true;
    dlgGameOver(m_music, this).exec();
    gViewTop10Only = false;
    if (m_game.isOver()) {
        m_board->show(GameBoard::Mode::Over);
        return;
    }
    m_board->show(m_game); // the dialog's Close sets the score to 0
    m_ui->txtUserAnswer->setFocus();
}

// Does not change lives, level and lists.
void frmTanglewit::ResetBoard()
{
    m_Timer1.stop();
    gScore = 0;
    m_board->show(m_game);
    m_board->show(GameBoard::Mode::Ready);
    m_ui->lblSentence->clear();
    m_ui->VScroll1->setEnabled(true);
}
