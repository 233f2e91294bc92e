// SPDX-License-Identifier: GPL-3.0-or-later
// The main window at three sizes of list: a page of the grid, and a search from the click to its
// answer on the screen.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/frmMain.h"
#include "platform/MSFlexGrid.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>

#include <benchmark/benchmark.h>

#include <array>
#include <random>
#include <stdexcept>

namespace {

constexpr std::array<int, 3> Sizes{100, 3'200, cVocabList::MaxWords};
constexpr int RowsOnPage = 23;

int size(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

// Handles all waiting events, painting included.
void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

// The real window with a list open.
class Window
{
public:
    explicit Window(int count)
    {
        m_window.resize(1366, 768);
        m_window.show();
        open(count);
    }

    void open(int count)
    {
        Module1::gFileName = SampleList::file(count);
        if (!Module1::gVocabList().OpenFile())
            throw std::runtime_error("The list does not open");
        scrollBar().setRange(0, count + 1);
        scrollBar().setValue(2);
        scrollBar().setValue(1);
        settle();
    }

    template <class Control> Control &control(const char *name)
    {
        return *m_window.findChild<Control *>(QLatin1String(name));
    }
    QScrollBar &scrollBar() { return control<QScrollBar>("VScroll1"); }

private:
    frmMain m_window;
};

// Pages from all over the list.
std::vector<int> pages(int count)
{
    std::mt19937 random(3); // the same pages in every run
    std::uniform_int_distribution first(1, count - RowsOnPage);
    std::vector<int> pages(1'000);
    for (int &page : pages)
        page = first(random);
    return pages;
}

void pageFill(benchmark::State &state)
{
    Window window(size(state));
    QScrollBar &bar = window.scrollBar();
    const std::vector<int> tops = pages(size(state));
    std::size_t next = 0;
    for (auto _ : state) {
        bar.setValue(tops[next]);
        next = (next + 1) % tops.size();
        state.PauseTiming();
        settle();
        state.ResumeTiming();
    }
}

void pageFillPainted(benchmark::State &state)
{
    Window window(size(state));
    QScrollBar &bar = window.scrollBar();
    const std::vector<int> tops = pages(size(state));
    std::size_t next = 0;
    for (auto _ : state) {
        bar.setValue(tops[next]);
        settle();
        next = (next + 1) % tops.size();
    }
}

// Fills a plain table of the same size with the same texts.
void plainTable(benchmark::State &state)
{
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    QTableWidget table(RowsOnPage + 2, 4);
    table.resize(1366, 380);
    for (int row = 0; row < table.rowCount(); ++row) {
        table.setRowHeight(row, 380 / (RowsOnPage + 1));
        for (int column = 0; column < table.columnCount(); ++column)
            table.setItem(row, column, new QTableWidgetItem);
    }
    table.setColumnWidth(2, 455);
    table.setColumnWidth(3, 590);
    table.show();
    settle();
    const std::vector<int> tops = pages(size(state));
    std::size_t next = 0;
    for (auto _ : state) {
        for (int row = 1; row <= RowsOnPage; ++row) {
            const int entry = tops[next] + row - 1;
            const VocabRecord &record = entries[static_cast<std::size_t>(entry)];
            table.item(row, 0)->setText(QString::number(entry));
            table.item(row, 1)->setText(record.Word);
            table.item(row, 2)->setText(record.Definition);
            table.item(row, 3)->setText(record.Sentence);
        }
        settle();
        next = (next + 1) % tops.size();
    }
}

// From a click on Search until the page with the hit is painted.
class Searching
{
public:
    explicit Searching(Window &window)
        : m_button(window.control<QPushButton>("cmdSearch")),
          m_box(window.control<QLineEdit>("txtWord"))
    {
    }

    void type(const QString &word)
    {
        m_box.setEnabled(true);
        m_box.setText(word);
        settle();
    }

    void click()
    {
        m_button.click();
        settle();
    }

private:
    QPushButton &m_button;
    QLineEdit &m_box;
};

void search(benchmark::State &state)
{
    Window window(size(state));
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    Searching searching(window);
    const std::vector<int> wanted = pages(size(state));
    std::size_t next = 0;
    for (auto _ : state) {
        state.PauseTiming();
        searching.type(entries[static_cast<std::size_t>(wanted[next] - 1)].Word);
        next = (next + 1) % wanted.size();
        state.ResumeTiming();
        searching.click();
    }
}

void firstSearch(benchmark::State &state)
{
    Window window(size(state));
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    Searching searching(window);
    const std::vector<int> wanted = pages(size(state));
    std::size_t next = 0;
    for (auto _ : state) {
        state.PauseTiming();
        window.open(size(state));
        searching.type(entries[static_cast<std::size_t>(wanted[next] - 1)].Word);
        next = (next + 1) % wanted.size();
        state.ResumeTiming();
        searching.click();
    }
}

benchmark::internal::Benchmark *atAllSizes(const char *name, void (*function)(benchmark::State &))
{
    auto *registered = benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond);
    for (const int size : Sizes)
        registered->Arg(size);
    return registered;
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);

    atAllSizes("pageFill", pageFill);
    atAllSizes("pageFillPainted", pageFillPainted);
    atAllSizes("plainTable", plainTable);
    atAllSizes("search", search);
    atAllSizes("firstSearch", firstSearch);

    std::vector<Ratio> ratios;
    for (const int size : Sizes)
        ratios.push_back(
            {"pageFillPainted/" + std::to_string(size), "plainTable/" + std::to_string(size)});
    for (const std::string what : {"pageFill", "pageFillPainted"})
        ratios.push_back({what + "/32000", what + "/100", 1.2});
    const std::array<Limit, 2> limits{{{"search/32000", 5}, {"firstSearch/32000", 5}}};
    return runBenchmarks(argc, argv, ratios, limits);
}
