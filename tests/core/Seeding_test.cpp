// SPDX-License-Identifier: GPL-3.0-or-later
// How often a word order and a scramble seed the random numbers. The test has a generator of its
// own, which records the calls.
#include "core/WordOrder.h"
#include "core/cVocabList.h"

#include "runtime/RandomNumbers.h"

#include <QTest>

#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

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

class Seeding_test final : public QObject
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

    void eachAttemptAtAScrambleIsSeeded()
    {
        cVocabList list;
        list.AddVocab(u"abc"_s, {}, {});
        numbers = {0.0F, 0.5F, 0.75F, 0.75F, 0.5F, 0.0F}; // "abc" is rejected, "cba" is not
        QCOMPARE(list.ScrambledWord(), u"cba"_s);
        QCOMPARE(asked, std::string("sdddsddd"));
    }

    void anEmptyOrderDrawsNothing()
    {
        QCOMPARE(drawWordOrder(0, 5).size(), 0);
        QCOMPARE(asked, std::string());
    }
};

QTEST_APPLESS_MAIN(Seeding_test)

#include "Seeding_test.moc"
