// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: the game window with a list, a Music menu and a main window. Requests for sound are
// recorded instead of played.
#pragma once

#include "core/FreshState.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/SoundRequests.h"
#include "game/Top10Table.h"
#include "game/frmTanglewit.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"

#include <QAction>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

class GameForm final
{
    FreshState m_state;

public:
    DialogAnswers answers;

    explicit GameForm(const QStringList &words = fiveWords(), Caller caller = Caller::current())
        : answers(caller)
    {
        Module1::gTop10 = emptyTop10(QDate::currentDate());
        Module1::gUpbeatMusic = true;
        Module1::gMusicOff = true;
        fill(words);
        for (QAction *item : {&m_mnuUpbeat, &m_mnuSoothing, &m_mnuMusicOff})
            item->setCheckable(true);
        m_mnuMusicOff.setChecked(true);
        m_window = std::make_unique<frmTanglewit>(
            MusicMenu{m_mnuUpbeat, m_mnuSoothing, m_mnuMusicOff}, &m_mainWindow);
        QObject::connect(m_window.get(), &frmTanglewit::left, &m_mainWindow, &QWidget::show);
    }
    ~GameForm() = default;
    Q_DISABLE_COPY_MOVE(GameForm)

    [[nodiscard]] static QStringList fiveWords()
    {
        return {u"apple"_s, u"bread"_s, u"cream"_s, u"dough"_s, u"flour"_s};
    }
    // A word with this number of letters, each different from the letters beside it.
    [[nodiscard]] static QString longWord(int letters)
    {
        QString word;
        for (int i = 0; i < letters; ++i)
            word += QChar(u'a' + i % 26);
        return word;
    }
    // A row of test data for each state of the game.
    static void addStates(std::initializer_list<const char *> states)
    {
        QTest::addColumn<QString>("state");
        for (const char *state : states)
            QTest::newRow(state) << QString::fromLatin1(state);
    }
    // Makes a list of these words, each with a definition and a sentence.
    static void fill(const QStringList &words)
    {
        cVocabList &list = Module1::gVocabList();
        list.ClearList();
        for (const QString &word : words)
            list.AddVocab(word, definitionOf(word), sentenceOf(word));
    }
    [[nodiscard]] static QString definitionOf(const QString &word)
    {
        return u"definition of "_s + word;
    }
    [[nodiscard]] static QString sentenceOf(const QString &word)
    {
        return u"Here is "_s + word + u"."_s;
    }
    [[nodiscard]] static QString blankedSentence() { return u"Here is _____."_s; }
    // The current word.
    [[nodiscard]] static QString word() { return Module1::gVocabList().Word(); }

    [[nodiscard]] frmTanglewit &window() { return *m_window; }
    [[nodiscard]] QWidget &mainWindow() { return m_mainWindow; }
    template <class Control>
    [[nodiscard]] Control &control(const char *name, Caller caller = Caller::current())
    {
        return Controls::find<Control>(*m_window, name, caller);
    }
    [[nodiscard]] QPushButton &button(const char *name, Caller caller = Caller::current())
    {
        return control<QPushButton>(name, caller);
    }
    [[nodiscard]] QTimer &timer() { return control<QTimer>("Timer1"); }
    [[nodiscard]] QLineEdit &answerBox() { return control<QLineEdit>("txtUserAnswer"); }
    [[nodiscard]] QScrollBar &levelSwitch() { return control<QScrollBar>("VScroll1"); }
    [[nodiscard]] QString text(const char *label, Caller caller = Caller::current())
    {
        return control<QLabel>(label, caller).text();
    }
    [[nodiscard]] QString hitsTitle() { return control<QGroupBox>("frmHits").title(); }
    [[nodiscard]] QStringList lines(const char *list)
    {
        QStringList lines;
        const auto &box = control<QListWidget>(list);
        for (int i = 0; i < box.count(); ++i)
            lines += box.item(i)->text();
        return lines;
    }

    void click(const char *name, Caller caller = Caller::current())
    {
        Controls::click(button(name, caller), caller);
    }

