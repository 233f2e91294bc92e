// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/GameBoard.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/GameLines.h"
#include "game/TypeSizes.h"
#include "game/TypedDifference.h"
#include "game/ui_frmTanglewit.h"
#include "platform/Appearance.h"
#include "platform/Motion.h"
#include "platform/RetainedSize.h"

#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

using namespace Module1;

namespace {

const QString StartPrompt = QStringLiteral("Please click Start to begin.");
const QString RestartPrompt = QStringLiteral("Please click Restart to shuffle.");
const QString TooShortPrompt =
    QStringLiteral("This word is too short to scramble. Please click Restart.");

// Pixels.
constexpr int UsualHeight = 690; // of the window
constexpr int RingSide = 84;
constexpr int TileSide = 52;

constexpr int LongestShownAnswer = 40; // characters

using namespace std::chrono_literals;
constexpr auto PointsTime = 400ms;
constexpr auto LandingTime = 400ms;
constexpr auto ShakingTime = 300ms;

QRect placeIn(const QWidget &window, const QWidget &control)
{
    return {control.mapTo(&window, QPoint()), control.size()};
}

void addLine(QListWidget &list, const QString &line)
{
    list.addItem(line);
    list.scrollToBottom();
}

QString shortened(const QString &answer)
{
    return answer.size() <= LongestShownAnswer ? answer
                                               : answer.left(LongestShownAnswer) + QChar(0x2026);
}

} // namespace

GameBoard::GameBoard(Ui::frmTanglewit &ui, QWidget &window) : m_ui(ui), m_window(window)
{
    // They share one place, which keeps its size.
    for (QWidget *button : {m_ui.cmdShow, m_ui.cmdHide, m_ui.cmdStart, m_ui.cmdEnter})
        retainSizeWhenHidden(*button);
    retainSizeWhenHidden(*m_ui.btnSpeaker);
    // A group box has measured its frame before the style sheet knew its name.
    for (QGroupBox *box : {m_ui.frmHits, m_ui.frmMisses}) {
        box->ensurePolished();
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(box, &change);
    }
    connect(m_ui.txtUserAnswer, &QLineEdit::textChanged, m_ui.lblScrambledWord,
            &LooseTiles::setTyped);
}

void GameBoard::fit(int windowHeight)
{
    const double scale = std::clamp(double(windowHeight) / UsualHeight, 0.8, 1.4);
    m_ui.lblCountDown->setSide(qRound(RingSide * scale));
    m_ui.tileRack->setLargestTile(qRound(TileSide * scale));
}

void GameBoard::show(Mode mode)
{
    const bool isReady = mode == Mode::Ready;
    const bool isPlaying = mode == Mode::Playing;
    if (!isPlaying) {
        m_ui.lblScrambledWord->clear();
        showPrompt(isReady ? StartPrompt : RestartPrompt);
        m_ui.tileRack->prepare(0);
        m_ui.txtUserAnswer->clear();
        m_ui.txtUserAnswer->setEnabled(false);
        m_ui.lblWorth->clear();
        m_ui.lblWordsLeft->clear();
    }
    if (mode == Mode::Over)
        m_ui.lblBest->setText(GameLines::best(gTop10));
    m_ui.cmdEnter->setEnabled(isPlaying);
    m_ui.cmdEnter->setVisible(!isReady);
    m_ui.cmdStart->setVisible(isReady);
    m_ui.cmdStart->setEnabled(isReady);
    m_defaultButton.set(isReady ? m_ui.cmdStart : isPlaying ? m_ui.cmdEnter : nullptr);
    if (!isPlaying)
        (isReady ? m_ui.cmdStart : m_ui.cmdRestart)->setFocus();
}

void GameBoard::showWordSwitch(bool wordIsShown)
{
    m_ui.cmdShow->setVisible(!wordIsShown);
    m_ui.cmdHide->setVisible(wordIsShown);
    m_ui.lblScrambledWord->setVisible(wordIsShown);
}

void GameBoard::showPrompt(const QString &prompt)
{
    showText(*m_ui.lblClue, prompt, definitionTypeSize(prompt.size()));
}

void GameBoard::show(const GameState &game)
{
    const Integer hits = game.HitCount;
    m_ui.frmHits->setTitle(hits == 0 ? QStringLiteral("Hits")
                                     : QStringLiteral("Hits: ") + hits.toText());
    m_ui.lblScore->setText(gScore.toText());
    m_ui.lblBest->setText(GameLines::best(gTop10, gScore));
    m_ui.lblLevel->setText(game.Level.toText());
    m_ui.lblLevelHits->setText(GameLines::levelHits(game));
    m_ui.lblNumLifes->setText(game.NumLifes.toText());
    m_ui.lifeHearts->setLives(game.NumLifes);
    m_ui.lblCountDown->setLevel(game.Level);
    m_ui.lblCountDown->setSeconds(game.CountDown, game.TimeLimit);
    // While no letter is uncovered, the list may have no current word.
    const Integer uncovered = game.NextLetter - 1;
    m_ui.tileRack->uncover(uncovered, uncovered == 0 ? QString() : gVocabList().Word());
}

void GameBoard::showWorth(Integer points)
{
    m_ui.lblWorth->setText(GameLines::worth(points));
}

