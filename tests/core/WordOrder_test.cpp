// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/WordOrder.h"

#include "runtime/ChiSquare.h"
#include "runtime/RandomNumbers.h"

#include <QTest>

#include <algorithm>
#include <array>
#include <map>
#include <random>

namespace {

constexpr float LargestNumber = 1 - 1.0F / (1 << 24);

// Replaces the random numbers for the lifetime of the object.
class Source
{
public:
    explicit Source(std::function<float()> source) { RandomNumbers::setSource(std::move(source)); }
    ~Source() { RandomNumbers::setSource({}); }
    Q_DISABLE_COPY_MOVE(Source)
};

// Uniform numbers, the same in every run.
std::function<float()> evenNumbers(unsigned seed)
{
    return [engine = std::mt19937(seed)]() mutable {
        return static_cast<float>(engine() >> 8) / static_cast<float>(1U << 24);
    };
}

std::vector<int> positions(const Array<Integer> &order)
{
    std::vector<int> positions;
    for (int i = 1; i <= order.size(); ++i)
        positions.push_back(order(i).toInt());
    return positions;
}

// The chi-square statistic of the orders of all `count` positions.
double unevenness(int count, int orders)
{
    std::vector<int> order(static_cast<std::size_t>(count));
    std::generate(order.begin(), order.end(), [next = 0]() mutable { return ++next; });
    std::map<std::vector<int>, int> drawn;
    do
        drawn[order] = 0;
    while (std::next_permutation(order.begin(), order.end()));
    for (int i = 0; i < orders; ++i)
        ++drawn.at(positions(drawWordOrder(count, count)));
    std::vector<int> counts;
    for (const auto &[permutation, times] : drawn)
        counts.push_back(times);
    return chiSquare(counts);
}

} // namespace

class WordOrder_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thePositionsAreAllDifferentAndInTheList_data()
    {
        QTest::addColumn<int>("size");
        QTest::addColumn<int>("count");
        QTest::newRow("no words") << 0 << 0;
        QTest::newRow("the only word") << 1 << 1;
        QTest::newRow("one of two") << 1 << 2;
        QTest::newRow("both") << 2 << 2;
        QTest::newRow("999 of 1000") << 999 << 1000;
        QTest::newRow("1000 of 1000") << 1000 << 1000;
        QTest::newRow("1000 of 1001") << 1000 << 1001;
        QTest::newRow("1000 of 32000") << 1000 << 32000;
    }

    void thePositionsAreAllDifferentAndInTheList()
    {
        QFETCH(int, size);
        QFETCH(int, count);
        std::vector<int> drawn = positions(drawWordOrder(size, count));
        QCOMPARE(int(drawn.size()), size);
        std::sort(drawn.begin(), drawn.end());
        QVERIFY(std::adjacent_find(drawn.begin(), drawn.end()) == drawn.end());
        QVERIFY(drawn.empty() || (drawn.front() >= 1 && drawn.back() <= count));
    }

    void thePositionsFollowTheNumbersDrawn()
    {
        std::vector<float> numbers{0.5F, 0.0F, 0.74F, 0.24F, 0.99F, 0.5F, 0.25F};
        std::size_t next = 0;
        const Source source([&] { return numbers.at(next++); });
        // 0.74, 0.24 and the second 0.5 draw positions that were drawn before.
        QCOMPARE(positions(drawWordOrder(4, 4)), (std::vector{3, 1, 4, 2}));
        QCOMPARE(next, numbers.size());
    }

    void theSmallestAndTheLargestNumberStayInTheList_data()
    {
        QTest::addColumn<int>("count");
        for (const int count : {1, 2, 7, 1000, 32000})
            QTest::addRow("%d words", count) << count;
    }

    void theSmallestAndTheLargestNumberStayInTheList()
    {
        QFETCH(int, count);
        const auto firstDrawn = [count](float number) {
            const Source source([number] { return number; });
            return drawWordOrder(1, count)(1).toInt();
        };
        QCOMPARE(firstDrawn(0), 1);
        QCOMPARE(firstDrawn(LargestNumber), count);
    }

    void everyOrderIsEquallyLikely_data()
    {
        QTest::addColumn<unsigned>("seed");
        for (unsigned seed = 1; seed <= 5; ++seed)
            QTest::addRow("seed %u", seed) << seed;
    }

    void everyOrderIsEquallyLikely()
    {
        QFETCH(unsigned, seed);
        const Source source(evenNumbers(seed));
        // 24 orders: uniform numbers exceed 57 once in ten thousand runs.
        QVERIFY(unevenness(4, 24'000) < 57);
    }

    void ordersSeededByTheClockAreEquallyLikely()
    {
        // 6 orders: one run in 10^10 exceeds 55.
        QVERIFY(unevenness(3, 6'000) < 55);
    }

    void everyPartOfALongListIsEquallyLikely()
    {
        const Source source(evenNumbers(1));
        std::array<int, 100> drawn{};
        for (int i = 0; i < 50; ++i)
            for (const int position : positions(drawWordOrder(LongestWordOrder, 32000)))
                ++drawn.at(static_cast<std::size_t>((position - 1) / 320));
        // 99 degrees of freedom; drawing without putting back makes it a little more even.
        QVERIFY(chiSquare(drawn) < 160);
        QVERIFY(chiSquare(drawn) > 50);
    }

    void everyWordIsLeftOutEquallyOften()
    {
        const Source source(evenNumbers(1));
        std::array<int, 11> leftOut{};
        for (int i = 0; i < 11'000; ++i) {
            int missing = 11 * 12 / 2;
            for (const int position : positions(drawWordOrder(10, 11)))
                missing -= position;
            ++leftOut.at(static_cast<std::size_t>(missing - 1));
        }
        QVERIFY(chiSquare(leftOut) < 36);
    }
};

QTEST_APPLESS_MAIN(WordOrder_test)

#include "WordOrder_test.moc"
