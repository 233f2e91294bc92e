// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Blanking.h"

#include <QRegularExpression>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

// The expected result for words of plain letters, found by a regular expression.
QString blankedByPattern(const QString &sentence, const QString &word)
{
    const QString whole = word.left(1).toUpper() + word.mid(1);
    for (int leftOff = 0; leftOff <= 2 && leftOff < word.size(); ++leftOff) {
        const QString stem = word.chopped(leftOff);
        const QRegularExpression pattern(
            u"(?:^|(?<=[ .,;!?]))(?:%1|%2|%3)[^ .,;!?]*"_s.arg(whole, stem, stem.toUpper()));
        QString result = sentence;
        if (result.replace(pattern, u"_____"_s) != sentence)
            return result;
    }
    return sentence;
}

} // namespace

class Blanking_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWordIsBlanked_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<QString>("sentence");
        QTest::addColumn<QString>("shown");
        const auto row = [](const char *name, const QString &word, const QString &sentence,
                            const QString &shown) {
            QTest::newRow(name) << word << sentence << shown;
        };
        const auto unchanged = [&row](const char *name, const QString &word,
                                      const QString &sentence) {
            row(name, word, sentence, sentence);
        };

        // Forms of the word
        row("longer word", u"cat"_s, u"The category was cat."_s, u"The _____ was _____."_s);
        row("inflected", u"study"_s, u"She studied hard."_s, u"She _____ hard."_s);
        row("capital behind", u"cat"_s, u"A cat saw Cat."_s, u"A _____ saw _____."_s);
        row("capital before", u"cat"_s, u"Cat saw a cat."_s, u"_____ saw a _____."_s);
        row("capitals", u"cat"_s, u"A CAT!"_s, u"A _____!"_s);
        row("all three", u"cat"_s, u"CAT, cat; Cat? cat"_s, u"_____, _____; _____? _____"_s);
        row("all three longer", u"cat"_s, u"CATS cats Cats"_s, u"_____ _____ _____"_s);
        unchanged("mixed case", u"elephant"_s, u"An eLEPHANT ran, eLephant!"_s);
        row("mixed case longer", u"elephant"_s, u"ElephantS, ELephants."_s, u"_____, ELephants."_s);
        row("stored as a name", u"Cat"_s, u"A cat. Cat. CAT."_s, u"A cat. _____. _____."_s);
        row("stored in capitals", u"NASA"_s, u"NASA's, by nasa."_s, u"_____, by nasa."_s);
        row("capital inside", u"iPhone"_s, u"IPhone, iPhone, IPHONE."_s, u"_____, _____, _____."_s);
        row("digit first", u"3D"_s, u"A 3D film, 3d."_s, u"A _____ film, 3d."_s);

        // Places in the sentence
        row("whole sentence", u"cat"_s, u"cat"_s, u"_____"_s);
        row("at the end", u"cat"_s, u"The cat"_s, u"The _____"_s);
        row("every delimiter", u"cat"_s, u"cat.cat,cat;cat!cat?cat cat"_s,
            u"_____._____,_____;_____!_____?_____ _____"_s);
        row("delimiters in a row", u"cat"_s, u"  cat  cat ... cat!?"_s,
            u"  _____  _____ ... _____!?"_s);
        row("apostrophe", u"cat"_s, u"The cat's tail"_s, u"The _____ tail"_s);
        row("hyphen", u"cat"_s, u"A cat-like cat"_s, u"A _____ _____"_s);
        unchanged("behind a bracket", u"dog"_s, u"A (dog) sat."_s);
        unchanged("behind a hyphen", u"dog"_s, u"A hot-dog."_s);
        unchanged("behind a colon", u"dog"_s, u"see:dog"_s);
        unchanged("behind a quotation mark", u"dog"_s, u"He said \"dog\"."_s);
        unchanged("behind a tab", u"dog"_s, u"the\tdog"_s);
        unchanged("behind a line break", u"dog"_s, u"the\r\ndog"_s);
        unchanged("behind a fixed blank", u"dog"_s, u"the\u00A0dog"_s);
        row("line break behind", u"dog"_s, u"dog\r\nand cat"_s, u"_____ cat"_s);
        unchanged("inside a word", u"dog"_s, u"An underdog."_s);
        row("inside and alone", u"dog"_s, u"An underdog or dog or hotdog."_s,
            u"An underdog or _____ or hotdog."_s);
        row("inside before the stem", u"cat"_s, u"They scatter corn."_s, u"They scatter _____."_s);
        row("twice in one word", u"dog"_s, u"A dogdog."_s, u"A _____."_s);
        unchanged("only delimiters", u"cat"_s, u" .,;!?"_s);
        row("blanks already there", u"cat"_s, u"_____ cat"_s, u"_____ _____"_s);

        // Words without their last letters
        row("whole word first", u"study"_s, u"A study of studied men."_s,
            u"A _____ of studied men."_s);
        row("one letter off", u"happy"_s, u"Is happier happiness?"_s, u"Is _____ _____?"_s);
        row("two letters off", u"leaves"_s, u"He is leaving."_s, u"He is _____."_s);
        unchanged("three letters off", u"making"_s, u"He makes it."_s);
        row("stem in capitals", u"study"_s, u"HE STUDIED, studied."_s, u"HE _____, _____."_s);
        row("capital only as a whole", u"study"_s, u"Studied, she studies."_s,
            u"Studied, she _____."_s);
        unchanged("capital is no stem", u"study"_s, u"Studied it is."_s);
        row("one letter off stops two", u"leaves"_s, u"leave, leaving."_s, u"_____, leaving."_s);
        unchanged("longer than the sentence", u"catalogue"_s, u"cat"_s);
        row("three letters down to one", u"cat"_s, u"Some cows."_s, u"Some _____."_s);

        // Short words
        row("one letter", u"a"_s, u"A cat ate an egg."_s, u"_____ cat _____ _____ egg."_s);
        unchanged("one letter, not there", u"x"_s, u"A cat ate."_s);
        row("two letters", u"ox"_s, u"The oxen."_s, u"The _____."_s);
        row("two letters down to one", u"ox"_s, u"An old one."_s, u"An _____ _____."_s);
        unchanged("two letters, not there", u"ox"_s, u"A cat ate."_s);
        unchanged("no word", u""_s, u"A cat. Ate!"_s);
        unchanged("no sentence", u"cat"_s, u""_s);
        unchanged("neither", u""_s, u""_s);

        // Other letters and punctuation
        row("accents", u"été"_s, u"L'été est un été. Été, ÉTÉ."_s,
            u"L'été est un _____. _____, _____."_s);
        unchanged("accent counts", u"été"_s, u"Un ete."_s);
        row("sharp s keeps its length", u"straße"_s, u"Die STRAßE ist leer."_s,
            u"Die _____ ist leer."_s);
        row("accent behind", u"caf"_s, u"Le café."_s, u"Le _____."_s);
        row("signs of a pattern", u"c++"_s, u"In c++ and C++."_s, u"In _____ and _____."_s);
        row("dot is no pattern", u"a.b"_s, u"An axb, a.b!"_s, u"An axb, _____!"_s);
        row("apostrophe in the word", u"don't"_s, u"I don't. DON'T!"_s, u"I _____. _____!"_s);

        // Blanks and delimiters in the word
        row("phrase", u"ice cream"_s, u"I like ice cream, Ice creams, ICE CREAM."_s,
            u"I like _____, _____, _____."_s);
        unchanged("first word of a phrase", u"ice cream"_s, u"The ice is cold."_s);
        row("phrase, two letters off", u"ice cream"_s, u"An ice cre am."_s, u"An _____ am."_s);
        row("blank behind the word", u"cat "_s, u"The cat sat. A cat."_s,
            u"The _____ sat. A _____."_s);
        row("blank before the word", u" cat"_s, u"The cat sat. Cat!"_s, u"The _____ sat. _____!"_s);
        row("blanks around a stem", u"  study "_s, u"She studied hard."_s, u"She _____ hard."_s);
        unchanged("only blanks", u"  "_s, u"The cat  sat."_s);
        row("delimiter first", u".net"_s, u"A .net, b.net."_s, u"A _____, b.net."_s);
        row("delimiter first behind a blanked word", u".net"_s, u".net.net"_s, u"__________"_s);
    }

    void theWordIsBlanked()
    {
        QFETCH(QString, word);
        QFETCH(QString, sentence);
        QTEST(blankedSentence(sentence, word), "shown");
    }

    void longSentencesAreBlankedThroughout()
    {
        const QString part = u"A cat, the category; they scatter! Cat? "_s;
        const QString blankedPart = u"A _____, the _____; they scatter! _____? "_s;
        QVERIFY(part.size() * 50 > 500);
        QCOMPARE(blankedSentence(part.repeated(50), u"cat"_s), blankedPart.repeated(50));
    }

    void anEndlessWordIsOneBlank()
    {
        QCOMPARE(blankedSentence(u"cat"_s.repeated(300) + u" end"_s, u"cat"_s), u"_____ end"_s);
        const QString inside = u"x"_s + u"cat"_s.repeated(300);
        QCOMPARE(blankedSentence(inside, u"cat"_s), inside);
    }

    void anySentenceIsBlankedAsThePatternSays()
    {
        const QString letters = u"aAbBa .,;!?' -"_s;
        std::mt19937 random(23);
        const auto text = [&](unsigned longest, int alphabet) {
            QString drawn;
            for (auto length = random() % longest; length > 0; --length)
                drawn += letters[qsizetype(random() % unsigned(alphabet))];
            return drawn;
        };
        int blanked = 0;
        for (int i = 0; i < 8'000; ++i) {
            const QString word = text(6, 5);
            const QString sentence = text(30, int(letters.size()));
            const QString expected = blankedByPattern(sentence, word);
            QVERIFY2(blankedSentence(sentence, word) == expected,
                     qPrintable(u"%1 | %2 | %3"_s.arg(word, sentence, expected)));
            blanked += expected == sentence ? 0 : 1;
        }
        QVERIFY(blanked > 2'000 && blanked < 7'000);
    }
};

QTEST_APPLESS_MAIN(Blanking_test)

#include "Blanking_test.moc"
