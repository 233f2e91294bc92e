// SPDX-License-Identifier: GPL-3.0-or-later
// The game. Time passes by sending the events of the countdown.
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "soak/Soak.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <chrono>

using namespace Qt::StringLiterals;

namespace {

constexpr int HitsOfALevel = 20;
constexpr int LastLevel = 10;

template <class Control> Control &in(Soak &soak, const char *name)
{
    return Controls::find<Control>(*soak.game(), name);
}

int number(Soak &soak, const char *label)
{
    return in<QLabel>(soak, label).text().toInt();
}

template <const char *Name> bool isUsable(Soak &soak)
{
    return soak.game() && Soak::isUsable(in<QWidget>(soak, Name));
}

constexpr char StartButton[] = "cmdStart";
constexpr char AnswerBox[] = "txtUserAnswer";
constexpr char RestartButton[] = "cmdRestart";
constexpr char QuitButton[] = "cmdQuit";
constexpr char Top10Button[] = "cmdViewTop10";
constexpr char ShowButton[] = "cmdShow";
constexpr char HideButton[] = "cmdHide";
constexpr char LevelSwitch[] = "VScroll1";

template <const char *Name> void click(Soak &soak)
{
    Controls::click(in<QPushButton>(soak, Name));
}

// Whether the game can ask each word or stands still for it.
bool isPlayable(Soak &soak)
{
    const auto &entries = soak.model.entries;
    return std::all_of(entries.begin(), entries.end(),
                       [](const Entry &entry) { return !entry.word.isEmpty(); });
}

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

void openGame(Soak &soak)
{
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Your current wordlist is empty"_s);
    if (soak.chance(50))
        soak.main().click("cmdPlayScramble");
    else
        soak.main().choose("mnuPlayScramble");
    if (soak.game())
        in<QTimer>(soak, "Timer1").setInterval(std::chrono::hours(1));
}

bool canStart(Soak &soak)
{
    return isUsable<StartButton>(soak) && isPlayable(soak);
}

bool isPlaying(Soak &soak)
{
    return soak.game() && in<QTimer>(soak, "Timer1").isActive();
}

QString wordOfGame()
{
    return Module1::gVocabList().Word();
}

// For a word that is too short to be scrambled. Answers and time then change nothing.
bool standsStill()
{
    const qsizetype letters = wordOfGame().size();
    return letters == 1 || letters == 2;
}

void resetTop10(Soak &soak, QDialog &form)
{
    const auto answer = soak.chance(50) ? QMessageBox::Yes : QMessageBox::No;
    soak.expectMsgBox(u"Are you sure you want to reset the scores?"_s, answer);
    Controls::click(Controls::find<QPushButton>(form, "cmdReset"));
}

void useTop10(Soak &soak, QDialog &form)
{
    auto &name = Controls::find<QLineEdit>(form, "txtName");
    if (Soak::isUsable(name) && soak.chance(80)) {
        soak.fill(name, soak.word());
        Controls::click(Controls::find<QPushButton>(form, "cmdEnter"));
    }
    auto &reset = Controls::find<QPushButton>(form, "cmdReset");
    if (Soak::isUsable(reset) && soak.chance(10))
        resetTop10(soak, form);
    auto &close = Controls::find<QPushButton>(form, "cmdClose");
    if (Soak::isUsable(close) && soak.chance(60))
        Controls::click(close);
    else if (soak.chance(50))
        Soak::press(form, Qt::Key_Escape);
    else
        form.close();
}

void expectTop10(Soak &soak)
{
    soak.answers().useForm("dlgGameOver", [&soak](QDialog &form) { useTop10(soak, form); });
}

// Uses the dialog in which the missed word has to be typed. isLast: the last life is lost, and the
// game is over.
void useMiss(Soak &soak, QDialog &form, bool isLast)
{
    auto &box = Controls::find<QLineEdit>(form, "txtUserAnswer");
    Soak::waitFor(form);
    if (soak.chance(30))
        Soak::press(form, Qt::Key_Escape); // does not close it
    if (soak.chance(20)) {
        soak.expectMsgBox(u"The correct word is: '%1'"_s.arg(wordOfGame()));
        soak.fill(box, u"something else"_s);
        Controls::click(Controls::find<QPushButton>(form, "cmdOK"));
        Soak::waitFor(form);
    }
    const bool hidden = soak.chance(30);
    if (hidden)
        Controls::click(Controls::find<QPushButton>(form, "cmdDown"));
    soak.fill(box, wordOfGame());
    if (isLast)
        expectTop10(soak);
    if (hidden && soak.chance(50))
        Soak::press(box, Qt::Key_Return);
    else
        Controls::click(Controls::find<QPushButton>(form, "cmdOK"));
}

void expectMiss(Soak &soak)
{
    if (standsStill())
        return;
    const bool isLast = number(soak, "lblNumLifes") == 1;
    soak.answers().useForm("dlgIncorrectAnswer",
                           [&soak, isLast](QDialog &form) { useMiss(soak, form, isLast); });
}

void type(Soak &soak, const QString &answer)
{
    soak.note(answer);
    auto &box = in<QLineEdit>(soak, AnswerBox);
    soak.fill(box, answer);
    Soak::press(box, Qt::Key_Return);
}

void answerRight(Soak &soak)
{
    auto &hits = in<QListWidget>(soak, "lstHits");
    const int level = number(soak, "lblLevel");
    if (hits.count() == HitsOfALevel - 1 && level < LastLevel && !standsStill())
        soak.expectMsgBox(u"Level %1"_s.arg(level + 1));
    type(soak, wordOfGame());
}

void answerOften(Soak &soak)
{
    for (int times = HitsOfALevel; times > 0; --times) {
        answerRight(soak);
        Soak::waitFor(*soak.game());
    }
}

void answerWrong(Soak &soak)
{
    expectMiss(soak);
    type(soak, soak.chance(30) ? u"   "_s : u"wrong"_s);
}

void answerNothing(Soak &soak)
{
    type(soak, {});
}

void passTime(Soak &soak)
{
    int seconds = 1 + soak.roll(35);
    soak.note(u"%1 s"_s.arg(seconds));
    for (; seconds > 0 && isPlaying(soak); --seconds) {
        const bool isLast = number(soak, "lblCountDown") == 1;
        if (isLast)
            expectMiss(soak);
        QMetaObject::invokeMethod(&in<QTimer>(soak, "Timer1"), "timeout", Qt::DirectConnection);
    }
}

void changeLevel(Soak &soak)
{
    in<QScrollBar>(soak, LevelSwitch).setValue(soak.chance(70) ? -1 : 1);
}

void viewTop10(Soak &soak)
{
    expectTop10(soak);
    click<Top10Button>(soak);
}

void quitGame(Soak &soak)
{
    expectTop10(soak);
    click<QuitButton>(soak);
}

bool isGameShown(Soak &soak)
{
    return soak.game() != nullptr;
}

void closeGame(Soak &soak)
{
    soak.game()->close();
}

} // namespace

std::vector<Action> gameActions()
{
    return {
        {"play", 8, isEditorShown, openGame},
        {"Start", 20, canStart, click<StartButton>},
        {"right answer", 30, isPlaying, answerRight},
        {"a level of right answers", 2, isPlaying, answerOften},
        {"wrong answer", 10, isPlaying, answerWrong},
        {"no answer", 3, isPlaying, answerNothing},
        {"time passes", 20, isPlaying, passTime},
        {"level switch", 10, isUsable<LevelSwitch>, changeLevel},
        {"Show", 5, isUsable<ShowButton>, click<ShowButton>},
        {"Hide", 5, isUsable<HideButton>, click<HideButton>},
        {"Restart", 3, isUsable<RestartButton>, click<RestartButton>},
        {"View Top 10", 4, isUsable<Top10Button>, viewTop10},
        {"Quit", 4, isUsable<QuitButton>, quitGame},
        {"close the game", 3, isGameShown, closeGame},
    };
}
