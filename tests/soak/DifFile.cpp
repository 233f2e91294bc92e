// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/DifFile.h"

#include "runtime/Windows1252.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray quoted(const QString &text)
{
    return '"' + toWindows1252(text) + '"';
}

} // namespace

DifFile someDifFile(Soak &soak, Entry before)
{
    const int values = 1 + soak.roll(3);
    QByteArrayList lines{"TABLE", "0,1",  "\"\"",   "VECTORS",
                         "0,3",   "\"\"", "TUPLES", "0," + QByteArray::number(values),
                         "\"\"",  "DATA", "0,0",    "\"\"",
                         "-1,0"};
    DifFile file;
    for (int rows = soak.roll(12); rows > 0; --rows) {
        before.word = fromWindows1252(toWindows1252(soak.word()));
        lines << "BOT"
              << "1,0" << quoted(before.word);
        if (values > 1) {
            const QString text = u"text %1"_s.arg(rows);
            (values == 2 ? before.definition : before.sentence) = text;
            lines << "1,0" << quoted(text);
        }
        file.words.push_back(before);
    }
    switch (soak.roll(6)) {
    case 0: // cut off after its last row
        file.error = 9;
        break;
    case 1: // a number in the place of a text
        lines << "BOT"
              << "0,5"
              << "V";
        file.error = 5;
        break;
    case 2:
        lines = {"TABLE", "0,1"};
        file.error = 9;
        file.isRefused = true;
        break;
    case 3:
        lines[7] = "0,many";
        file.error = 13;
        file.isRefused = true;
        break;
    default:
        lines << "EOD";
        // EOD in the first line of the data is not noticed.
        file.error = file.words.empty() ? 9 : 0;
    }
    file.bytes = lines.join("\r\n") + "\r\n";
    return file;
}
