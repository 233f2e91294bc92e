// SPDX-License-Identifier: GPL-3.0-or-later
// Opening, saving, looking up, adding and deleting at three sizes, each compared with the plainest
// way to do the same.
#include "Ratios.h"
#include "SampleList.h"
#include "core/Module1.h"
#include "core/cVocabList.h"

#include <QFile>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <random>
#include <unistd.h>

namespace {

constexpr std::array<int, 3> Sizes{100, 3'200, cVocabList::MaxWords};
constexpr int Batch = 100; // look-ups, additions or deletions in one iteration

int size(const benchmark::State &state)
{
    return static_cast<int>(state.range(0));
}

cVocabList openedList(int count)
{
    Module1::gFileName = SampleList::file(count);
    cVocabList list;
    list.OpenFile();
    return list;
}

// Words from all over the list in random order, in other letter case than in the list.
QStringList wordsInList(int count)
{
    const std::vector<VocabRecord> entries = SampleList::entries(count);
    std::mt19937 random(2); // the same words in every run
    QStringList words;
    for (int i = 0; i < 50 * Batch; ++i)
        words += entries[random() % entries.size()].Word.toUpper();
    return words;
}

QStringList wordsNotInList(int count)
{
    QStringList words = wordsInList(count);
    for (QString &word : words)
        word += QLatin1Char('q');
    return words;
}

// The next hundred words; after the last one it starts again with the first.
class Batches
{
public:
    explicit Batches(QStringList words) : m_words(std::move(words)) {}
    template <class LookUp> void next(const LookUp &lookUp)
    {
        for (int i = 0; i < Batch; ++i)
            lookUp(m_words[m_next + i]);
        m_next = (m_next + Batch) % m_words.size();
    }

private:
    QStringList m_words;
    qsizetype m_next = 0;
};

void open(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(list.OpenFile());
}

std::string plainBytes(const std::string &path)
{
    std::fstream file(path, std::ios::in | std::ios::binary);
    std::string bytes(std::filesystem::file_size(path), '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return bytes;
}

void plainRead(benchmark::State &state)
{
    const std::string path = SampleList::file(size(state)).toStdString();
    for (auto _ : state) {
        const std::string bytes = plainBytes(path);
        std::u16string text(bytes.size(), u'\0');
        std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
            return static_cast<char16_t>(static_cast<unsigned char>(byte));
        });
        benchmark::DoNotOptimize(text.data());
    }
}

// The same, with a string for each text.
void plainReadTexts(benchmark::State &state)
{
    const std::string path = SampleList::file(size(state)).toStdString();
    std::vector<std::array<std::u16string, 3>> records;
    for (auto _ : state) {
        std::fstream file(path, std::ios::in | std::ios::binary);
        const auto number = [&file] {
            std::array<char, 2> bytes{};
            file.read(bytes.data(), bytes.size());
            return static_cast<unsigned char>(bytes[0]) +
                   256U * static_cast<unsigned char>(bytes[1]);
        };
        std::vector<std::array<std::u16string, 3>> read(number());
        std::string bytes;
        for (auto &record : read) {
            for (std::u16string &text : record) {
                bytes.resize(number());
                file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
                text.resize(bytes.size());
                std::transform(bytes.begin(), bytes.end(), text.begin(), [](char byte) {
                    return static_cast<char16_t>(static_cast<unsigned char>(byte));
                });
            }
        }
        records = std::move(read);
    }
}

void save(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    Module1::gFileName += QStringLiteral(".saved");
    list.SaveFile(); // so that saving over an existing file is measured
    for (auto _ : state)
        list.SaveFile();
}

void plainWrite(benchmark::State &state)
{
    const QString path = SampleList::file(size(state));
    const std::string bytes = plainBytes(path.toStdString());
    const QString copy = path + QStringLiteral(".written");
    QFile::remove(copy);
    QFile::copy(path, copy);
    for (auto _ : state) {
        std::fstream file(copy.toStdString(), std::ios::in | std::ios::out | std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        // Any handle of the file can flush it.
        QFile handle(copy);
        if (!handle.open(QFile::ReadWrite) || fsync(handle.handle()) != 0)
            state.SkipWithError("The file could not be flushed");
    }
}

// Writes a new file each time, as a safe save does.
void plainWriteNew(benchmark::State &state)
{
    const QString path = SampleList::file(size(state));
    const std::string bytes = plainBytes(path.toStdString());
    const QString copy = path + QStringLiteral(".new");
    for (auto _ : state) {
        std::filesystem::remove(copy.toStdString());
        std::fstream file(copy.toStdString(), std::ios::out | std::ios::binary);
        file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        file.close();
        QFile handle(copy);
        if (!handle.open(QFile::ReadWrite) || fsync(handle.handle()) != 0)
            state.SkipWithError("The file could not be flushed");
    }
}

void existHit(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    Batches words(wordsInList(size(state)));
    benchmark::DoNotOptimize(list.Exist(QStringLiteral("builds the index"), 1));
    for (auto _ : state)
        words.next([&list](const QString &word) { benchmark::DoNotOptimize(list.Exist(word, 1)); });
}

void existMiss(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    Batches words(wordsNotInList(size(state)));
    benchmark::DoNotOptimize(list.Exist(QStringLiteral("builds the index"), 1));
    for (auto _ : state)
        words.next([&list](const QString &word) { benchmark::DoNotOptimize(list.Exist(word, 1)); });
}

// A hundred hits in the order of the list, each search from the last hit on. At the end of the list
// a search finds nothing and starts again at the beginning.
void searchHit(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    const std::size_t step = entries.size() / Batch;
    QStringList inOrder;
    for (std::size_t start = 0; start < 50; ++start)
        for (std::size_t i = 0; i < Batch; ++i)
            inOrder += entries[start % step + i * step].Word.toUpper();
    Batches words(inOrder);
    for (auto _ : state)
        words.next([&list](const QString &word) {
            if (list.SearchWord(word) == 0)
                benchmark::DoNotOptimize(list.SearchWord(word));
        });
}

void searchMiss(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    Batches words(wordsNotInList(size(state)));
    benchmark::DoNotOptimize(list.SearchWord(QStringLiteral("builds the index")));
    for (auto _ : state)
        words.next(
            [&list](const QString &word) { benchmark::DoNotOptimize(list.SearchWord(word)); });
}

void plainScan(benchmark::State &state, const QStringList &words)
{
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    Batches batches(words);
    for (auto _ : state) {
        batches.next([&entries](const QString &word) {
            const QString wanted = word.toLower();
            const auto hit =
                std::find_if(entries.begin(), entries.end(), [&wanted](const VocabRecord &entry) {
                    return entry.Word.toLower() == wanted;
                });
            benchmark::DoNotOptimize(hit);
        });
    }
}

void plainScanHit(benchmark::State &state)
{
    plainScan(state, wordsInList(size(state)));
}

void plainScanMiss(benchmark::State &state)
{
    plainScan(state, wordsNotInList(size(state)));
}

// The first look-up after opening.
void firstSearch(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    for (auto _ : state) {
        state.PauseTiming();
        benchmark::DoNotOptimize(list.OpenFile());
        state.ResumeTiming();
        benchmark::DoNotOptimize(list.SearchWord(QStringLiteral("not there")));
    }
}

// Adds the last hundred entries up to the size. The index is built first, as the editor does when
// it looks for duplicates.
void add(benchmark::State &state)
{
    cVocabList list = openedList(size(state));
    const std::vector<VocabRecord> entries = SampleList::entries(size(state));
    const std::span added = std::span(entries).last(Batch);
    benchmark::DoNotOptimize(list.Exist(QStringLiteral("builds the index"), 1));
    for (auto _ : state) {
        state.PauseTiming();
        list.CurrentWord(list.NumWords());
        for (int i = 0; i < Batch; ++i)
            list.DeleteVocab();
        state.ResumeTiming();
        for (const VocabRecord &entry : added)
            list.AddVocab(entry.Word, entry.Definition, entry.Sentence);
    }
}

void plainAdd(benchmark::State &state)
{
    std::vector<VocabRecord> entries = SampleList::entries(size(state));
    const std::vector<VocabRecord> added(entries.end() - Batch, entries.end());
    for (auto _ : state) {
        state.PauseTiming();
        entries.resize(entries.size() - Batch);
        state.ResumeTiming();
        for (const VocabRecord &entry : added)
            entries.push_back(entry);
    }
}

// Deletes a hundred entries from all over the list; at the smallest size, all of them.
void remove(benchmark::State &state)
{
    const cVocabList full = openedList(size(state));
    for (auto _ : state) {
        state.PauseTiming();
        cVocabList list = full;
        benchmark::DoNotOptimize(list.Exist(QStringLiteral("builds the index"), 1));
        state.ResumeTiming();
        for (int i = 0; i < Batch; ++i) {
            list.CurrentWord(1 + list.NumWords().toInt() * i / Batch);
            list.DeleteVocab();
        }
        state.PauseTiming();
        list = {};
        state.ResumeTiming();
    }
}

void plainRemove(benchmark::State &state)
{
    const std::vector<VocabRecord> full = SampleList::entries(size(state));
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<VocabRecord> entries = full;
        state.ResumeTiming();
        for (std::size_t i = 0; i < Batch; ++i)
            entries.erase(entries.begin() +
                          static_cast<std::ptrdiff_t>(entries.size() * i / Batch));
        state.PauseTiming();
        entries = {};
        state.ResumeTiming();
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
    atAllSizes("open", open);
    atAllSizes("plainRead", plainRead);
    atAllSizes("plainReadTexts", plainReadTexts);
    atAllSizes("save", save)->UseRealTime();
    atAllSizes("plainWrite", plainWrite)->UseRealTime();
    atAllSizes("plainWriteNew", plainWriteNew)->UseRealTime();
    atAllSizes("existHit", existHit);
    atAllSizes("existMiss", existMiss);
    atAllSizes("searchHit", searchHit);
    atAllSizes("searchMiss", searchMiss);
    atAllSizes("plainScanHit", plainScanHit);
    atAllSizes("plainScanMiss", plainScanMiss);
    atAllSizes("firstSearch", firstSearch);
    atAllSizes("add", add);
    atAllSizes("plainAdd", plainAdd);
    atAllSizes("remove", remove);
    atAllSizes("plainRemove", plainRemove);

    std::vector<Ratio> ratios;
    const auto besidePlain = [&ratios](const std::string &what, const std::string &plain,
                                       std::optional<double> goal = {}) {
        for (const int size : Sizes)
            ratios.push_back({what + '/' + std::to_string(size), plain + '/' + std::to_string(size),
                              size == Sizes.back() ? goal : std::nullopt});
    };
    besidePlain("open", "plainRead", 4);
    besidePlain("open", "plainReadTexts");
    besidePlain("save", "plainWrite");
    besidePlain("save", "plainWriteNew", 3);
    for (const std::string what : {"existHit", "existMiss", "searchHit", "searchMiss"}) {
        besidePlain(what, what.ends_with("Hit") ? "plainScanHit" : "plainScanMiss");
        ratios.push_back({what + "/32000", what + "/100", 3});
    }
    besidePlain("firstSearch", "plainScanMiss");
    besidePlain("add", "plainAdd");
    besidePlain("remove", "plainRemove");
    const std::array<Limit, 2> limits{{{"save/32000", 150}, {"firstSearch/32000", 5}}};
    return runBenchmarks(argc, argv, ratios, limits);
}
