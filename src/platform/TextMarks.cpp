// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TextMarks.h"

#include "platform/Appearance.h"
#include "runtime/Windows1252.h"

#include <algorithm>

QList<TextRange> lostCharacters(QStringView text, qsizetype most)
{
    const auto isKept = [](QChar character) { return isInWindows1252(character.unicode()); };
    QList<TextRange> runs;
    for (const auto *end = text.begin(); runs.size() < most;) {
        const auto *const start = std::find_if_not(end, text.end(), isKept);
        if (start == text.end())
            break;
        // A combining mark has no width of its own: it is marked with the character below it.
        auto first = start;
        while (first != text.begin() && first->isMark())
            --first;
        end = std::find_if(start, text.end(), isKept);
        runs += {int(first - text.begin()), int(end - first)};
    }
    return runs;
}

namespace {

// A character that cannot be seen by itself is named by its number.
QString visibleName(const QString &character)
{
    const char32_t code = character.toUcs4().constFirst();
    switch (QChar::category(code)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_SpacingCombining:
    case QChar::Mark_Enclosing:
    case QChar::Separator_Space:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
        return QStringLiteral("U+%1").arg(uint(code), 4, 16, QLatin1Char('0')).toUpper();
    default:
        return character;
    }
}

} // namespace

QString lostCharactersText(QStringView text)
{
    constexpr int most = 8; // that are named
    QStringList characters = notInWindows1252(text, most + 1);
    if (characters.isEmpty())
        return {};
    std::transform(characters.begin(), characters.end(), characters.begin(), visibleName);
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
