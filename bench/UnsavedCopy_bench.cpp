// SPDX-License-Identifier: GPL-3.0-or-later
// The copy of an unsaved list: processor time from a change until the copy is written, compared
// with a plain write of a new file with the same bytes.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/UnsavedCopy.h"

#include <QFile>
#include <QFileInfo>

#include <benchmark/benchmark.h>

#include <array>
#include <stdexcept>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> Sizes{100, 3'200, cVocabList::MaxWords};

int size(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

void copy(benchmark::State &state)
{
    using namespace Module1;
    gFileName = SampleList::file(size(state));
    // In the folder of the sample lists, on the same disk.
    qputenv("HOME", QFile::encodeName(QFileInfo(gFileName).path()));
    QObject window;
    UnsavedCopy unsavedCopy(&window);
    const QTimer &timer = *window.findChild<QTimer *>();
    cVocabList &list = gVocabList();
    if (!list.OpenFile())
        throw std::runtime_error("The list does not open");
    gChanged = true;
    for (auto _ : state) {
        list.Edit(list.Word(), list.Definition(), list.Sentence());
        while (timer.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    unsavedCopy.giveUp();
}

void plainWriteNew(benchmark::State &state)
{
    QFile list(SampleList::file(size(state)));
    if (!list.open(QFile::ReadOnly))
        throw std::runtime_error("The list cannot be read");
    const QByteArray bytes = list.readAll();
    QFile file(list.fileName() + QStringLiteral(".new"));
    for (auto _ : state) {
        file.remove();
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() ||
            fsync(file.handle()) != 0)
            state.SkipWithError("The file could not be written");
        file.close();
    }
}

void atAllSizes(const char *name, void (*function)(benchmark::State &))
{
    auto *registered = benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMillisecond);
    for (const int size : Sizes)
        registered->Arg(size);
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);

    atAllSizes("copy", copy);
    atAllSizes("plainWriteNew", plainWriteNew);

    std::vector<Ratio> ratios;
    for (const int size : Sizes)
        ratios.push_back({"copy/" + std::to_string(size), "plainWriteNew/" + std::to_string(size)});
    const std::array<Limit, 1> limits{{{"copy/32000", 15}}};
    return runBenchmarks(argc, argv, ratios, limits);
}