    // After this call time passes only in passTime.
    void open(Caller caller = Caller::current())
    {
        m_mainWindow.hide();
        m_window->show();
        timer().setInterval(std::chrono::hours(1));
        waitForWindow(caller);
    }
    void start(Caller caller = Caller::current())
    {
        open(caller);
        click("cmdStart", caller);
    }
    void waitForWindow(Caller caller = Caller::current())
    {
        Controls::waitUntilActive(*m_window, caller);
    }
    // Click an arrow of the level switch.
    void raiseStartLevel(int times, Caller caller = Caller::current())
    {
        for (; times > 0; --times)
            clickArrow(QStyle::SC_ScrollBarSubLine, caller);
    }
    void lowerStartLevel(int times, Caller caller = Caller::current())
    {
        for (; times > 0; --times)
            clickArrow(QStyle::SC_ScrollBarAddLine, caller);
    }

    // Lets the countdown, which must run, count seconds.
    void passTime(int seconds = 1, Caller caller = Caller::current())
    {
        for (; seconds > 0; --seconds) {
            if (!timer().isActive())
                return failTest(u"Timer1 does not run"_s, caller);
            QMetaObject::invokeMethod(&timer(), "timeout", Qt::DirectConnection);
        }
    }
    // Lets the countdown end and answers the dialog that follows.
    void timeOut(Caller caller = Caller::current())
    {
        expectMiss({}, caller);
        passTime(text("lblCountDown", caller).toInt(), caller);
    }

    // Types the text and presses Enter.
    void answer(const QString &text, Caller caller = Caller::current())
    {
        waitForWindow(caller);
        Controls::type(answerBox(), text, caller);
        Controls::press(Qt::Key_Return, {}, caller);
    }
    void answerRight(int times = 1, Caller caller = Caller::current())
    {
        for (; times > 0; --times)
            answer(word(), caller);
    }
    // Enters a wrong word and answers the dialog that follows.
    void answerWrong(const QString &wrong = u"wrong"_s, Caller caller = Caller::current())
    {
        expectMiss({}, caller);
        answer(wrong, caller);
    }

    // The next dialog is dlgIncorrectAnswer: calls `inspect`, then types the right word.
    void expectMiss(const std::function<void(QDialog &)> &inspect = {},
                    Caller caller = Caller::current())
    {
        answers.useForm(
            "dlgIncorrectAnswer",
            [inspect, caller](QDialog &dialog) {
                if (inspect)
                    inspect(dialog);
                Controls::type(Controls::find<QLineEdit>(dialog, "txtUserAnswer", caller), word(),
                               caller);
                Controls::click(Controls::find<QPushButton>(dialog, "cmdOK", caller), caller);
            },
            caller);
    }
    // The next dialog is dlgGameOver: calls `inspect`, then clicks Close.
    void expectTop10(const std::function<void(QDialog &)> &inspect = {},
                     Caller caller = Caller::current())
    {
        answers.useForm(
            "dlgGameOver",
            [inspect, caller](QDialog &dialog) {
                if (inspect)
                    inspect(dialog);
                Controls::click(Controls::find<QPushButton>(dialog, "cmdClose", caller), caller);
            },
            caller);
    }
    // The same with a score that enters the table under this name.
    void expectTop10Entry(const QString &name, const std::function<void(QDialog &)> &inspect = {},
                          Caller caller = Caller::current())
    {
        answers.useForm(
            "dlgGameOver",
            [name, inspect, caller](QDialog &dialog) {
                if (inspect)
                    inspect(dialog);
                Controls::type(Controls::find<QLineEdit>(dialog, "txtName", caller), name, caller);
                Controls::click(Controls::find<QPushButton>(dialog, "cmdEnter", caller), caller);
                Controls::click(Controls::find<QPushButton>(dialog, "cmdClose", caller), caller);
            },
            caller);
    }
    void expectLevel(int level, Caller caller = Caller::current())
    {
        answers.expectMsgBox(u"Level %1"_s.arg(level), QMessageBox::Ok, {}, caller);
    }

