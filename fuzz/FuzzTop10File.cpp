// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes are a Top 10 table.
#include "game/Top10File.h"

#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    constexpr qsizetype emptyRow = 12;
    const QDate day(2000, 1, 1);
    Top10Table defaults = emptyTop10(day);
    for (Top10Entry &entry : defaults)
        entry.PlayerName = QStringLiteral("default");
    const Top10Table table = Top10File::decode(QByteArrayView(data, qsizetype(size)), defaults);

    auto rest = qsizetype(size); // of the bytes, when each row is taken off them
    for (const Top10Entry &entry : table) {
        if (rest <= 0) {
            require(entry.EntryDate == day && entry.PlayerName == QStringLiteral("default") &&
                    entry.Points == 0);
            continue;
        }
        require(!entry.EntryDate.isValid() ||
                (entry.EntryDate.year() >= 100 && entry.EntryDate.year() <= 9999));
        require(entry.PlayerName.size() <= std::max<qsizetype>(0, rest - 10));
        rest -= emptyRow + entry.PlayerName.size();
    }
    return 0;
}
