// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypedWord.h"

#include "platform/OneLineBox.h"
#include "runtime/Blanks.h"

#include <algorithm>

namespace {

bool isFormat(QChar character)
{
    return character.category() == QChar::Other_Format;
}

QString typeable(QString text)
{
    const auto hasNoKey = [](QChar character) {
        const QChar::Category category = character.category();
        return category == QChar::Other_Control || category == QChar::Separator_Line ||
               category == QChar::Separator_Paragraph || character == QChar::Nbsp;
    };
    text.replace(QStringLiteral("\r\n"), QStringLiteral(" "));
    std::replace_if(text.begin(), text.end(), hasNoKey, QChar(QLatin1Char(' ')));
    return withoutOuterBlanks(text);
}

} // namespace

bool isWord(const QString &typed, const QString &word)
{
    const QString given = withoutOuterBlanks(typed);
    return given == withoutOuterBlanks(word) || given == withoutOuterBlanks(oneLine(word)) ||
           given == typeable(word);
}

bool isWordTypedAgain(const QString &typed, const QString &word)
{
    const auto withBlanks = [&word](auto isBlank) {
        QString text = word;
        std::replace_if(text.begin(), text.end(), isBlank, QChar(QLatin1Char(' ')));
        return text;
    };
    const auto isOtherBlank = [](QChar character) {
        return character.category() == QChar::Separator_Space || isFormat(character);
    };
    QString visible = word;
    visible.removeIf(isFormat);
    return isWord(typed, word) || isWord(typed, withBlanks(isOtherBlank)) ||
           isWord(typed, visible) || isWord(typed, withBlanks(mayLackAKey));
}

bool mayLackAKey(QChar character)
{
    return character.unicode() > 0x7E;
}
