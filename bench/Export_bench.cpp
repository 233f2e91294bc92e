// SPDX-License-Identifier: GPL-3.0-or-later
// An export, from the click on OK to its message; the text file; and the shuffled order in which
// the flash cards and the game take the words.
#include "BenchApplication.h"
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/WordOrder.h"
#include "core/cVocabList.h"
#include "runtime/BinaryFile.h"
#include "transfer/TextFile.h"
#include "transfer/dlgExport.h"

#include <QFile>
#include <QFileInfo>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <numeric>
#include <random>
#include <stdexcept>
#include <unistd.h>

namespace {

constexpr std::array<int, 2> ExportSizes{500, 16'000};
constexpr std::array<int, 2> TextSizes{500, cVocabList::MaxWords};

int size(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

void open(int count)
{
    Module1::gFileName = SampleList::file(count);
    if (!Module1::gVocabList().OpenFile())
        throw std::runtime_error("The list does not open");
}

// A copy of the list file that may be changed.
QString freshCopy(int count, const QString &ending)
{
    QString copy = SampleList::file(count) + ending;
    QFile::remove(copy);
    if (!QFile::copy(SampleList::file(count), copy))
        throw std::runtime_error("The list cannot be copied");
    return copy;
}

// Answers the message box that is about to come up.
void answerMessage()
{
    QTimer::singleShot(0, [] {
        if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget()))
            box->button(QMessageBox::Ok)->click();
    });
}

// Exports a whole list into a file that holds as many words.
void exportWords(benchmark::State &state)
{
    open(size(state));
    for (auto _ : state) {
        state.PauseTiming();
        const QString target = freshCopy(size(state), QStringLiteral(".export"));
        dlgExport dialog(QString{});
        dialog.show();
        QCoreApplication::processEvents();
        dialog.findChild<QLineEdit *>(QStringLiteral("txtFilename"))->setText(target);
        auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("cmdOk"));
        answerMessage();
        state.ResumeTiming();
        ok->click();
        state.PauseTiming();
        constexpr qint64 sizeOfCount = 2;
        const qint64 before = QFileInfo(SampleList::file(size(state))).size();
        if (QFileInfo(target).size() != 2 * before - sizeOfCount)
            state.SkipWithError("The words were not exported");
        state.ResumeTiming();
    }
}

std::string plainBytes(const QString &path)
{
    std::fstream file(path.toStdString(), std::ios::in | std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void plainWrite(benchmark::State &state, const QString &path, const std::string &bytes)
{
    std::fstream file(path.toStdString(), std::ios::in | std::ios::out | std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    QFile handle(path); // any handle of the file can flush it
    if (!handle.open(QFile::ReadWrite) || fsync(handle.handle()) != 0)
        state.SkipWithError("The file could not be flushed");
}

// Reads the bytes of the same file, appends those of as many words, and writes them.
void plainAppend(benchmark::State &state)
{
    const std::string added = plainBytes(SampleList::file(size(state))).substr(2);
    for (auto _ : state) {
        state.PauseTiming();
        const QString target = freshCopy(size(state), QStringLiteral(".append"));
        state.ResumeTiming();
        plainWrite(state, target, plainBytes(target) + added);
    }
}

void textFile(benchmark::State &state)
{
    open(size(state));
    const QString path = SampleList::file(size(state)) + QStringLiteral(".txt");
    for (auto _ : state)
        BinaryFile::overwrite(path, textOfList(Module1::gVocabList()));
}

// Writes the same bytes to the same path.
void plainText(benchmark::State &state)
{
    open(size(state));
    const std::string bytes = textOfList(Module1::gVocabList()).toStdString();
    const QString path = freshCopy(size(state), QStringLiteral(".plain"));
    for (auto _ : state)
        plainWrite(state, path, bytes);
}

void textAlone(benchmark::State &state)
{
    open(size(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(textOfList(Module1::gVocabList()));
}

void wordOrder(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(drawWordOrder(LongestWordOrder, size(state)));
}

// Shuffles the whole list with one seed.
void plainShuffle(benchmark::State &state)
{
    std::mt19937 random(4); // the same orders in every run
    std::vector<int> order(static_cast<std::size_t>(size(state)));
    for (auto _ : state) {
        std::iota(order.begin(), order.end(), 1);
        std::shuffle(order.begin(), order.end(), random);
        benchmark::DoNotOptimize(order.data());
    }
}

template <class Sizes>
benchmark::internal::Benchmark *at(const Sizes &sizes, const char *name,
                                   void (*function)(benchmark::State &))
{
    auto *registered = benchmark::RegisterBenchmark(name, function)->Unit(benchmark::kMicrosecond);
    for (const int size : sizes)
        registered->Arg(size);
    return registered;
}

} // namespace

int main(int argc, char **argv)
{
    const BenchApplication application(argv);
    Application::setQuitOnLastWindowClosed(false);

    constexpr std::array OrderSizes{LongestWordOrder, cVocabList::MaxWords};
    at(ExportSizes, "exportWords", exportWords)->UseRealTime();
    at(ExportSizes, "plainAppend", plainAppend)->UseRealTime();
    at(TextSizes, "textFile", textFile)->UseRealTime();
    at(TextSizes, "plainText", plainText)->UseRealTime();
    at(TextSizes, "textAlone", textAlone);
    at(OrderSizes, "wordOrder", wordOrder);
    at(OrderSizes, "plainShuffle", plainShuffle);

    const std::array<Ratio, 6> ratios{{{"exportWords/500", "plainAppend/500"},
                                       {"exportWords/16000", "plainAppend/16000"},
                                       {"textFile/500", "plainText/500"},
                                       {"textFile/32000", "plainText/32000"},
                                       {"wordOrder/1000", "plainShuffle/1000"},
                                       {"wordOrder/32000", "plainShuffle/32000"}}};
    return runBenchmarks(argc, argv, ratios, {});
}
