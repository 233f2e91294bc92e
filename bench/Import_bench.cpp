// SPDX-License-Identifier: GPL-3.0-or-later
// Imports a word list into one of the same size, without the main window: all words new, all words
// in the list already and answered by No To All, or by Yes To All. The time starts with the import
// or with the answer to its question, and ends with the last word, before the message.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "transfer/Import.h"

#include <QDialog>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <array>
#include <span>
#include <stdexcept>

namespace {

constexpr std::array<int, 3> Sizes{500, 4'000, 16'000};

// A list of these entries, with its index built.
cVocabList listOf(std::span<const VocabRecord> entries)
{
    cVocabList list;
    for (const VocabRecord &entry : entries)
        list.AddVocab(entry.Word, entry.Definition, entry.Sentence);
    static_cast<void>(list.Exist(entries.front().Word, 1));
    return list;
}

// Presses the button in the question about a word, and OK in a message.
class Person
{
public:
    explicit Person(const char *answer)
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [answer] {
            QWidget *dialog = QApplication::activeModalWidget();
            if (auto *message = qobject_cast<QMessageBox *>(dialog))
                message->button(QMessageBox::Ok)->click();
            else if (dialog)
                dialog->findChild<QPushButton *>(QLatin1String(answer))->click();
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

// Imports the file into a copy of the list and returns the seconds.
double import(const cVocabList &open, const QString &file, const char *answer)
{
    Module1::gVocabList() = open;
    Module1::gFileName = file;
    const Person person(answer);
    Import import;
    QElapsedTimer clock;
    qint64 nanoseconds = 0;
    const bool isAsked = *answer != '\0';
    QObject::connect(&import, &Import::progress, &import, [&](int done, int total) {
        if (done == 1 && isAsked)
            clock.restart();
        if (done == total)
            nanoseconds = clock.nsecsElapsed();
    });
    clock.start();
    import.ImportWordList();
    return static_cast<double>(nanoseconds) / 1e9;
}

void run(benchmark::State &state, int firstOpen, const char *answer, int words)
{
    const int count = static_cast<int>(state.range(0));
    const std::vector<VocabRecord> entries = SampleList::entries(2 * count);
    const cVocabList open = listOf(std::span(entries).subspan(static_cast<std::size_t>(firstOpen),
                                                              static_cast<std::size_t>(count)));
    const QString file = SampleList::file(count);
    for (auto _ : state) {
        state.SetIterationTime(import(open, file, answer));
        if (Module1::gVocabList().NumWords() != words)
            throw std::runtime_error("Not the words that were to come in");
    }
    state.counters["perWord"] = benchmark::Counter(
        count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

// The file holds the first half of the entries.
void allNew(benchmark::State &state)
{
    const int count = static_cast<int>(state.range(0));
    run(state, count, "", 2 * count);
}

void noToAll(benchmark::State &state)
{
    run(state, 0, "cmdNoToAll", static_cast<int>(state.range(0)));
}

void yesToAll(benchmark::State &state)
{
    run(state, 0, "cmdYesToAll", 2 * static_cast<int>(state.range(0)));
}

void atAllSizes(const char *name, void (*function)(benchmark::State &))
{
    auto *registered = benchmark::RegisterBenchmark(name, function)
                           ->Unit(benchmark::kMillisecond)
                           ->UseManualTime();
    for (const int size : Sizes)
        registered->Arg(size);
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);

    atAllSizes("allNew", allNew);
    atAllSizes("noToAll", noToAll);
    atAllSizes("yesToAll", yesToAll);

    // With 16,000 words each may take twice as long as with 500.
    constexpr double Goal = 2.0 * 16'000 / 500;
    std::vector<Ratio> ratios;
    for (const std::string what : {"allNew", "noToAll", "yesToAll"}) {
        ratios.push_back({what + "/4000", what + "/500"});
        ratios.push_back({what + "/16000", what + "/500", Goal});
    }
    return runBenchmarks(argc, argv, ratios, {});
}
