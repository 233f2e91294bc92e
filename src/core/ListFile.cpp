// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/ListFile.h"

#include "runtime/ByteReader.h"

#include <QtEndian>

#include <limits>
#include <optional>

namespace {

using Length = quint16;

// Returns where the next text goes.
char *putText(char *out, const QString &text, std::size_t recordNumber)
{
    const qsizetype length = toWindows1252(text, out + sizeof(Length));
    if (length > std::numeric_limits<Length>::max())
        throw RunTimeError(
            RunTimeError::Overflow,
            QStringLiteral("A text of word %1 is longer than 65535 characters").arg(recordNumber));
    qToLittleEndian(static_cast<Length>(length), out);
    return out + sizeof(Length) + length;
}

bool isCount(Integer count, Integer maxCount)
{
    return count >= 0 && count <= maxCount;
}

// Where the records end; nothing where they run past the end of the bytes.
std::optional<qsizetype> endOfRecords(QByteArrayView bytes)
{
    ByteReader reader(bytes);
    const int texts = 3 * reader.number<qint16>();
    for (int text = 0; text < texts && !reader.ranOut(); ++text)
        static_cast<void>(reader.textBytes());
    return reader.ranOut() ? std::nullopt : std::optional(bytes.size() - reader.left());
}

} // namespace

QByteArray ListFile::encode(Integer count, std::span<const VocabRecord> records)
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
            out = putText(out, *text, recordNumber);
    }
    bytes.truncate(out - bytes.constData()); // a surrogate pair takes less than its two units
    return bytes;
}

bool ListFile::holdsRecords(QByteArrayView start, Integer maxCount)
{
    return !isCount(ByteReader(start).number<qint16>(), maxCount) ||
           endOfRecords(start).has_value();
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
    const std::optional<qsizetype> end = endOfRecords(bytes);
    content.isWhole = end || bytes.isEmpty();
    content.characters = fromWindows1252(bytes.first(end.value_or(bytes.size())));
    content.records.resize(static_cast<std::size_t>(count.toInt()));
    const QChar *characters = content.characters.constData();
    for (VocabRecord &record : content.records) {
        for (QString *text : {&record.Word, &record.Definition, &record.Sentence}) {
            const QByteArrayView span = reader.textBytes();
            *text = QString::fromRawData(characters + (span.data() - bytes.data()), span.size());
        }
    }
    return content;
}
