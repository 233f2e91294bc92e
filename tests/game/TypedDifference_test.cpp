// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/TypedDifference.h"

#include <QTest>

using namespace Qt::StringLiterals;

class TypedDifference_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLettersThatDiffer_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::addColumn<QString>("word");
        QTest::addColumn<QStringList>("parts");
        QTest::newRow("one letter")
            << u"lightxouse"_s << u"lighthouse"_s << QStringList{u"light"_s, u"x"_s, u"ouse"_s};
        QTest::newRow("two letters in the wrong order")
            << u"recieve"_s << u"receive"_s << QStringList{u"rec"_s, u"ie"_s, u"ve"_s};
        QTest::newRow("a letter too few")
            << u"aple"_s << u"apple"_s << QStringList{u"ap"_s, u""_s, u"le"_s};
        QTest::newRow("a letter too many")
            << u"appple"_s << u"apple"_s << QStringList{u"app"_s, u"p"_s, u"le"_s};
        QTest::newRow("a capital letter")
            << u"Apple"_s << u"apple"_s << QStringList{u""_s, u"A"_s, u"pple"_s};
        QTest::newRow("the end is missing")
            << u"app"_s << u"apple"_s << QStringList{u"app"_s, u""_s, u""_s};
        QTest::newRow("something behind")
            << u"apples"_s << u"apple"_s << QStringList{u"apple"_s, u"s"_s, u""_s};
        QTest::newRow("another word")
            << u"dog"_s << u"cat"_s << QStringList{u""_s, u"dog"_s, u""_s};
        QTest::newRow("nothing") << u""_s << u"cat"_s << QStringList{u""_s, u""_s, u""_s};
        QTest::newRow("the same letter more often")
            << u"aaaa"_s << u"aa"_s << QStringList{u"aa"_s, u"aa"_s, u""_s};
        QTest::newRow("no word") << u"cat"_s << u""_s << QStringList{u""_s, u"cat"_s, u""_s};
    }

    void theLettersThatDiffer()
    {
        QFETCH(QString, answer);
        QFETCH(QString, word);
        QFETCH(QStringList, parts);
        const TypedDifference difference = differenceOf(answer, word);
        QCOMPARE(difference, (TypedDifference{parts[0], parts[1], parts[2]}));
        QCOMPARE(difference.before + difference.differs + difference.after, answer);
    }
};

QTEST_APPLESS_MAIN(TypedDifference_test)

#include "TypedDifference_test.moc"
