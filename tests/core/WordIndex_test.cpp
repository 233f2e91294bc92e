// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/WordIndex.h"

#include <QStringList>
#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

std::vector<VocabRecord> records(const QStringList &words)
{
    std::vector<VocabRecord> entries;
    for (const QString &word : words)
        entries.push_back({word, {}, {}});
    return entries;
}

int walk(const QStringList &words, const QString &word, int start)
{
    for (int i = start; i <= words.size(); ++i)
        if (words[i - 1].toLower() == word.toLower())
            return i;
    return 0;
}

} // namespace

class WordIndex_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewIndexIsEmptyAndFindsNothing()
    {
        const WordIndex index;
        QVERIFY(index.isEmpty());
        QCOMPARE(index.find(QString(), 1), 0);
    }

    void rebuildingForgetsTheOldWords()
    {
        WordIndex index;
        index.rebuild(records({u"cat"_s, u"dog"_s}));
        index.rebuild(records({u"owl"_s}));
        QCOMPARE(index.find(u"OWL"_s, 1), 1);
        QCOMPARE(index.find(u"cat"_s, 1), 0);
        index.clear();
        QVERIFY(index.isEmpty());
        QCOMPARE(index.find(u"owl"_s, 1), 0);
    }

    void findGivesTheFirstPositionFromTheStartOn()
    {
        WordIndex index;
        index.rebuild(records({u"cat"_s, u"dog"_s, u"CAT"_s, u"cat"_s}));
        QCOMPARE(index.find(u"Cat"_s, 1), 1);
        QCOMPARE(index.find(u"Cat"_s, 2), 3);
        QCOMPARE(index.find(u"Cat"_s, 4), 4);
        QCOMPARE(index.find(u"Cat"_s, 5), 0);
        QCOMPARE(index.find(u"Cat"_s, 32767), 0);
        QCOMPARE(index.find(u"dog"_s, 3), 0);
    }

    void removingTheLastWordLeavesAnIndexThatCanBeUsedAgain()
    {
        WordIndex index;
        index.append(u"cat"_s);
        index.remove(1, u"cat"_s);
        QVERIFY(index.isEmpty());
        QCOMPARE(index.find(u"cat"_s, 1), 0);
        index.append(u"dog"_s);
        QCOMPARE(index.find(u"dog"_s, 1), 1);
    }

    void replacingByTheSameWordInOtherLettersKeepsThePosition()
    {
        WordIndex index;
        index.rebuild(records({u"cat"_s, u"dog"_s}));
        index.replace(1, u"cat"_s, u"CAT"_s);
        QCOMPARE(index.find(u"cat"_s, 1), 1);
        index.replace(2, u"dog"_s, u"cat"_s);
        QCOMPARE(index.find(u"cat"_s, 2), 2);
        QCOMPARE(index.find(u"dog"_s, 1), 0);
    }

    void answersLikeAWalkThroughTheListAfterEveryChange()
    {
        std::mt19937 random(3);
        const QStringList pool{u"a"_s, u"A"_s, u"b"_s, u"B"_s, u"é"_s, u"É"_s, u""_s, u"a b"_s};
        const auto anyWord = [&] { return pool[qsizetype(random() % unsigned(pool.size()))]; };
        WordIndex index;
        QStringList words;
        for (int step = 0; step < 5000; ++step) {
            const auto kind = random() % 10;
            const auto position = words.isEmpty() ? 0 : 1 + int(random() % unsigned(words.size()));
            if (position == 0 || (kind < 4 && words.size() < 60)) {
                words << anyWord();
                index.append(words.last());
            } else if (kind < 8) {
                index.remove(position, words[position - 1]);
                words.removeAt(position - 1);
            } else {
                const QString word = anyWord();
                index.replace(position, words[position - 1], word);
                words[position - 1] = word;
            }
            const QString wanted = anyWord();
            const int start = 1 + int(random() % unsigned(words.size() + 3));
            QCOMPARE(index.find(wanted, start), walk(words, wanted, start));
            QCOMPARE(index.isEmpty(), words.isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(WordIndex_test)
#include "WordIndex_test.moc"
