// SPDX-License-Identifier: GPL-3.0-or-later
// Functions for all fuzzers: a check, and texts made from any bytes.
#pragma once

#include <QByteArrayView>
#include <QString>

#include <algorithm>
#include <cstdlib>
#include <string>

// If it fails, libFuzzer ends the run and keeps the input.
inline void require(bool condition)
{
    if (!condition)
        std::abort();
}

inline QByteArrayView bytesOf(const unsigned char *data, std::size_t size)
{
    return {data, qsizetype(size)};
}

inline void appendCharacter(std::u16string &text, char32_t character)
{
    if (character < 0x10000) {
        text += static_cast<char16_t>(character);
        return;
    }
    const char32_t offset = std::min<char32_t>(character, 0x10FFFF) - 0x10000;
    text += static_cast<char16_t>(0xD800 + (offset >> 10));
    text += static_cast<char16_t>(0xDC00 + (offset & 0x3FF));
}

// Reads UTF-8, so that seeds can be written by hand, also with half a surrogate pair. A byte that
// is not UTF-8 becomes the character of its number, so that any bytes are a text.
inline std::u16string textOf(QByteArrayView bytes)
{
    std::u16string text;
    text.reserve(std::size_t(bytes.size()));
    for (qsizetype i = 0; i < bytes.size();) {
        const auto first = static_cast<unsigned char>(bytes[i++]);
        int following = first < 0xC0 || first > 0xF4 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
        if (following > bytes.size() - i)
            following = 0;
        char32_t character = following == 0 ? first : first & (0x3FU >> following);
        for (; following > 0; --following)
            character = character << 6 | (static_cast<unsigned char>(bytes[i++]) & 0x3FU);
        appendCharacter(text, character);
    }
    return text;
}
