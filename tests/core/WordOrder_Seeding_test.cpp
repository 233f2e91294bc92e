// SPDX-License-Identifier: GPL-3.0-or-later
// How a word order uses the random numbers. The test is linked with a generator of its own, which
// records the calls.
#include "core/WordOrder.h"

#include "runtime/RandomNumbers.h"

#include <QTest>

#include <algorithm>
#include <string>
#include <vector>

namespace {

std::string asked;
std::vector<float> numbers;

} // namespace

void RandomNumbers::reseedFromClock()
{
    asked += 's';
}

float RandomNumbers::next()
{
    const auto drawn = static_cast<std::size_t>(std::count(asked.begin(), asked.end(), 'd'));
    asked += 'd';
    return numbers.at(drawn);
}

class WordOrder_Seeding_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { asked.clear(); }

    void everyDrawIsSeeded()
    {
        numbers = {0.0F, 0.5F};
        QCOMPARE(drawWordOrder(2, 2).size(), 2);
        QCOMPARE(asked, std::string("sdsd"));
    }

    void aRepeatedDrawIsSeededToo()
    {
        numbers = {0.5F, 0.5F, 0.75F, 0.25F};
        QCOMPARE(drawWordOrder(2, 2).size(), 2);
        QCOMPARE(asked, std::string("sdsdsdsd"));
    }

    void anEmptyOrderDrawsNothing()
    {
        QCOMPARE(drawWordOrder(0, 5).size(), 0);
        QCOMPARE(asked, std::string());
    }
};

QTEST_APPLESS_MAIN(WordOrder_Seeding_test)

#include "WordOrder_Seeding_test.moc"
