// SPDX-License-Identifier: GPL-3.0-or-later
// Text of the program's files: one byte a character, code page Windows-1252.
//
// All 256 bytes round-trip. The five bytes that have no character (81 8D 8F 90 9D) are read as the
// control characters of the same number. A character that is not in the code page is written as
// one "?".
#pragma once

#include <QByteArray>
#include <QStringList>

[[nodiscard]] QByteArray toWindows1252(QStringView text);
// Into a buffer with room for text.size() bytes; returns how many were written.
[[nodiscard]] qsizetype toWindows1252(QStringView text, char *buffer);
[[nodiscard]] QString fromWindows1252(QByteArrayView bytes);
// False for both halves of a surrogate pair.
[[nodiscard]] bool isInWindows1252(char16_t unit);
// The characters of the text that are not in the code page, each once, in the text's order; no more
// than the first `most` of them.
[[nodiscard]] QStringList notInWindows1252(QStringView text, int most);
