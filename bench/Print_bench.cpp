// SPDX-License-Identifier: GPL-3.0-or-later
// Printing: the layout of a whole list, and how soon the print dialog shows the
// page that a change of margin gives.
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/Application.h"
#include "platform/PrintMetrics.h"
#include "platform/SystemPrinter.h"
#include "print/PagePreview.h"
#include "print/PreviewPages.h"
#include "print/StepBar.h"
#include "print/WordListPrint.h"
#include "print/frmPrint.h"

#include <benchmark/benchmark.h>

#include <array>
#include <fstream>
#include <stdexcept>
#include <string>

namespace {

constexpr int Small = 3'200;
constexpr int Large = cVocabList::MaxWords;

void open(int count)
{
    using namespace Module1;
    gFileName = SampleList::file(count);
    if (!gVocabList().OpenFile())
        throw std::runtime_error("The list does not open");
    TopMargin = BottomMargin = LeftMargin = RightMargin = 1;
    FromWord = 1;
    ToWord = gVocabList().NumWords();
    PrintItemNumber = true;
    PrintOrientation = QStringLiteral("Portrait");
}

// Of the whole program, in megabytes; 0 where the system does not tell.
double residentMemory()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

// The whole list on A4 paper.
void layOut(benchmark::State &state)
{
    open(static_cast<int>(state.range(0)));
    const auto metrics =
        std::make_shared<PrintMetrics>(QSizeF(8.27, 11.69), QRectF(0, 0, 8.27, 11.69), 1200);
    for (auto _ : state) {
        PreviewPages pages(metrics, Module1::gVocabList(), WordListPrint::chosen(), 1);
        while (!pages.isComplete())
            pages.layOut(1000);
        state.counters["pages"] = pages.count();
    }
    state.counters["entries/s"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                     benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(layOut)->Arg(Small)->Arg(Large)->Unit(benchmark::kMillisecond);

// A click on a margin's arrow, up to the picture of the first page; with the further memory when
// all pages are counted.
void firstPage(benchmark::State &state)
{
    open(static_cast<int>(state.range(0)));
    SystemPrinter printer;
    const double before = residentMemory();
    frmPrint dialog(printer);
    dialog.show();
    auto &bar = *dialog.findChild<StepBar *>(QStringLiteral("vsc_TopMargin"));
    auto &preview = *dialog.findChild<PagePreview *>(QStringLiteral("preview"));
    for (auto _ : state) {
        bar.setValue(bar.value() == 10 ? 11 : 10);
        benchmark::DoNotOptimize(preview.grab());
    }
    // All pages are counted now.
    while (!preview.isLast()) {
        QCoreApplication::processEvents();
        preview.goToLast();
    }
    state.counters["MB"] = residentMemory() - before;
}
BENCHMARK(firstPage)->Arg(Small)->Arg(Large)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    Application application(argc, argv);
    const std::array<Ratio, 2> ratios = {Ratio{"layOut/32000", "layOut/3200", 11},
                                         Ratio{"firstPage/32000", "firstPage/3200", 1.2}};
    const std::array<Limit, 1> limits = {Limit{"firstPage/32000", 50}};
    return runBenchmarks(argc, argv, ratios, limits);
}
