// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Windows1252.h"

#include <algorithm>
#include <array>

namespace {

// The characters of the bytes from 80 to 9F. Every other byte has the number of its character.
constexpr char16_t FirstInTable = 0x80;
constexpr std::array<char16_t, 32> Table{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

bool isInTable(char16_t number)
{
    return (number & 0xFFE0U) == FirstInTable;
}

// How many units the character at i has: 2 for a surrogate pair.
qsizetype sizeOfCharacter(QStringView text, qsizetype i)
{
    const bool isPair =
        text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
    return isPair ? 2 : 1;
}

char byteFromTable(char16_t character)
{
    const auto *const found = std::find(Table.begin(), Table.end(), character);
    return found == Table.end() ? '?' : static_cast<char>(FirstInTable + (found - Table.begin()));
}

bool hasByte(char16_t character)
{
    return (character <= 0xFF && !isInTable(character)) || byteFromTable(character) != '?';
}

} // namespace

QByteArray toWindows1252(QStringView text)
{
    QByteArray bytes(text.size(), Qt::Uninitialized);
    bytes.truncate(toWindows1252(text, bytes.data()));
    return bytes;
}

qsizetype toWindows1252(QStringView text, char *buffer)
{
    char *out = buffer;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const char16_t character = text[i].unicode();
        if (character <= 0xFF && !isInTable(character)) {
            *out++ = static_cast<char>(character);
            continue;
        }
        *out++ = byteFromTable(character);
        i += sizeOfCharacter(text, i) - 1; // a surrogate pair is one "?"
    }
    return out - buffer;
}

bool isInWindows1252(char16_t unit)
{
    return hasByte(unit);
}

QStringList notInWindows1252(QStringView text, int most)
{
    QStringList characters;
    for (qsizetype i = 0; i < text.size() && characters.size() < most;) {
        const qsizetype size = sizeOfCharacter(text, i);
        if (!hasByte(text[i].unicode())) {
            const QString character = text.mid(i, size).toString();
            if (!characters.contains(character))
                characters += character;
        }
        i += size;
    }
    return characters;
}

// A list file has bytes of the table in few places only: rare characters, and lengths in front of
// the texts. The compiler vectorises the first loop, because it has no exit, so that blocks without
// them cost next to nothing.
QString fromWindows1252(QByteArrayView bytes)
{
    constexpr qsizetype blockSize = 512;
    QString text = QString::fromLatin1(bytes);
    auto *const characters = reinterpret_cast<char16_t *>(text.data());
    for (qsizetype start = 0; start < text.size(); start += blockSize) {
        char16_t *const first = characters + start;
        char16_t *const end = characters + std::min(start + blockSize, text.size());
        unsigned anyInTable = 0;
        for (const char16_t *character = first; character < end; ++character)
            anyInTable |= isInTable(*character) ? 1U : 0U;
        if (anyInTable == 0)
            continue;
        for (char16_t *character = first; character < end; ++character)
            if (isInTable(*character))
                *character = Table[*character - FirstInTable];
    }
    return text;
}