    // Enters wrong answers until the game is over. name: for a score that enters the table; null if
    // none does.
    void loseAllLives(const QString &name = {}, Caller caller = Caller::current())
    {
        while (text("lblNumLifes", caller).toInt() > 1 && !QTest::currentTestFailed())
            answerWrong(u"wrong"_s, caller);
        expectMiss({}, caller);
        if (name.isNull())
            expectTop10({}, caller);
        else
            expectTop10Entry(name, {}, caller);
        answer(u"wrong"_s, caller);
        waitForWindow(caller);
    }

    void choose(const char *music)
    {
        for (QAction *item : {&m_mnuUpbeat, &m_mnuSoothing, &m_mnuMusicOff})
            item->setChecked(false);
        const QLatin1String chosen(music);
        (chosen == u"mnuUpbeat"     ? m_mnuUpbeat
         : chosen == u"mnuSoothing" ? m_mnuSoothing
                                    : m_mnuMusicOff)
            .setChecked(true);
        Module1::gUpbeatMusic = m_mnuUpbeat.isChecked();
        Module1::gMusicOff = m_mnuMusicOff.isChecked();
    }
    // The requests for sound since the last call, such as "fastbeat/Track01.wav 9" or "NULL 0".
    QStringList sounds()
    {
        QStringList sounds = m_sounds.take();
        for (QString &sound : sounds)
            sound = sound.section(u'/', -2);
        return sounds;
    }

    // Score, level, countdown and lives as the window shows them.
    [[nodiscard]] QString numbers()
    {
        return QStringList{text("lblScore"), text("lblLevel"), text("lblCountDown"),
                           text("lblNumLifes")}
            .join(u' ');
    }
    // The visible letter tiles: number and letter.
    [[nodiscard]] QStringList tiles()
    {
        QStringList tiles;
        for (int i = 1; i <= 30; ++i) {
            const auto &tile = button(u"cmdLetters_%1"_s.arg(i).toLatin1());
            if (tile.isVisible())
                tiles += u"%1 %2"_s.arg(i).arg(tile.text());
        }
        return tiles;
    }
    // The names of the visible and enabled controls, and of the timer if it runs.
    [[nodiscard]] QStringList look()
    {
        QStringList look;
        for (const char *name : {"txtUserAnswer", "cmdStart", "cmdEnter", "VScroll1", "cmdShow",
                                 "cmdHide", "cmdRestart", "cmdViewTop10", "cmdQuit"}) {
            const auto &widget = control<QWidget>(name);
            if (widget.isVisible() && widget.isEnabled())
                look += QLatin1String(name);
        }
        if (timer().isActive())
            look += u"Timer1"_s;
        return look;
    }
    [[nodiscard]] static QStringList ready()
    {
        return names({"cmdStart", "VScroll1", "cmdHide", "cmdRestart", "cmdViewTop10", "cmdQuit"});
    }
    [[nodiscard]] static QStringList playing()
    {
        return names({"txtUserAnswer", "cmdEnter", "cmdHide", "cmdRestart", "cmdViewTop10",
                      "cmdQuit", "Timer1"});
    }
    [[nodiscard]] static QStringList over()
    {
        return names({"cmdHide", "cmdRestart", "cmdViewTop10", "cmdQuit"});
    }

private:
    [[nodiscard]] static QStringList names(std::initializer_list<const char *> list)
    {
        QStringList names;
        for (const char *name : list)
            names += QLatin1String(name);
        return names;
    }

    void clickArrow(QStyle::SubControl arrow, Caller caller)
    {
        QScrollBar &bar = levelSwitch();
        QTest::mouseClick(&bar, Qt::LeftButton, {}, Controls::middleOf(bar, arrow, caller));
    }

    QAction m_mnuUpbeat;
    QAction m_mnuSoothing;
    QAction m_mnuMusicOff;
    SoundRequests m_sounds;
    QWidget m_mainWindow;
    std::unique_ptr<frmTanglewit> m_window;
};
