// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ListFile.h"

#include "runtime/ByteReader.h"

#include <QtEndian>

#include <algorithm>
#include <limits>

namespace {

using Length = quint16;

// Returns where the next text goes.
char *putText(char *out, const QString &text, std::size_t recordNumber,
              ListFile::LongTexts longTexts)
{
    constexpr qsizetype longest = std::numeric_limits<Length>::max();
    qsizetype length = toWindows1252(text, out + sizeof(Length));
    if (length > longest && longTexts == ListFile::LongTexts::AreErrors)
        throw RunTimeError(
            RunTimeError::Overflow,
            QStringLiteral("A text of word %1 is longer than 65535 characters").arg(recordNumber));
    length = std::min(length, longest);
    qToLittleEndian(static_cast<Length>(length), out);
    return out + sizeof(Length) + length;
}

bool isCount(Integer count, Integer maxCount)
{
    return count >= 0 && count <= maxCount;
}

} // namespace

QByteArray ListFile::encode(Integer count, std::span<const VocabRecord> records,
                            LongTexts longTexts)
{
    qsizetype size = sizeof(qint16);
    for (const VocabRecord &record : records)
        size += qsizetype(3 * sizeof(Length)) + record.Word.size() + record.Definition.size() +
                record.Sentence.size();
    QByteArray bytes(size, Qt::Uninitialized);
    qToLittleEndian(static_cast<qint16>(count.toInt()), bytes.data());
    char *out = bytes.data() + sizeof(qint16);
    std::size_t recordNumber = 0;
    for (const VocabRecord &record : records) {
        ++recordNumber;
        for (const QString *text : {&record.Word, &record.Definition, &record.Sentence})
            out = putText(out, *text, recordNumber, longTexts);
    }
    bytes.truncate(out - bytes.constData()); // a surrogate pair takes less than its two units
    return bytes;
}

bool ListFile::RecordsEnd::isIn(QByteArrayView start)
{
    ByteReader reader(start.sliced(m_position));
    if (m_position == 0) {
        const Integer count = reader.number<qint16>();
        if (reader.ranOut())
            return false;
        m_position = sizeof(qint16);
        m_textsLeft = isCount(count, m_maxCount) ? 3 * count.toInt() : 0;
    }
    for (; m_textsLeft > 0; --m_textsLeft) {
        static_cast<void>(reader.textBytes());
        if (reader.ranOut())
            return false;
        m_position = start.size() - reader.left();
    }
    return true;
}

ListFile::Content ListFile::decode(QByteArrayView bytes, Integer maxCount)
{
    ByteReader reader(bytes);
    const Integer count = reader.number<qint16>();
    if (!isCount(count, maxCount))
        throw RunTimeError(
            RunTimeError::SubscriptOutOfRange,
            QStringLiteral("The file says that it holds %1 words; a list holds 0 to %2")
                .arg(count.toInt())
                .arg(maxCount.toInt()));
    Content content;
    content.characters = fromWindows1252(bytes);
    content.records.reserve(static_cast<std::size_t>(count.toInt()));
    const auto nextText = [&, characters = content.characters.constData()] {
        const QByteArrayView span = reader.textBytes();
        return QString::fromRawData(characters + (span.data() - bytes.data()), span.size());
    };
    for (int record = 0; record < count.toInt(); ++record)
        content.records.push_back({nextText(), nextText(), nextText()}); // in this order
    // Most files end with their records. The characters of the rest are not kept.
    if (reader.left() > 0)
        return decode(bytes.chopped(reader.left()), maxCount);
    content.isWhole = !reader.ranOut() || bytes.isEmpty();
    return content;
}
