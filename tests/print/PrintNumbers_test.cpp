// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PrintNumbers.h"

#include <QTest>

using namespace Qt::StringLiterals;

class PrintNumbers_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aMarginIsReadFromText()
    {
        QCOMPARE(marginFromText(u" 1.26 "_s), Currency::fromText(u"1.26"_s));
        QCOMPARE(marginFromText(u"-1"_s), Currency(-1));
        QCOMPARE(marginFromText(u"0.12345"_s), Currency::fromScaled(1234));
    }

    void halvesOfAPositionAreRoundedToEven()
    {
        QCOMPARE(positionFromText(u"2.5"_s), Integer(2));
        QCOMPARE(positionFromText(u" 3.5"_s), Integer(4));
        QCOMPARE(positionFromText(u"-3"_s), Integer(-3));
    }

    void aTextThatIsNotANumberGivesNothing()
    {
        for (const QString &text : {QString(), u" "_s, u"one"_s, u"1,5"_s, u"1 2"_s, u"0,001"_s,
                                    u"1,234"_s, u"1.5\u00A0"_s, u"\t2"_s}) {
            QVERIFY(!marginFromText(text));
            QVERIFY(!positionFromText(text));
        }
    }

    void aNumberOutOfRangeBecomesTheNearestOfItsType()
    {
        QCOMPARE(marginFromText(u"1e30"_s), Currency::largest());
        QCOMPARE(marginFromText(u" -1e30"_s), Currency::smallest());
        QCOMPARE(marginFromText(u"1e999"_s), Currency::largest());
        QCOMPARE(positionFromText(u"99999"_s), Integer(Integer::Max));
        QCOMPARE(positionFromText(u"-99999"_s), Integer(Integer::Min));
        QCOMPARE(positionFromText(u"-1e999"_s), Integer(Integer::Min));
    }

    void aPositionIsLimitedToTheList()
    {
        QCOMPARE(positionInList(500, 20), Integer(20));
        QCOMPARE(positionInList(20, 20), Integer(20));
        QCOMPARE(positionInList(0, 20), Integer(1));
        QCOMPARE(positionInList(-3, 20), Integer(1));
        QCOMPARE(positionInList(7, 0), Integer(1));
    }
};

QTEST_APPLESS_MAIN(PrintNumbers_test)

#include "PrintNumbers_test.moc"