void GameBoard::showWord()
{
    cVocabList &list = gVocabList();
    const QString word = list.Word();
    showText(*m_ui.lblScrambledWord, list.ScrambledWord(), wordTypeSize(word.size()));
    showText(*m_ui.lblClue, list.Definition(), definitionTypeSize(list.Definition().size()));
    for (QScrollArea *area : {m_ui.wordArea, m_ui.clueArea, m_ui.sentenceArea})
        area->verticalScrollBar()->setValue(0);
    m_ui.tileRack->prepare(word.size());
    m_ui.txtUserAnswer->clear();
    showWordsLeft();
}

void GameBoard::showTooShort()
{
    m_ui.lblScrambledWord->clear();
    m_ui.lblSentence->clear();
    showPrompt(TooShortPrompt);
    m_ui.tileRack->prepare(0);
    m_ui.txtUserAnswer->clear();
    m_ui.lblWorth->clear();
    showWordsLeft();
}

void GameBoard::showWordsLeft()
{
    m_ui.lblWordsLeft->setText(GameLines::wordsLeft(gOrderIndex, gOrderSize));
}

void GameBoard::showHit(Integer points)
{
    endMotions();
    const QString word = gVocabList().Word();
    addLine(*m_ui.lstHits, word);
    const QString feedback = QStringLiteral("Right: %1 for ").arg(GameLines::worth(points)) + word;
    showFeedback(feedback, feedback.toHtmlEscaped());
    m_ui.tileRack->wave(word);
    playPoints(points);
    playLanding();
}

void GameBoard::showMiss(const QString &answer)
{
    endMotions();
    const TypedDifference difference = differenceOf(shortened(answer), gVocabList().Word());
    const QString typed = QStringLiteral("You typed: ");
    const QString gap = difference.differs.isEmpty() ? QStringLiteral("_") : difference.differs;
    showFeedback(typed + shortened(answer),
                 typed + difference.before.toHtmlEscaped() +
                     QStringLiteral("<b><u>%1</u></b>").arg(gap.toHtmlEscaped()) +
                     difference.after.toHtmlEscaped());
    playShaking();
}

void GameBoard::showTimeOut()
{
    endMotions();
    const QString feedback = QStringLiteral("The time is up.");
    showFeedback(feedback, feedback);
    m_ui.lblWorth->clear();
    m_ui.lblCountDown->playTimeOut();
}

void GameBoard::addMiss(const QString &line)
{
    endMotions();
    Motion::end(*m_ui.lifeHearts);
    addLine(*m_ui.lstMisses, line);
}

void GameBoard::clearHits()
{
    m_ui.lstHits->clear();
}

void GameBoard::clearLists()
{
    clearHits();
    m_ui.lstMisses->clear();
    showFeedback({}, {});
}

void GameBoard::playNewLevel()
{
    m_ui.lblCountDown->playFilling();
}

void GameBoard::showFeedback(const QString &plain, const QString &html)
{
    m_ui.lblFeedback->setAccessibleName(plain);
    m_ui.lblFeedback->setText(html);
}

void GameBoard::endMotions()
{
    for (QWidget *widget :
         {&m_window, static_cast<QWidget *>(m_ui.tileRack), m_ui.lstHits->viewport()})
        Motion::end(*widget);
}

// They rise from the right end of the answer box.
void GameBoard::playPoints(Integer points)
{
    const QRect box = placeIn(m_window, *m_ui.txtUserAnswer);
    const QRect area(box.right() - box.width() / 3, box.top() - box.height() / 2, box.width() / 3,
                     box.height() * 3 / 2);
    const QColor colour = accentColour(m_window.palette());
    QFont type = m_window.font();
    type.setBold(true);
    type.setPixelSize(box.height() * 3 / 5);
    const QString text = QLatin1Char('+') + points.toText();
    Motion::play(m_window, area, PointsTime,
                 [text, type, colour, size = area.size(),
                  rise = box.height() / 2](QPainter &painter, double t) {
                     painter.setOpacity(t < 0.5 ? 1 : 2 * (1 - t));
                     painter.setFont(type);
                     painter.setPen(colour);
                     const QRect place(0, 0, size.width() - 12, size.height());
                     painter.drawText(
                         place.adjusted(0, rise - qRound(rise * t), 0, -qRound(rise * t)),
                         Qt::AlignRight | Qt::AlignVCenter, text);
                 });
}

// The word that comes to Hits.
void GameBoard::playLanding()
{
    QListWidget &list = *m_ui.lstHits;
    const QRect place = list.visualItemRect(list.item(list.count() - 1));
    QColor colour = accentColour(m_window.palette());
    Motion::play(*list.viewport(), place, LandingTime,
                 [colour, size = place.size()](QPainter &painter, double t) {
                     QColor fading = colour;
                     fading.setAlphaF(float(0.3 * (1 - t)));
                     painter.fillRect(QRect(QPoint(), size), fading);
                 });
}

// The answer box with what was typed.
void GameBoard::playShaking()
{
    constexpr int reach = 10; // pixels
    const QRect area = placeIn(m_window, *m_ui.txtUserAnswer).adjusted(-reach, 0, reach, 0);
    const QPixmap box = m_ui.txtUserAnswer->grab();
    const QBrush behind = m_window.palette().window();
    Motion::play(m_window, area, ShakingTime,
                 [box, behind, size = area.size()](QPainter &painter, double t) {
                     painter.fillRect(QRect(QPoint(), size), behind);
                     constexpr double twoSwings = 4 * M_PI;
                     painter.drawPixmap(
                         QPointF(reach + reach * (1 - t) * std::sin(twoSwings * t), 0), box);
                 });
}
