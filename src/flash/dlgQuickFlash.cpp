// SPDX-License-Identifier: GPL-3.0-or-later
#include "flash/dlgQuickFlash.h"

#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "flash/DefinitionTime.h"
#include "flash/ui_dlgQuickFlash.h"
#include "platform/ReducedMotion.h"
#include "platform/RetainedSize.h"
#include "platform/Screen.h"

#include <QShortcut>

#include <algorithm>

using namespace Module1;

namespace {

const QString ClosedCard = QStringLiteral("Click on card");

} // namespace

dlgQuickFlash::dlgQuickFlash(QWidget *parent)
    : DialogForm(parent), m_ui(std::make_unique<Ui::dlgQuickFlash>())
{
    m_ui->setupUi(this);
    const QSize room = roomOnScreen(*this);
    openWithSize(*this,
                 {std::min(room.width() * 9 / 10, 1280), std::min(room.height() * 9 / 10, 720)});
    openAsLastClosed();
    // They share one place, which keeps its size.
    retainSizeWhenHidden(*m_ui->cmdAutoFlash);
    retainSizeWhenHidden(*m_ui->cmdStop);
    onClick(m_ui->cmdNext, &dlgQuickFlash::cmdNext_Click);
    onClick(m_ui->cmdPrevious, &dlgQuickFlash::cmdPrevious_Click);
    onClick(m_ui->cmdAutoFlash, &dlgQuickFlash::cmdAutoFlash_Click);
    onClick(m_ui->cmdStop, &dlgQuickFlash::cmdStop_Click);
    onClick(m_ui->CancelButton, &dlgQuickFlash::CancelButton_Click);
    connect(m_ui->txtDef, &FlashCard::Click, this, guarded(this, &dlgQuickFlash::txtDef_Click));

    const auto onTimer = [this](QTimer &timer, const QString &name, int interval,
                                void (dlgQuickFlash::*handler)()) {
        timer.setParent(this);
        timer.setObjectName(name);
        timer.setInterval(interval);
        timer.setTimerType(Qt::PreciseTimer);
        connect(&timer, &QTimer::timeout, this, guarded(this, handler));
    };
    onTimer(m_tmrWord, QStringLiteral("tmrWord"), 3000, &dlgQuickFlash::tmrWord_Timer);
    onTimer(m_tmrDef, QStringLiteral("tmrDef"), 5000, &dlgQuickFlash::tmrDef_Timer);
    m_ui->wordTime->setTimer(m_tmrWord);
    m_ui->definitionTime->setTimer(m_tmrDef);

    const auto onKey = [this](Qt::Key key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    onKey(Qt::Key_Space, guarded(this, &dlgQuickFlash::txtDef_Click));
    onKey(Qt::Key_Right, [this] { m_ui->cmdNext->click(); });
    onKey(Qt::Key_Left, [this] { m_ui->cmdPrevious->click(); });
}

dlgQuickFlash::~dlgQuickFlash() = default;

void dlgQuickFlash::Form_Load()
{
    ReducedMotion::watch();
    gOrderSize = std::min(gVocabList().NumWords(), Integer(LongestWordOrder));
    ShuffleCards();
    gOrderIndex = 1;
    m_ui->prgDeck->setRange(0, gOrderSize.toInt());
    showCard(Turn::None);
    m_ui->txtDef->setText(ClosedCard + QStringLiteral("\r\n"), FlashCard::Side::Back);
    showRun(Run::ByHand);
    m_ui->cmdNext->setFocus();
}

void dlgQuickFlash::Form_Terminate()
{
    stopTimers();
    Q_EMIT terminated();
}

void dlgQuickFlash::ShuffleCards()
{
    gWordOrder = drawWordOrder(gOrderSize, gVocabList().NumWords());
}

void dlgQuickFlash::cmdNext_Click()
{
    const bool isLast = gOrderIndex >= gOrderSize;
    gOrderIndex = isLast ? Integer(1) : gOrderIndex + 1;
    showCard(isLast ? Turn::StartsOver : Turn::None);
}

void dlgQuickFlash::cmdPrevious_Click()
{
    gOrderIndex = gOrderIndex >= 2 ? gOrderIndex - 1 : gOrderSize;
    showCard(Turn::None);
}

void dlgQuickFlash::showCard(Turn turn)
{
    m_ui->lblDeck->setText(
        QStringLiteral("%1 of %2").arg(gOrderIndex.toText(), gOrderSize.toText()) +
        (turn == Turn::StartsOver ? QStringLiteral(" - the deck starts over") : QString()));
    m_ui->prgDeck->setValue(gOrderIndex.toInt());
    gVocabList().CurrentWord(gWordOrder(gOrderIndex));
    m_ui->txtWord->setText(gVocabList().Word(), FlashCard::Side::Front);
    m_ui->txtDef->setText(ClosedCard, FlashCard::Side::Back);
}

void dlgQuickFlash::txtDef_Click()
{
    m_ui->txtDef->turnTo(gVocabList().Definition(), FlashCard::Side::Front);
}

void dlgQuickFlash::cmdAutoFlash_Click()
{
    startWordPhase();
    showRun(Run::Automatic);
}

void dlgQuickFlash::startWordPhase()
{
    cmdNext_Click();
    m_ui->txtDef->setText({}, FlashCard::Side::Back);
    m_tmrWord.start();
    showTimes();
}

// The timer is stopped first, so that an error is reported only once.
void dlgQuickFlash::tmrWord_Timer()
{
    m_tmrWord.stop();
    const QString definition = gVocabList().Definition();
    m_ui->txtDef->turnTo(definition, FlashCard::Side::Front);
    m_tmrDef.start(definitionTime(definition.size()).toInt());
    showTimes();
}

void dlgQuickFlash::tmrDef_Timer()
{
    m_tmrDef.stop();
    startWordPhase();
}

void dlgQuickFlash::cmdStop_Click()
{
    stopTimers();
    showRun(Run::ByHand);
}

void dlgQuickFlash::stopTimers()
{
    m_tmrWord.stop();
    m_tmrDef.stop();
    showTimes();
}

// Below each card is the time that its step of the automatic run still lasts.
void dlgQuickFlash::showTimes()
{
    m_ui->wordTime->refresh();
    m_ui->definitionTime->refresh();
}

void dlgQuickFlash::CancelButton_Click()
{
    close();
}

// The focus goes from a button that cannot be used any more to the one that can.
void dlgQuickFlash::showRun(Run run)
{
    const bool automatic = run == Run::Automatic;
    const bool hadFocus = m_ui->cmdAutoFlash->hasFocus() || m_ui->cmdStop->hasFocus() ||
                          m_ui->cmdNext->hasFocus() || m_ui->cmdPrevious->hasFocus();
    m_ui->cmdAutoFlash->setVisible(!automatic);
    m_ui->cmdStop->setVisible(automatic);
    (automatic ? m_ui->cmdStop : m_ui->cmdNext)->setDefault(true);
    if (hadFocus)
        (automatic ? m_ui->cmdStop : m_ui->cmdAutoFlash)->setFocus();
    m_ui->cmdNext->setEnabled(!automatic);
    m_ui->cmdPrevious->setEnabled(!automatic);
}
