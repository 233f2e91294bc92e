// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes become the characters of the code page and come back as the same bytes; texts become
// bytes, one for each character.
#include "Fuzzing.h"
#include "runtime/Windows1252.h"

#include <array>
#include <vector>

namespace {

// The characters of the bytes 80 to 9F. Each other byte is the character of the same number.
constexpr std::array<char16_t, 32> Middle{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char16_t characterOf(unsigned char byte)
{
    return byte < 0x80 || byte > 0x9F ? byte : Middle[byte - 0x80U];
}

char byteOf(char16_t character)
{
    if (character < 0x80 || (character > 0x9F && character < 0x100))
        return static_cast<char>(character);
    const auto *const found = std::find(Middle.begin(), Middle.end(), character);
    return found == Middle.end() ? '?' : static_cast<char>(0x80 + (found - Middle.begin()));
}

std::string bytesOfText(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        bytes += byteOf(text[i]);
        const bool isPair = i + 1 < text.size() && (text[i] & 0xFC00U) == 0xD800U &&
                            (text[i + 1] & 0xFC00U) == 0xDC00U;
        i += isPair ? 1 : 0;
    }
    return bytes;
}

void checkReading(QByteArrayView bytes)
{
    const QString text = fromWindows1252(bytes);
    require(text.size() == bytes.size());
    for (qsizetype i = 0; i < bytes.size(); ++i)
        require(text[i] == QChar(characterOf(static_cast<unsigned char>(bytes[i]))));
    require(toWindows1252(text) == bytes);
}

void checkWriting(const std::u16string &text)
{
    const std::string expected = bytesOfText(text);
    require(QByteArrayView(toWindows1252(QStringView(text))) == QByteArrayView(expected));

    static std::vector<char> buffer;
    buffer.assign(text.size() + 1, '#');
    const auto written = std::size_t(toWindows1252(QStringView(text), buffer.data()));
    require(std::string_view(buffer.data(), written) == expected && buffer.back() == '#');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    checkReading(bytes);
    checkWriting(textOf(bytes));
    return 0;
}
