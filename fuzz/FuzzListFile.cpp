// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are a word list, the one that going through them by offsets says, or are refused for
// their count; what was read writes and reads as the same list.
#include "Fuzzing.h"
#include "core/ListFile.h"
#include "runtime/Windows1252.h"

#include <cstdint>
#include <optional>

namespace {

// Low, for the speed of an input.
constexpr int MaxCount = 20;

using Records = std::vector<VocabRecord>;

// The texts of what was read may be views of it.
VocabRecord copyOf(const VocabRecord &record)
{
    const auto copied = [](const QString &text) { return QString(text.constData(), text.size()); };
    return {copied(record.Word), copied(record.Definition), copied(record.Sentence)};
}

// The records in the bytes; nothing where their count is refused.
std::optional<Records> recordsIn(QByteArrayView bytes)
{
    try {
        const ListFile::Content content = ListFile::decode(bytes, MaxCount);
        Records records(content.records.size());
        std::transform(content.records.begin(), content.records.end(), records.begin(), copyOf);
        return records;
    } catch (const RunTimeError &error) {
        require(error.number() == RunTimeError::SubscriptOutOfRange);
        return std::nullopt;
    }
}

// Nothing beyond the end: the number is zero then.
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

void checkRecords(const Records &records, QByteArrayView bytes)
{
    qsizetype at = 2;
    for (const VocabRecord &record : records)
        for (const QString *text : {&record.Word, &record.Definition, &record.Sentence})
            at = checkText(*text, bytes, at);

    const QByteArray written = ListFile::encode(records.size(), records);
    const std::optional<Records> again = recordsIn(written);
    require(again &&
            std::equal(records.begin(), records.end(), again->begin(), again->end(), isSame));
    // Where bytes are left over no text was cut off: the file begins with those very bytes.
    if (at < bytes.size())
        require(written == bytes.first(at));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const auto count = static_cast<std::int16_t>(numberAt(bytes, 0));
    const std::optional<Records> records = recordsIn(bytes);
    require(records.has_value() == (count >= 0 && count <= MaxCount));
    if (records) {
        require(records->size() == std::size_t(count));
        checkRecords(*records, bytes);
    }
    return 0;
}
