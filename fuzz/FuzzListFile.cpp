// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are a word list or are refused; what was read writes and reads as the same list.
#include "core/ListFile.h"

#include <cstdlib>

namespace {

// Low, for the speed of an input.
constexpr int MaxCount = 300;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

bool isSame(const VocabRecord &a, const VocabRecord &b)
{
    return a.Word == b.Word && a.Definition == b.Definition && a.Sentence == b.Sentence;
}

void check(QByteArrayView bytes)
{
    const ListFile::Content content = ListFile::decode(bytes, MaxCount);
    const std::vector<VocabRecord> &records = content.records;
    require(records.size() <= std::size_t(MaxCount));
    qsizetype characters = 0;
    for (const VocabRecord &record : records)
        characters += record.Word.size() + record.Definition.size() + record.Sentence.size();
    require(characters <= bytes.size());

    const QByteArray written = ListFile::encode(records.size(), records);
    const ListFile::Content second = ListFile::decode(written, MaxCount);
    const std::vector<VocabRecord> &again = second.records;
    require(std::equal(records.begin(), records.end(), again.begin(), again.end(), isSame));
    // Where bytes are left over no field was cut off: the file begins with those very bytes.
    if (written.size() < bytes.size())
        require(written == bytes.first(written.size()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes(data, qsizetype(size));
    try {
        check(bytes);
    } catch (const RunTimeError &error) {
        // Refused for its count alone.
        require(error.number() == RunTimeError::SubscriptOutOfRange && size >= 2);
        const int count = static_cast<qint16>(data[0] | data[1] << 8);
        require(count < 0 || count > MaxCount);
    }
    return 0;
}
