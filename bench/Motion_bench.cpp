// SPDX-License-Identifier: GPL-3.0-or-later
// The processor's time for one frame of each motion of the game, in a window of the size that it
// has on a screen of 1920x1080 pixels.
#include "BenchApplication.h"
#include "Ratios.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/GameBoard.h"
#include "game/Music.h"
#include "game/dlgGameOver.h"
#include "game/ui_frmTanglewit.h"
#include "platform/Motion.h"
#include "support/MotionStyle.h"
#include "support/SteppedTime.h"

#include <QAction>
#include <QPainter>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <array>
#include <functional>
#include <vector>

namespace {

constexpr double Goal = 4;        // milliseconds
constexpr int FrameInterval = 16; // milliseconds
constexpr QSize WindowSize(1200, 900);

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// Nothing is painted before.
void showAndExpose(QWidget &window)
{
    window.show();
    while (!window.windowHandle()->isExposed())
        QCoreApplication::processEvents();
    settle();
}

// The game's window while a word of 14 letters is played.
class Play final
{
public:
    Play()
    {
        cVocabList &list = Module1::gVocabList();
        list.ClearList();
        list.AddVocab(QStringLiteral("responsibility"),
                      QStringLiteral("the duty to deal with something and to answer for it"),
                      QStringLiteral("Feeding the cat is her responsibility."));
        ui.setupUi(&window);
        board = std::make_unique<GameBoard>(ui, window);
        window.resize(WindowSize);
        board->fit(WindowSize.height());
        board->show(GameBoard::Mode::Playing);
        board->showWordSwitch(true);
        ui.txtUserAnswer->setEnabled(true);
        board->showWord();
        board->show(game);
        board->showMiss(QStringLiteral("responsability"));
        showAndExpose(window);
    }

    void hit() const
    {
        board->clearHits();
        board->showHit(11);
    }

    // Ends the motions on all widgets but one.
    void keepOnly(const QWidget &kept)
    {
        for (QWidget *widget : {&window, static_cast<QWidget *>(ui.tileRack),
                                ui.lstHits->viewport(), static_cast<QWidget *>(ui.lifeHearts)})
            if (widget != &kept)
                Motion::end(*widget);
    }

    SteppedTime time;
    QWidget window;
    Ui::frmTanglewit ui{};
    std::unique_ptr<GameBoard> board;
    GameState game;
};

// Begins the motion whenever none plays, and times each of its frames up to what is painted.
void frames(benchmark::State &state, SteppedTime &time, const std::function<void()> &begin)
{
    for (auto _ : state) {
        if (!time.isNeeded()) {
            state.PauseTiming();
            begin();
            settle();
            time.pass(0);
            if (!time.isNeeded())
                return state.SkipWithError("nothing moves");
            state.ResumeTiming();
        }
        time.pass(FrameInterval);
        settle();
    }
}

// An empty window of the same size is filled with one colour.
void plainFrame(benchmark::State &state)
{
    class Plain final : public QWidget
    {
        void paintEvent(QPaintEvent * /*event*/) override
        {
            QPainter(this).fillRect(rect(), Qt::darkCyan);
        }
    } plain;
    plain.resize(WindowSize);
    showAndExpose(plain);
    for (auto _ : state) {
        plain.update();
        settle();
    }
}

void points(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.hit();
        play.keepOnly(play.window);
    });
}

void wave(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.hit();
        play.keepOnly(*play.ui.tileRack);
    });
}

void landing(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.hit();
        play.keepOnly(*play.ui.lstHits->viewport());
    });
}

// Points, wave and landing at once.
void hit(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] { play.hit(); });
}

void shaking(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] { play.board->showMiss(QStringLiteral("wrong")); });
}

void heart(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.ui.lifeHearts->setLives(5);
        play.ui.lifeHearts->setLives(4);
    });
}

// Shaking and heart at once.
void miss(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.ui.lifeHearts->setLives(5);
        play.ui.lifeHearts->setLives(4);
        play.board->showMiss(QStringLiteral("wrong"));
    });
}

void turnedTile(benchmark::State &state)
{
    Play play;
    const QString word = Module1::gVocabList().Word();
    frames(state, play.time, [&play, word] {
        play.ui.tileRack->uncover(0, {});
        play.ui.tileRack->uncover(1, word);
    });
}

// All letters are turned up, the heart fades and a circle closes in the countdown.
void timeOut(benchmark::State &state)
{
    Play play;
    const QString word = Module1::gVocabList().Word();
    frames(state, play.time, [&play, word] {
        play.ui.lifeHearts->setLives(5);
        play.ui.lifeHearts->setLives(4);
        play.ui.tileRack->uncover(0, {});
        play.ui.tileRack->uncover(word.size(), word);
        play.board->showTimeOut();
    });
}

void lastSecond(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] {
        play.ui.lblCountDown->setSeconds(5, 30);
        play.ui.lblCountDown->setSeconds(4, 30);
    });
}

void newLevel(benchmark::State &state)
{
    Play play;
    frames(state, play.time, [&play] { play.board->playNewLevel(); });
}

// The Top 10 with a new score.
void prize(benchmark::State &state)
{
    SteppedTime time;
    const QAction off;
    Music music({off, off, off});
    std::unique_ptr<dlgGameOver> dialog;
    frames(state, time, [&] {
        Module1::gTop10 = {};
        Module1::gScore = 40;
        dialog = std::make_unique<dlgGameOver>(music, nullptr);
        showAndExpose(*dialog);
    });
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);
    QApplication::setStyle(new MotionStyle(200));
    QApplication::setCursorFlashTime(0);
    Module1::gMusicOff = true;

    using Benchmark = void (*)(benchmark::State &);
    const std::array<std::pair<const char *, Benchmark>, 12> motions{{{"points", points},
                                                                      {"wave", wave},
                                                                      {"landing", landing},
                                                                      {"hit", hit},
                                                                      {"shaking", shaking},
                                                                      {"heart", heart},
                                                                      {"miss", miss},
                                                                      {"turnedTile", turnedTile},
                                                                      {"timeOut", timeOut},
                                                                      {"lastSecond", lastSecond},
                                                                      {"newLevel", newLevel},
                                                                      {"prize", prize}}};
    std::vector<Ratio> ratios;
    std::vector<Limit> limits;
    for (const auto &[name, function] : motions) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond);
        ratios.push_back({name, "plainFrame"});
        limits.push_back({name, Goal});
    }
    benchmark::RegisterBenchmark("plainFrame", plainFrame)->Unit(benchmark::kMicrosecond);
    return runBenchmarks(argc, argv, ratios, limits);
}
