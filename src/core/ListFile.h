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

// What happens to a text of more than 65,535 bytes: RunTimeError Overflow, naming the record, or
// only the start of the text is kept.
enum class LongTexts { AreErrors, AreCut };

// The count, then every record given.
[[nodiscard]] QByteArray encode(Integer count, std::span<const VocabRecord> records,
                                LongTexts longTexts = LongTexts::AreErrors);

// One block for all texts of a file takes a fraction of the time and room of a block for each.
struct Content
{
    QString characters;
    // Their texts are views of `characters`, good for as long as that lives: what leaves the list
    // must be copied.
    std::vector<VocabRecord> records;
    // The records did not run past the end. So they are in an empty file, a list without entries.
    bool isWhole = true;
};

// Looks for the end of the records in a file that is read piece by piece.
class RecordsEnd
{
public:
    explicit RecordsEnd(Integer maxCount) : m_maxCount(maxCount) {}

    // Whether the start of the file holds the N records, or an N that decode refuses. Each start
    // has to begin with the one given before: the search goes on where that ended.
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
