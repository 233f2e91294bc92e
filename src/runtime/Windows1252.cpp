// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Windows1252.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>

namespace {

struct Tables
{
    std::array<char16_t, 256> toUnicode{};
    std::array<char, 65536> fromUnicode{};

    Tables()
    {
        UErrorCode status = U_ZERO_ERROR;
        const std::unique_ptr<UConverter, decltype(&ucnv_close)> converter(
            ucnv_open("windows-1252", &status), ucnv_close);
        std::array<char, 256> bytes{};
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<char>(i);
        if (U_SUCCESS(status)) {
            // One unit more than the text, so that ICU can end it without a warning.
            std::array<char16_t, 257> characters{};
            ucnv_toUChars(converter.get(), characters.data(), int(characters.size()), bytes.data(),
                          int(bytes.size()), &status);
            std::copy_n(characters.begin(), toUnicode.size(), toUnicode.begin());
        }
        if (U_FAILURE(status))
            throw std::runtime_error("ICU has no converter for windows-1252");
        fromUnicode.fill('?');
        for (std::size_t i = 0; i < bytes.size(); ++i)
            fromUnicode[toUnicode[i]] = bytes[i];
    }
};

const Tables &tables()
{
    static const Tables tables;
    return tables;
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
    const auto &map = tables().fromUnicode;
    char *out = buffer;
    for (qsizetype i = 0; i < text.size(); ++i) {
        *out++ = map[text[i].unicode()];
        // A surrogate pair is one character and so one "?".
        if (text[i].isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate())
            ++i;
    }
    return out - buffer;
}

// Latin-1 but for the 32 bytes from 80 on, which most stretches of a text have none of.
QString fromWindows1252(QByteArrayView bytes)
{
    constexpr qsizetype stretch = 512;
    const auto &map = tables().toUnicode;
    QString text = QString::fromLatin1(bytes);
    auto *const characters = reinterpret_cast<char16_t *>(text.data());
    const auto differs = [](char16_t character) { return (character & 0xFFE0U) == 0x80; };
    for (qsizetype start = 0; start < text.size(); start += stretch) {
        char16_t *const first = characters + start;
        char16_t *const end = characters + std::min(start + stretch, text.size());
        unsigned any = 0;
        for (const char16_t *character = first; character < end; ++character)
            any |= differs(*character) ? 1U : 0U;
        if (any == 0)
            continue;
        for (char16_t *character = first; character < end; ++character)
            if (differs(*character))
                *character = map[*character];
    }
    return text;
}
