// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TextDifference.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// The text with brackets around the ranges.
QString marked(QString text, const QList<TextRange> &ranges)
{
    for (auto range = ranges.crbegin(); range != ranges.crend(); ++range) {
        text.insert(range->start + range->length, u']');
        text.insert(range->start, u'[');
    }
    return text;
}

} // namespace

class TextDifference_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWordsThatDifferAreMarked_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        const auto row = [](const char *name, const char *one, const char *other) {
            QTest::newRow(name) << QString::fromUtf8(one) << QString::fromUtf8(other);
        };
        row("nothing", "", "");
        row("the same", "a river of ice", "a river of ice");
        row("all", "[ice]", "[a big cat]");
        row("one empty", "[a big cat]", "");
        row("a word", "a [slow] river", "a [fast] river");
        row("a word more", "a [slow] river", "a river");
        row("two words for one", "a [slow river] of ice", "a [mass] of ice");
        row("at the start", "[The] cat sleeps.", "[A] cat sleeps.");
        row("at the end", "The cat [sleeps.]", "The cat [sleeps]");
        row("more at the end", "The cat", "The cat [sleeps]");
        row("several places", "[the] cat and [the] dog", "[a] cat and [a] dog");
        row("words side by side", "a [big old] cat", "a [small new] cat");
        row("a common word between", "[one] cat [two three]", "[four five] cat [six]");
        row("upper and lower case", "[Glacier]", "[glacier]");
        row("an accent", "[\u00E9t\u00E9]", "[ete]");
        row("blanks", "a[  ]cat", "a[ ]cat");
        row("a blank at the end", "a cat[ ]", "a cat");
        row("a line break", "a[\n]cat", "a[ ]cat");
        row("a repeated word", "cat cat [cat]", "cat cat");
    }

    void theWordsThatDifferAreMarked()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        const auto plain = [](QString text) { return text.remove(u'[').remove(u']'); };
        const auto compare = [&plain](const QString &first, const QString &second) {
            const TextDifference difference = differenceOf(plain(first), plain(second));
            QCOMPARE(marked(plain(first), difference.ofOne), first);
            QCOMPARE(marked(plain(second), difference.ofOther), second);
        };
        compare(one, other);
    }

    // Comparing each word of long texts with each would take too long.
    void inVeryLongTextsAllBetweenTheFirstAndTheLastDifferenceIsMarked()
    {
        const QString middle = u" cat dog"_s.repeated(10'000);
        const TextDifference difference = differenceOf(u"the one"_s + middle + u" ten end"_s,
                                                       u"the two"_s + middle + u" six end"_s);
        const QList<TextRange> all{{4, int(middle.size()) + 7}};
        QCOMPARE(difference, (TextDifference{all, all}));
    }
};

QTEST_GUILESS_MAIN(TextDifference_test)
#include "TextDifference_test.moc"
