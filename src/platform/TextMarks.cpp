// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TextMarks.h"

#include "platform/Appearance.h"
#include "runtime/Windows1252.h"

#include <algorithm>

QList<TextRange> lostCharacters(QStringView text, qsizetype most)
{
    const auto isKept = [](QChar character) { return isInWindows1252(character.unicode()); };
    QList<TextRange> runs;
    for (auto end = text.begin(); runs.size() < most;) {
        const auto start = std::find_if_not(end, text.end(), isKept);
        if (start == text.end())
            break;
        end = std::find_if(start, text.end(), isKept);
        runs += {int(start - text.begin()), int(end - start)};
    }
    return runs;
}

QString lostCharactersText(QStringView text)
{
    constexpr int most = 8; // that are named
    QStringList characters = notInWindows1252(text, most + 1);
    if (characters.isEmpty())
        return {};
    if (characters.size() > most)
        characters.last() = QStringLiteral("…");
    return QStringLiteral("This list cannot keep: ") + characters.join(QStringLiteral(", "));
}

QTextCharFormat lostCharactersFormat(const QPalette &palette)
{
    QTextCharFormat format;
    format.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    format.setUnderlineColor(isDark(palette) ? QColor(0xFF, 0x8A, 0x80) : QColor(0xC0, 0x20, 0x20));
    return format;
}

QTextCharFormat differenceFormat(const QPalette &palette)
{
    constexpr float tint = 0.18F;
    QTextCharFormat format;
    QColor background = accentColour(palette);
    format.setUnderlineStyle(QTextCharFormat::SingleUnderline);
    format.setUnderlineColor(background);
    background.setAlphaF(tint);
    format.setBackground(background);
    return format;
}
