// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a list file. Its texts are at the offsets that the lengths give, or the file is refused
// for its count. Written and read again, the list is the same.
#include "Fuzzing.h"
#include "core/ListFile.h"
#include "runtime/Windows1252.h"

#include <cstdint>
#include <optional>

namespace {

// Low, so that each input is fast.
constexpr int MaxCount = 20;

using Records = std::vector<VocabRecord>;

// The texts of the entries may be views of these bytes.
VocabRecord copyOf(const VocabRecord &record)
{
    const auto copied = [](const QString &text) { return QString(text.constData(), text.size()); };
    return {copied(record.Word), copied(record.Definition), copied(record.Sentence)};
}

// The records in the bytes; nothing if their count is refused. `isWhole`: the bytes hold them all.
std::optional<Records> recordsIn(QByteArrayView bytes, bool *isWhole = nullptr)
{
    try {
        const ListFile::Content content = ListFile::decode(bytes, MaxCount);
        Records records(content.records.size());
        if (isWhole != nullptr)
            *isWhole = content.isWhole;
        std::transform(content.records.begin(), content.records.end(), records.begin(), copyOf);
        return records;
    } catch (const RunTimeError &error) {
        require(error.number() == RunTimeError::SubscriptOutOfRange);
        return std::nullopt;
    }
}

// Beyond the end the number is zero.
std::uint16_t numberAt(QByteArrayView bytes, qsizetype offset)
{
    if (offset + 2 > bytes.size())
        return 0;
    const auto low = static_cast<unsigned char>(bytes[offset]);
    const auto high = static_cast<unsigned char>(bytes[offset + 1]);
    return static_cast<std::uint16_t>(low | high << 8);
}

// Checks the text that begins at the offset. Returns where the next one begins.
qsizetype checkText(const QString &text, QByteArrayView bytes, qsizetype at)
{
    const qsizetype start = std::min(at + 2, bytes.size());
    const qsizetype length = std::min<qsizetype>(numberAt(bytes, at), bytes.size() - start);
    require(text == fromWindows1252(bytes.sliced(start, length)));
    return start + length;
}

bool isSame(const VocabRecord &a, const VocabRecord &b)
{
    return a.Word == b.Word && a.Definition == b.Definition && a.Sentence == b.Sentence;
}

bool areSame(const Records &a, const Records &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), isSame);
}

void checkRecords(const Records &records, QByteArrayView bytes, bool isWhole)
{
    qsizetype at = 2;
    qsizetype wanted = 2; // bytes that the whole list takes
    for (const VocabRecord &record : records) {
        for (const QString *text : {&record.Word, &record.Definition, &record.Sentence}) {
            wanted += 2 + numberAt(bytes, at);
            at = checkText(*text, bytes, at);
        }
    }
    require(isWhole == (wanted <= bytes.size() || bytes.isEmpty()));

    const QByteArray written = ListFile::encode(records.size(), records);
    const std::optional<Records> again = recordsIn(written);
    require(again && areSame(records, *again));
    // If bytes are left over, no text was cut off and the file starts with the same bytes.
    if (at < bytes.size())
        require(written == bytes.first(at));
}

// If the reader says that a start of the file is enough, it gives the same records.
void checkStart(QByteArrayView start, const std::optional<Records> &records)
{
    if (!ListFile::RecordsEnd(MaxCount).isIn(start))
        return;
    const std::optional<Records> early = recordsIn(start);
    require(early.has_value() == records.has_value());
    require(!early || areSame(*early, *records));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const auto count = static_cast<std::int16_t>(numberAt(bytes, 0));
    bool isWhole = false;
    const std::optional<Records> records = recordsIn(bytes, &isWhole);
    require(records.has_value() == (count >= 0 && count <= MaxCount));
    if (records) {
        require(records->size() == std::size_t(count));
        checkRecords(*records, bytes, isWhole);
        if (size >= 2)
            require(ListFile::RecordsEnd(MaxCount).isIn(bytes) == isWhole);
    }
    if (size > 0)
        checkStart(bytes.first(qsizetype(size * data[size - 1] / 256)), records);
    return 0;
}
