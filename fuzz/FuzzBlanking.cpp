// SPDX-License-Identifier: GPL-3.0-or-later
// Input: a word, a line feed and a sentence. The sentence is blanked as the plainest way does it.
#include "Fuzzing.h"
#include "game/Blanking.h"

#include <array>
#include <optional>

namespace {

using Text = std::u16string;
using TextView = std::u16string_view;
using Forms = std::array<Text, 3>;

constexpr TextView Blank = u"_____";
constexpr TextView Delimiters = u" .,;!?";

Text upperCase(TextView text)
{
    Text upper(text);
    for (char16_t &unit : upper)
        unit = QChar(unit).toUpper().unicode();
    return upper;
}

// The length of the word form at the start of the text; 0 if there is none.
std::size_t formLength(TextView text, const Forms &forms)
{
    for (const Text &form : forms)
        if (text.starts_with(form))
            return form.size();
    return 0;
}

// Goes through the sentence word by word. Only for forms without a delimiter.
std::optional<Text> blankedWordByWord(TextView sentence, const Forms &forms)
{
    Text shown;
    bool any = false;
    for (std::size_t start = 0; start < sentence.size();) {
        const std::size_t end =
            std::min(sentence.find_first_of(Delimiters, start), sentence.size());
        const TextView word = sentence.substr(start, end - start);
        const bool begins = formLength(word, forms) > 0;
        any |= begins;
        shown += begins ? Blank : word;
        shown += sentence.substr(end, 1);
        start = end + 1;
    }
    return any ? std::optional(shown) : std::nullopt;
}

// Blanks the first word that begins with a form until there is none.
std::optional<Text> blankedFromTheLeft(TextView rest, const Forms &forms)
{
    Text shown;
    bool any = false;
    for (std::size_t at = 0; at < rest.size();) {
        const bool wordStart = at == 0 || Delimiters.find(rest[at - 1]) != TextView::npos;
        const std::size_t length = wordStart ? formLength(rest.substr(at), forms) : 0;
        if (length == 0) {
            ++at;
            continue;
        }
        shown += rest.substr(0, at);
        shown += Blank;
        rest.remove_prefix(std::min(rest.find_first_of(Delimiters, at + length), rest.size()));
        any = true;
        at = 0;
    }
    shown += rest;
    return any ? std::optional(shown) : std::nullopt;
}

Text blankedPlainly(TextView sentence, TextView word)
{
    while (word.starts_with(u' '))
        word.remove_prefix(1);
    while (word.ends_with(u' '))
        word.remove_suffix(1);
    for (std::size_t leftOff = 0; leftOff <= 2 && leftOff < word.size(); ++leftOff) {
        const TextView stem = word.substr(0, word.size() - leftOff);
        const Forms forms{upperCase(word.substr(0, 1)).append(word.substr(1)), Text(stem),
                          upperCase(stem)};
        const std::optional<Text> shown = blankedFromTheLeft(sentence, forms);
        if (word.find_first_of(Delimiters) == TextView::npos)
            require(shown == blankedWordByWord(sentence, forms));
        if (shown)
            return *shown;
    }
    return Text(sentence);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    const Text text = textOf(bytesOf(data, size));
    const std::size_t lineFeed = std::min(text.find(u'\n'), text.size());
    const TextView word = TextView(text).substr(0, lineFeed);
    const TextView sentence = TextView(text).substr(std::min(lineFeed + 1, text.size()));
    const QString shown =
        blankedSentence(QStringView(sentence).toString(), QStringView(word).toString());
    require(shown == QStringView(blankedPlainly(sentence, word)));
    return 0;
}
