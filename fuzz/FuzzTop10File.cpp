// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a Top 10 file. Its rows are at the offsets that the lengths give. Written and read again,
// the table is the same.
#include "Fuzzing.h"
#include "game/Top10File.h"
#include "runtime/Windows1252.h"

#include <bit>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace {

// The table before it is read.
const Top10Table &defaults()
{
    static const Top10Table table = [] {
        Top10Table rows;
        rows.fill({QDate(2000, 1, 1), QStringLiteral("default"), 7});
        return rows;
    }();
    return table;
}

bool isSame(const Top10Entry &a, const Top10Entry &b)
{
    return a.EntryDate == b.EntryDate && a.PlayerName == b.PlayerName && a.Points == b.Points;
}

// Beyond the end the number is zero.
std::uint64_t numberAt(std::string_view bytes, std::size_t offset, std::size_t size)
{
    std::uint64_t number = 0;
    if (offset + size <= bytes.size())
        for (std::size_t i = size; i > 0; --i)
            number = number << 8 | static_cast<unsigned char>(bytes[offset + i - 1]);
    return number;
}

void requireDate(QDate date, double days)
{
    using namespace std::chrono;
    constexpr sys_days dayZero = 1899y / December / 30;
    const double wholeDays = std::trunc(days);
    const double first = (sys_days(100y / January / 1) - dayZero).count();
    const double last = (sys_days(9999y / December / 31) - dayZero).count();
    require(date.isValid() == (wholeDays >= first && wholeDays <= last));
    if (!date.isValid())
        return;
    const year_month_day expected = dayZero + std::chrono::days(int(wholeDays));
    require(date.year() == int(expected.year()) &&
            unsigned(date.month()) == unsigned(expected.month()) &&
            unsigned(date.day()) == unsigned(expected.day()));
}

// Checks the row that begins at the offset. Returns where the next one begins.
std::size_t checkRow(const Top10Entry &row, std::string_view bytes, std::size_t at)
{
    requireDate(row.EntryDate, std::bit_cast<double>(numberAt(bytes, at, 8)));
    const std::size_t name = std::min(at + 10, bytes.size());
    const std::size_t length =
        std::min(std::size_t(numberAt(bytes, at + 8, 2)), bytes.size() - name);
    require(row.PlayerName == fromWindows1252(bytes.substr(name, length)));
    require(row.Points == std::bit_cast<std::int16_t>(
                              static_cast<std::uint16_t>(numberAt(bytes, name + length, 2))));
    return name + length + 2;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const QByteArrayView bytes = bytesOf(data, size);
    const Top10Table table = Top10File::decode(bytes, defaults());
    std::size_t at = 0;
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (at >= size)
            require(isSame(table[i], defaults()[i]));
        else
            at = checkRow(table[i], {bytes.data(), size}, at);
    }
    const QByteArray written = Top10File::encode(table);
    const Top10Table again = Top10File::decode(written, defaults());
    require(std::equal(table.begin(), table.end(), again.begin(), isSame));
    return 0;
}
