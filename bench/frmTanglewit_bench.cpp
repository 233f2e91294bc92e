// SPDX-License-Identifier: GPL-3.0-or-later
// The game: scramble, word order and blanking, each with a plain reference, and the time from Enter
// to the next word on the screen.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "game/Blanking.h"
#include "game/frmTanglewit.h"

#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <random>

namespace {

constexpr int Frame = 16; // milliseconds

void openList(int count)
{
    Module1::gFileName = SampleList::file(count);
    Module1::gVocabList().OpenFile();
}

void scramble(benchmark::State &state)
{
    openList(100);
    cVocabList &list = Module1::gVocabList();
    int position = 0;
    for (auto _ : state) {
        position = position % 100 + 1;
        list.CurrentWord(position);
        benchmark::DoNotOptimize(list.ScrambledWord());
    }
}

// The reference shuffles the same words once, without the rule about neighbours.
void plainScramble(benchmark::State &state)
{
    const std::vector<VocabRecord> entries = SampleList::entries(100);
    std::mt19937 random(5);
    std::size_t position = 0;
    for (auto _ : state) {
        QString word = entries[position].Word;
        position = (position + 1) % entries.size();
        std::shuffle(word.begin(), word.end(), random);
        benchmark::DoNotOptimize(word);
    }
}

void wordOrder(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(drawWordOrder(LongestWordOrder, cVocabList::MaxWords));
}

void plainWordOrder(benchmark::State &state)
{
    std::vector<short> positions(cVocabList::MaxWords);
    std::iota(positions.begin(), positions.end(), short(1));
    std::mt19937 random(6);
    std::vector<short> order(LongestWordOrder);
    for (auto _ : state) {
        std::sample(positions.begin(), positions.end(), order.begin(), LongestWordOrder, random);
        std::shuffle(order.begin(), order.end(), random);
        benchmark::DoNotOptimize(order.data());
    }
}

// 500 characters in which only the word without its last two letters is found.
QString longSentence()
{
    const QString filling = QStringLiteral("She scatters what the category brought, and more. ");
    return filling.repeated(10).chopped(9) + QStringLiteral("studious.");
}

void blanking(benchmark::State &state)
{
    const QString sentence = longSentence();
    for (auto _ : state)
        benchmark::DoNotOptimize(blankedSentence(sentence, QStringLiteral("studying")));
}

// The reference looks for the three forms at all three lengths and replaces nothing.
void plainSearch(benchmark::State &state)
{
    const QString sentence = longSentence();
    const QString word = QStringLiteral("studying");
    for (auto _ : state)
        for (int length = 8; length >= 6; --length)
            for (const QString &form :
                 {QStringLiteral("Studying"), word.left(length), word.left(length).toUpper()})
                benchmark::DoNotOptimize(sentence.indexOf(form));
}

// From the Enter after a right answer until the next word is painted.
void showWord(benchmark::State &state)
{
    openList(cVocabList::MaxWords);
    const QAction off;
    frmTanglewit game({off, off, off}, nullptr);
    game.show();
    const auto settle = [] {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    };
    const auto press = [&game] {
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&game, &enter);
    };
    auto &answer = *game.findChild<QLineEdit *>(QStringLiteral("txtUserAnswer"));
    press();
    settle();
    int hits = 0;
    for (auto _ : state) {
        state.PauseTiming();
        // A new game before the message of the next level would wait for an answer.
        if (++hits % 19 == 0) {
            game.findChild<QAbstractButton *>(QStringLiteral("cmdRestart"))->click();
            game.findChild<QAbstractButton *>(QStringLiteral("cmdStart"))->click();
        }
        answer.setText(Module1::gVocabList().Word());
        settle();
        state.ResumeTiming();
        press();
        settle();
    }
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);
    Module1::gMusicOff = true;

    const auto add = [](const char *name, void (*function)(benchmark::State &)) {
        benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond);
    };
    add("scramble", scramble);
    add("plainScramble", plainScramble);
    add("wordOrder", wordOrder);
    add("plainWordOrder", plainWordOrder);
    add("blanking", blanking);
    add("plainSearch", plainSearch);
    add("showWord", showWord);

    const std::array<Ratio, 3> ratios{{{"scramble", "plainScramble"},
                                       {"wordOrder", "plainWordOrder"},
                                       {"blanking", "plainSearch"}}};
    const std::array<Limit, 1> limits{{{"showWord", Frame}}};
    return runBenchmarks(argc, argv, ratios, limits);
}
