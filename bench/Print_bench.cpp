// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of a whole list, and the time from a change of a margin until the print dialog shows
// the first page.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "platform/PrintMetrics.h"
#include "platform/SystemPrinter.h"
#include "print/PagePreview.h"
#include "print/PreviewPages.h"
#include "print/StepBar.h"
#include "print/WordListPrint.h"
#include "print/frmPrint.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <fstream>
#include <set>
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

// The resident memory of the program in megabytes; 0 if the system does not tell.
double residentMemory()
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with("VmRSS:"))
            return std::stod(line.substr(6)) / 1024;
    return 0;
}

// Counts the lines on which something is printed.
double linesOf(const PreviewPages &pages)
{
    std::size_t lines = 0;
    for (int page = 1; page <= pages.count(); ++page) {
        std::set<double> places;
        for (const PreviewPages::Text &text : pages.texts(page))
            places.insert(text.topLeft.y());
        lines += places.size();
    }
    return static_cast<double>(lines);
}

// Lays out the whole list on A4 paper.
void layOut(benchmark::State &state)
{
    open(static_cast<int>(state.range(0)));
    const auto metrics =
        std::make_shared<PrintMetrics>(QSizeF(8.27, 11.69), QRectF(0, 0, 8.27, 11.69), 1200);
    double lines = 0;
    for (auto _ : state) {
        PreviewPages pages(metrics, Module1::gVocabList(), WordListPrint::chosen(), 1);
        while (!pages.isComplete())
            pages.layOut(1000);
        state.PauseTiming();
        state.counters["pages"] = pages.count();
        if (lines == 0)
            lines = linesOf(pages);
        state.ResumeTiming();
    }
    state.counters["lines/s"] =
        benchmark::Counter(lines, benchmark::Counter::kIsIterationInvariantRate);
    state.counters["entries/s"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                     benchmark::Counter::kIsIterationInvariantRate);
}
BENCHMARK(layOut)->Arg(Small)->Arg(Large)->Unit(benchmark::kMillisecond);

// From a click on a margin's arrow until the first page is painted.
void firstPage(benchmark::State &state)
{
    open(static_cast<int>(state.range(0)));
    SystemPrinter printer;
    frmPrint dialog(printer);
    dialog.show();
    auto &bar = *dialog.findChild<StepBar *>(QStringLiteral("vsc_TopMargin"));
    auto &preview = *dialog.findChild<PagePreview *>(QStringLiteral("preview"));
    for (auto _ : state) {
        bar.setValue(bar.value() == 10 ? 11 : 10);
        benchmark::DoNotOptimize(preview.grab());
    }
}
BENCHMARK(firstPage)->Arg(Small)->Arg(Large)->Unit(benchmark::kMillisecond);

// The memory that a print dialog takes, in megabytes, with all pages counted. Freed memory stays
// with the process, so only the first dialog can be measured.
double memoryOfFirstDialog()
{
    open(Large);
    SystemPrinter printer;
    const double before = residentMemory();
    frmPrint dialog(printer);
    dialog.show();
    auto &bar = *dialog.findChild<StepBar *>(QStringLiteral("vsc_TopMargin"));
    auto &preview = *dialog.findChild<PagePreview *>(QStringLiteral("preview"));
    double most = 0;
    for (const int margin : {11, 10}) {
        bar.setValue(margin);
        benchmark::DoNotOptimize(preview.grab());
        preview.goTo(PagePreview::Page::Last);
        while (!preview.isLast()) {
            QCoreApplication::processEvents();
            most = std::max(most, residentMemory() - before);
        }
        benchmark::DoNotOptimize(preview.grab());
        most = std::max(most, residentMemory() - before);
    }
    return most;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("CUPS_SERVER", "/nonexistent/printers"); // no printers, whatever the machine has
    const BenchApplication application(argv);
    const std::array<Ratio, 2> ratios = {Ratio{"layOut/32000", "layOut/3200", 11},
                                         Ratio{"firstPage/32000", "firstPage/3200", 1.2}};
    const std::array<Limit, 1> limits = {Limit{"firstPage/32000", 50}};
    constexpr double MostMemory = 30;
    const double memory = memoryOfFirstDialog();
    const int status = runBenchmarks(argc, argv, ratios, limits);
    std::printf("%-28s %10.1f MB, goal %g MB: %s\n", "first dialog's memory", memory, MostMemory,
                memory <= MostMemory ? "reached" : "MISSED");
    return status;
}
