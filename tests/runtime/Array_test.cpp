// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Array.h"

#include "runtime/ErrorNumber.h"
#include "runtime/Integer.h"

#include <QTest>

#include <limits>

using namespace Qt::StringLiterals;

class Array_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void subscriptsBeginAtOne()
    {
        const Array<QString> array({u"first"_s, u"second"_s});
        QCOMPARE(array.size(), 2);
        QCOMPARE(array(1), u"first"_s);
        QCOMPARE(array(2), u"second"_s);
    }

    void aSubscriptMayBeTheProgramsWholeNumber()
    {
        const Array<int> array({7, 8, 9});
        QCOMPARE(array(Integer(3)), 9);
        QCOMPARE(errorNumberOf([&] { return array(Integer(4)); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void aSubscriptOutsideTheArrayIsReported_data()
    {
        QTest::addColumn<int>("subscript");
        QTest::newRow("zero") << 0;
        QTest::newRow("one beyond the end") << 4;
        QTest::newRow("negative") << -1;
        QTest::newRow("the lowest") << std::numeric_limits<int>::min();
        QTest::newRow("the highest") << std::numeric_limits<int>::max();
    }

    void aSubscriptOutsideTheArrayIsReported()
    {
        QFETCH(int, subscript);
        const Array<int> array({7, 8, 9});
        QCOMPARE(errorNumberOf([&] { return array(subscript); }),
                 RunTimeError::SubscriptOutOfRange);
    }

    void anEmptyArrayHasNoSubscript()
    {
        const Array<int> array;
        QCOMPARE(array.size(), 0);
        QCOMPARE(errorNumberOf([&] { return array(1); }), RunTimeError::SubscriptOutOfRange);
    }

    void anAssignmentReplacesTheElements()
    {
        Array<int> array({7, 8, 9});
        array = Array<int>({5});
        QCOMPARE(array.size(), 1);
        QCOMPARE(array(1), 5);
        QCOMPARE(errorNumberOf([&] { return array(2); }), RunTimeError::SubscriptOutOfRange);
    }
};

QTEST_APPLESS_MAIN(Array_test)

#include "Array_test.moc"
