// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Blanking.h"

#include "runtime/Blanks.h"

#include <algorithm>
#include <array>
#include <optional>

namespace {

constexpr QLatin1String Blank("_____");
constexpr QLatin1String Delimiters(" .,;!?");
constexpr int LettersLeftOff = 2; // at most, from the end of the word

// The beginnings of a word that are looked for, in this order.
using Forms = std::array<QString, 3>;

// Letter by letter: QString::toUpper makes "SS" of a sharp s.
QString upperCase(QString text)
{
    for (QChar &character : text)
        character = character.toUpper();
    return text;
}

bool isDelimiter(QChar character)
{
    return Delimiters.contains(character);
}

// The length of the form found at the position; 0 = none.
qsizetype formAt(const QString &sentence, qsizetype position, const Forms &forms)
{
    const QStringView rest = QStringView(sentence).sliced(position);
    for (const QString &form : forms)
        if (rest.startsWith(form))
            return form.size();
    return 0;
}

// Nothing if no word of the sentence begins with one of the forms.
std::optional<QString> blanked(const QString &sentence, const Forms &forms)
{
    std::optional<QString> result;
    QString shown;
    qsizetype scanned = 0; // all before it is in `shown`
    for (qsizetype i = 0; i < sentence.size();) {
        const bool wordStart = i == scanned || isDelimiter(sentence[i - 1]);
        const qsizetype length = wordStart ? formAt(sentence, i, forms) : 0;
        if (length == 0) {
            ++i;
            continue;
        }
        shown += QStringView(sentence).sliced(scanned, i - scanned);
        shown += Blank;
        scanned = std::find_if(sentence.cbegin() + i + length, sentence.cend(), isDelimiter) -
                  sentence.cbegin();
        i = scanned;
        result = shown;
    }
    if (result)
        *result += QStringView(sentence).sliced(scanned);
    return result;
}

} // namespace

QString blankedSentence(const QString &sentence, const QString &storedWord)
{
    const QString word = withoutOuterBlanks(storedWord);
    const QString capitalised = upperCase(word.left(1)) + word.mid(1);
    const qsizetype shortestStem = std::max<qsizetype>(1, word.size() - LettersLeftOff);
    for (qsizetype length = word.size(); length >= shortestStem; --length) {
        const QString stem = word.left(length);
        if (const auto result = blanked(sentence, {capitalised, stem, upperCase(stem)}))
            return *result;
    }
    return sentence;
}
