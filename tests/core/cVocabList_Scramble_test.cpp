// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/cVocabList.h"

#include "core/ListTools.h"
#include "runtime/ChiSquare.h"
#include "runtime/Notice.h"
#include "runtime/RandomNumbers.h"

#include <QTest>

#include <algorithm>
#include <map>
#include <numeric>
#include <set>

using namespace Qt::StringLiterals;

namespace {

using Positions = std::vector<int>;

// Makes the scramble of a word of n characters draw these positions one after another. One more
// draw throws Type mismatch.
class Script
{
public:
    Script(int n, Positions draws) : m_draws(std::move(draws))
    {
        RandomNumbers::setSource([this, n] {
            if (m_used == m_draws.size())
                throw RunTimeError(RunTimeError::TypeMismatch);
            return (float(m_draws[m_used++]) - 0.5F) / float(n);
        });
    }
    Q_DISABLE_COPY_MOVE(Script)
    ~Script() { RandomNumbers::setSource({}); }

    [[nodiscard]] std::size_t used() const { return m_used; }

private:
    Positions m_draws;
    std::size_t m_used = 0;
};

Positions backwards(int n)
{
    Positions positions(std::size_t(n), 0);
    std::iota(positions.rbegin(), positions.rend(), 1);
    return positions;
}

Positions joined(Positions first, const Positions &second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

bool hasRunOfThree(const Positions &positions)
{
    for (std::size_t k = 2; k < positions.size(); ++k)
        if (positions[k - 2] + 1 == positions[k - 1] && positions[k - 1] + 1 == positions[k])
            return true;
    return false;
}

QString spelled(const QString &word, const Positions &positions)
{
    QString text;
    for (const int position : positions)
        text += word[position - 1];
    return text;
}

QString sorted(QString text)
{
    std::sort(text.begin(), text.end());
    return text;
}

// The results of many scrambles, and how often each of them came.
std::map<QString, int> resultsOf(const QString &word, int times)
{
    cVocabList list;
    list.AddVocab(word, {}, {});
    std::map<QString, int> results;
    for (int i = 0; i < times; ++i)
        ++results[list.ScrambledWord()];
    return results;
}

void useFixedSeed(unsigned seed)
{
    RandomNumbers::setSource(
        [random = std::mt19937(seed)]() mutable { return float(random() >> 8) / float(1U << 24); });
}

} // namespace

class cVocabList_Scramble_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        RandomNumbers::setSource({});
        setNoticeHook({});
    }

    // An accepted attempt uses n draws. A rejected one is followed by a new one, here the word
    // backwards, which is always accepted.
    void anAttemptIsAcceptedExactlyWithoutARunOfThree_data()
    {
        QTest::addColumn<QString>("word");
        QTest::addColumn<int>("accepted");
        QTest::newRow("3 letters") << u"abc"_s << 5;
        QTest::newRow("4 letters") << u"abcd"_s << 21;
        QTest::newRow("5 letters") << u"abcde"_s << 106;
        QTest::newRow("6 letters") << u"abcdef"_s << 643;
        QTest::newRow("7 letters") << u"abcdefg"_s << 4547;
    }

    void anAttemptIsAcceptedExactlyWithoutARunOfThree()
    {
        QFETCH(QString, word);
        QFETCH(int, accepted);
        const int n = int(word.size());
        cVocabList list;
        list.AddVocab(word, {}, {});
        Positions positions(std::size_t(n), 0);
        std::iota(positions.begin(), positions.end(), 1);
        int found = 0;
        do {
            const Script script(n, joined(positions, backwards(n)));
            const QString scrambled = list.ScrambledWord();
            const bool isAccepted = script.used() == positions.size();
            QCOMPARE(isAccepted, !hasRunOfThree(positions));
            QCOMPARE(script.used(), positions.size() * (isAccepted ? 1 : 2));
            QCOMPARE(scrambled, spelled(word, isAccepted ? positions : backwards(n)));
            found += isAccepted ? 1 : 0;
        } while (std::next_permutation(positions.begin(), positions.end()));
        QCOMPARE(found, accepted);
    }

    void aPositionThatWasDrawnIsDrawnAgainForTheSamePlace()
    {
        cVocabList list;
        list.AddVocab(u"abcd"_s, {}, {});
        const Script script(4, {2, 2, 2, 1, 2, 1, 4, 4, 1, 2, 3});
        QCOMPARE(list.ScrambledWord(), u"badc"_s);
        QCOMPARE(script.used(), std::size_t(11));
    }

    void aRejectedAttemptStartsOverWithAllPositions()
    {
        cVocabList list;
        list.AddVocab(u"abcd"_s, {}, {});
        const Script script(4, {1, 2, 3, 4, 4, 1, 2, 3, 2, 3, 4, 1, 1, 2, 4, 3});
        QCOMPARE(list.ScrambledWord(), u"abdc"_s);
        QCOMPARE(script.used(), std::size_t(16));
    }

    void theLowestAndTheHighestNumberAreTheFirstAndTheLastPosition()
    {
        cVocabList list;
        list.AddVocab(u"abc"_s, {}, {});
        const float highest = 1.0F - 1.0F / float(1U << 24);
        RandomNumbers::setSource([numbers = std::vector{0.5F, 0.0F, highest}]() mutable {
            const float number = numbers.back();
            numbers.pop_back();
            return number;
        });
        QCOMPARE(list.ScrambledWord(), u"cab"_s);
    }

    void aDrawOfZeroIsReportedAndDrawnAgain()
    {
        QStringList notices;
        setNoticeHook([&](const QString &text) { notices << text; });
        cVocabList list;
        list.AddVocab(u"abc"_s, {}, {});
        // The generator never gives such a number: the drawn position would be 0.
        RandomNumbers::setSource(
            [numbers = std::vector{0.1F, -0.25F, 0.5F, 0.9F, -1.0F / 3}]() mutable {
                const float number = numbers.back();
                numbers.pop_back();
                return number;
            });
        QCOMPARE(list.ScrambledWord(), u"cba"_s);
        QCOMPARE(notices, (QStringList{u"Result=0"_s, u"Result=0"_s}));
    }

    void abcGivesTheFiveOthersAndNeverItself()
    {
        const std::map<QString, int> results = resultsOf(u"abc"_s, 2000);
        QStringList texts;
        for (const auto &[text, times] : results)
            texts << text;
        QCOMPARE(texts, (QStringList{u"acb"_s, u"bac"_s, u"bca"_s, u"cab"_s, u"cba"_s}));
    }

    void abcdNeverHoldsARunInPlace()
    {
        const std::map<QString, int> results = resultsOf(u"abcd"_s, 4000);
        QCOMPARE(results.size(), std::size_t(21));
        for (const auto &[text, times] : results) {
            QVERIFY2(!text.contains(u"abc"_s) && !text.contains(u"bcd"_s), qPrintable(text));
            QCOMPARE(sorted(text), u"abcd"_s);
        }
    }

    void acceptedOrdersOfFourLettersAreEquallyLikely()
    {
        useFixedSeed(5);
        const std::map<QString, int> results = resultsOf(u"abcd"_s, 42'000);
        QCOMPARE(results.size(), std::size_t(21));
        std::vector<int> counts;
        for (const auto &[text, times] : results)
            counts.push_back(times);
        // 20 degrees of freedom: uniform numbers exceed 45.3 once in a thousand runs.
        const double statistic = chiSquare(counts);
        QVERIFY2(statistic < 45.3, qPrintable(QString::number(statistic)));
    }

    void theRealGeneratorIsAsEven()
    {
        const std::map<QString, int> results = resultsOf(u"abcd"_s, 21'000);
        std::vector<int> counts;
        for (const auto &[text, times] : results)
            counts.push_back(times);
        QCOMPARE(counts.size(), std::size_t(21));
        // Uniform numbers exceed this less than once in 10^10 runs.
        const double statistic = chiSquare(counts);
        QVERIFY2(statistic < 90, qPrintable(QString::number(statistic)));
    }

    void everyCharacterIsUsedOnce_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("repeated letters") << u"Mississippi"_s;
        QTest::newRow("phrase") << u" big  fat cat "_s;
        QTest::newRow("accents and signs") << u"l'été-là…"_s;
        QTest::newRow("capitals") << u"AaAaBb"_s;
        QTest::newRow("blanks") << u"   "_s;
        QTest::newRow("long") << u"pneumonoultramicroscopicsilicovolcanoconiosis"_s;
    }

    void everyCharacterIsUsedOnce()
    {
        QFETCH(QString, word);
        for (const auto &[text, times] : resultsOf(word, 200))
            QCOMPARE(sorted(text), sorted(word));
    }

    void aWordWithRepeatedLettersMayComeBackAsItWas()
    {
        cVocabList list;
        list.AddVocab(u"aab"_s, {}, {});
        const Script script(3, {2, 1, 3});
        QCOMPARE(list.ScrambledWord(), u"aab"_s);
    }

    void theWordOfTheCurrentEntryIsScrambledAndNothingElseChanges()
    {
        cVocabList list;
        addWords(list, {u"abc"_s, u"xyz"_s, u"abc"_s});
        QCOMPARE(list.SearchWord(u"abc"_s).toInt(), 1);
        list.CurrentWord(2);
        const Script script(3, {3, 2, 1, 2, 1, 3});
        QCOMPARE(list.ScrambledWord(), u"zyx"_s);
        QCOMPARE(list.ScrambledWord(), u"yxz"_s);
        QCOMPARE(list.CurrentWord().toInt(), 2);
        QCOMPARE(entryText(list, 2), u"xyz|xyz def|xyz sen"_s);
        QCOMPARE(list.SearchWord(u"abc"_s).toInt(), 3);
    }

    void wordsOfOneAndTwoLettersAreTriedWithoutEnd_data()
    {
        QTest::addColumn<QString>("word");
        QTest::newRow("one letter") << u"a"_s;
        QTest::newRow("two letters") << u"ab"_s;
        QTest::newRow("two letters alike") << u"aa"_s;
    }

    void wordsOfOneAndTwoLettersAreTriedWithoutEnd()
    {
        QFETCH(QString, word);
        cVocabList list;
        list.AddVocab(word, {}, {});
        const int size = static_cast<int>(word.size());
        Positions draws;
        for (int draw = 0; draw < 10'000; ++draw)
            draws.push_back(draw % size + 1);
        const Script script(size, draws);
        QCOMPARE(errorNumberOf([&] { return list.ScrambledWord(); }), RunTimeError::TypeMismatch);
        QCOMPARE(script.used(), draws.size());
    }

    void anEmptyWordIsASubscriptFailure()
    {
        cVocabList list;
        addWords(list, {QString()});
        QCOMPARE(errorNumberOf([&] { return list.ScrambledWord(); }),
                 RunTimeError::SubscriptOutOfRange);
        list.ClearList();
        QCOMPARE(errorNumberOf([&] { return list.ScrambledWord(); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void aPositionOutsideTheStorageIsASubscriptFailure_data()
    {
        QTest::addColumn<int>("position");
        for (const int position : {-1, 0, 2, 32767})
            QTest::addRow("%d", position) << position;
    }

    void aPositionOutsideTheStorageIsASubscriptFailure()
    {
        QFETCH(int, position);
        cVocabList list;
        addWords(list, {u"abc"_s});
        list.CurrentWord(position);
        QCOMPARE(errorNumberOf([&] { return list.ScrambledWord(); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void theLongestWordHas32767Characters()
    {
        QString word;
        for (int i = 0; i < 32767; ++i)
            word += QChar(char16_t(u'a' + i % 26));
        cVocabList list;
        list.AddVocab(word, {}, {});
        const Script script(32767, backwards(32767));
        QString expected = word;
        std::reverse(expected.begin(), expected.end());
        QCOMPARE(list.ScrambledWord(), expected);
        list.Edit(word + u'x', {}, {});
        QCOMPARE(errorNumberOf([&] { return list.ScrambledWord(); }), RunTimeError::Overflow);
    }
};

QTEST_GUILESS_MAIN(cVocabList_Scramble_test)
#include "cVocabList_Scramble_test.moc"
