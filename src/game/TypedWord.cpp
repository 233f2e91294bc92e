// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypedWord.h"

#include "platform/OneLineBox.h"
#include "runtime/Blanks.h"

#include <algorithm>

namespace {

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
