// SPDX-License-Identifier: GPL-3.0-or-later
// The bytes of a word list file (extension lwx), to and from records.
//
//   offset  size
//   0       2     count N, signed
//   2       ...   N records or more, without padding; each is
//                   2 + L   Word        L: length in bytes, unsigned, then the text
//                   2 + L   Definition
//                   2 + L   Sentence
//
// Numbers are little-endian, texts are Windows-1252. There is no magic number, no terminator and
// no checksum. Bytes behind record N mean nothing: they may be a record that a deletion left in
// the storage, or the tail of an older, longer file.
#pragma once

#include "core/VocabRecord.h"
#include "runtime/Integer.h"

#include <QByteArray>

#include <span>
#include <vector>

namespace ListFile {

// A text of more than 65,535 bytes either throws RunTimeError Overflow, which names the record, or
// is cut.
enum class LongTexts { AreErrors, AreCut };

// The count, then every record given.
[[nodiscard]] QByteArray encode(Integer count, std::span<const VocabRecord> records,
                                LongTexts longTexts = LongTexts::AreErrors);

// All texts of a file are in one block of memory, which is faster and smaller than one for each.
struct Content
{
    QString characters;
    // Their texts are views of `characters` and valid as long as it exists. Copy a text before it
    // leaves the list.
    std::vector<VocabRecord> records;
    // False if the records run past the end of the file. An empty file is a list without entries.
    bool isWhole = true;
};

// Looks for the end of the records in a file that is read piece by piece.
class RecordsEnd
{
public:
    explicit RecordsEnd(Integer maxCount) : m_maxCount(maxCount) {}

    // True if the start of the file has all N records, or an N that decode refuses. Each start must
    // begin with the one of the call before; the search continues where that one ended.
    [[nodiscard]] bool isIn(QByteArrayView start);

private:
    Integer m_maxCount;
    qsizetype m_position = 0; // of the first text that has not been seen whole; 0 before N is known
    int m_textsLeft = 0;
};

// The N records. A field beyond the end is zero or empty; a text cut off keeps the bytes that are
// there. Throws RunTimeError SubscriptOutOfRange where N is negative or above `maxCount`.
[[nodiscard]] Content decode(QByteArrayView bytes, Integer maxCount);

} // namespace ListFile
