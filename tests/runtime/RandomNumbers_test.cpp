// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/RandomNumbers.h"

#include "runtime/ChiSquare.h"

#include <QTest>

#include <array>
#include <set>
#include <utility>

namespace {

constexpr int Cells = 64;
// 63 degrees of freedom: uniform numbers exceed this less than once in 10^10 runs.
constexpr double ChiSquareLimit = 180;

std::size_t cellOf(float number, int cells)
{
    return static_cast<std::size_t>(number * static_cast<float>(cells));
}

} // namespace

class RandomNumbers_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { RandomNumbers::setSource({}); }

    void numbersAreAtLeastZeroAndBelowOneWithTwentyFourBits()
    {
        unsigned bitsSet = 0;
        unsigned bitsClear = 0;
        for (int i = 0; i < 100'000; ++i) {
            const float number = RandomNumbers::next();
            QVERIFY(number >= 0);
            QVERIFY(number < 1);
            const float scaled = number * float(1U << 24);
            const auto whole = static_cast<unsigned>(scaled);
            QCOMPARE(static_cast<float>(whole), scaled);
            bitsSet |= whole;
            bitsClear |= ~whole;
        }
        QCOMPARE(bitsSet, 0xFFFFFFU);
        QCOMPARE(bitsClear & 0xFFFFFFU, 0xFFFFFFU);
    }

    void oneSequenceIsUniform()
    {
        RandomNumbers::reseedFromClock();
        std::array<int, Cells> counts{};
        for (int i = 0; i < 200'000; ++i)
            ++counts[cellOf(RandomNumbers::next(), Cells)];
        const double statistic = chiSquare(counts);
        QVERIFY2(statistic < ChiSquareLimit, qPrintable(QString::number(statistic)));
    }

    void drawsWithAReSeedingBeforeEachAreUniform()
    {
        std::array<int, Cells> counts{};
        for (int i = 0; i < 50'000; ++i) {
            RandomNumbers::reseedFromClock();
            ++counts[cellOf(RandomNumbers::next(), Cells)];
        }
        const double statistic = chiSquare(counts);
        QVERIFY2(statistic < ChiSquareLimit, qPrintable(QString::number(statistic)));
    }

    void neighbouringDrawsWithReSeedingAreIndependent()
    {
        std::array<int, Cells> counts{};
        std::size_t previous = 0;
        for (int i = 0; i < 50'000; ++i) {
            RandomNumbers::reseedFromClock();
            const std::size_t drawn = cellOf(RandomNumbers::next(), 8);
            ++counts[previous * 8 + drawn];
            previous = drawn;
        }
        const double statistic = chiSquare(counts);
        QVERIFY2(statistic < ChiSquareLimit, qPrintable(QString::number(statistic)));
    }

    void noTwoSeedingsStartTheSameSequence()
    {
        std::set<std::pair<float, float>> starts;
        for (int i = 0; i < 2000; ++i) {
            RandomNumbers::reseedFromClock();
            const float first = RandomNumbers::next();
            starts.emplace(first, RandomNumbers::next());
        }
        QCOMPARE(starts.size(), std::size_t(2000));
    }

    void aSourceIsAskedForEveryNumberAndReSeedingLeavesItAlone()
    {
        int calls = 0;
        RandomNumbers::setSource([&calls] { return float(++calls) / 4; });
        QCOMPARE(RandomNumbers::next(), 0.25F);
        RandomNumbers::reseedFromClock();
        QCOMPARE(RandomNumbers::next(), 0.5F);
        QCOMPARE(RandomNumbers::next(), 0.75F);
        QCOMPARE(calls, 3);
    }

    void anEmptySourcePutsTheGeneratorBack()
    {
        int calls = 0;
        RandomNumbers::setSource([&calls] { return float(++calls); });
        RandomNumbers::setSource({});
        RandomNumbers::reseedFromClock();
        std::set<float> numbers;
        for (int i = 0; i < 100; ++i)
            numbers.insert(RandomNumbers::next());
        QCOMPARE(calls, 0);
        QVERIFY(numbers.size() > 90);
        QVERIFY(*numbers.rbegin() < 1);
    }
};

QTEST_GUILESS_MAIN(RandomNumbers_test)
#include "RandomNumbers_test.moc"
