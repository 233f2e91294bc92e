// SPDX-License-Identifier: GPL-3.0-or-later
#include "SampleList.h"

#include "core/Module1.h"
#include "core/cVocabList.h"

#include <QDir>
#include <QTemporaryDir>

#include <array>
#include <random>
#include <stdexcept>

namespace {

// All syllables but the last have fixed lengths, so each combination is a different word.
constexpr std::array<const char16_t *, 32> First{
    u"bar",      u"cal",      u"del", u"fer", u"gal", u"hum", u"jor", u"ken",
    u"lum",      u"mar",      u"nor", u"pal", u"ref", u"sal", u"ter", u"val",
    u"bri",      u"cre",      u"dro", u"fle", u"gri", u"pro", u"sta", u"tra",
    u"tw\u00ED", u"cl\u00E9", u"Ble", u"Gra", u"Pla", u"Spi", u"Tri", u"Sto"};
constexpr std::array<const char16_t *, 32> Middle{
    u"ba", u"ce", u"di", u"fo", u"gu", u"ha", u"je", u"ki", u"lo",      u"mu", u"na",
    u"pe", u"ri", u"so", u"tu", u"va", u"be", u"ci", u"do", u"fu",      u"ga", u"he",
    u"li", u"mo", u"nu", u"pa", u"re", u"si", u"to", u"vu", u"\u00E8s", u"an"};
constexpr std::array<const char16_t *, 32> Last{
    u"tion", u"ment", u"ness", u"ly",   u"er",  u"ist", u"ous",  u"ble",  u"ful",  u"ance", u"ity",
    u"ish",  u"ate",  u"ward", u"ship", u"ism", u"al",  u"ic",   u"ed",   u"ing",  u"age",  u"dom",
    u"hood", u"less", u"like", u"some", u"th",  u"ure", u"wise", u"work", u"yard", u"fold"};

constexpr std::array<const char16_t *, 8> Kinds{
    u"a small animal", u"a sharp tool",      u"a kind of stone", u"the feeling",
    u"a person",       u"a way of speaking", u"an old custom",   u"a bright colour"};
constexpr std::array<const char16_t *, 8> Traits{
    u"that is found near the sea", u"that few people have seen", u"known for its great strength",
    u"used by farmers in spring",  u"of someone who waits",      u"that comes before the rain",
    u"which needs much patience",  u"from the far north"};
constexpr std::array<const char16_t *, 8> Openings{
    u"My brother told me about the ", u"Nobody at school expected the ",
    u"On the way home we met the ",   u"The museum has put the ",
    u"She wrote a letter about the ", u"All through the winter the ",
    u"They could not agree on the ",  u"Every visitor asked for the "};
constexpr std::array<const char16_t *, 8> Ends{
    u" yesterday.",        u" in the garden.",   u" once more.",     u" behind the house.",
    u" before breakfast.", u" with great care.", u" by the window.", u" at last."};

QString text(const char16_t *characters)
{
    return QString::fromUtf16(characters);
}

} // namespace

std::vector<VocabRecord> SampleList::entries(int count)
{
    std::mt19937 random(1); // the same lists in every run
    const auto oneOf = [&random](const auto &texts) { return text(texts[random() % 8]); };
    std::vector<VocabRecord> entries;
    entries.reserve(static_cast<std::size_t>(count));
    for (unsigned i = 0; i < static_cast<unsigned>(count); ++i) {
        // An odd factor reaches all 2^15 combinations, not in alphabetical order.
        const unsigned number = i * 20'021U % (1U << 15U);
        const QString word = text(First[number >> 10U]) + text(Middle[number >> 5U & 31U]) +
                             text(Last[number & 31U]);
        const QString definition = oneOf(Kinds) + QLatin1Char(' ') + oneOf(Traits);
        entries.push_back({word, definition, oneOf(Openings) + word + oneOf(Ends)});
    }
    return entries;
}

QString SampleList::file(int count)
{
    static const QTemporaryDir folder(QDir::current().filePath(QStringLiteral("bench-XXXXXX")));
    if (!folder.isValid())
        throw std::runtime_error("The current folder admits no files");
    QString path = folder.filePath(QStringLiteral("%1.lwx").arg(count));
    if (!QFile::exists(path)) {
        cVocabList list;
        for (const VocabRecord &entry : entries(count))
            list.AddVocab(entry.Word, entry.Definition, entry.Sentence);
        Module1::gFileName = path;
        list.SaveFile();
    }
    return path;
}
