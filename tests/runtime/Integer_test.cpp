// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Integer.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

#include <array>
#include <limits>

using namespace Qt::StringLiterals;

namespace {

// Both bounds, their neighbours, and pairs whose sums and products lie next to a bound.
constexpr std::array Corners{-32768, -32767, -16385, -16384, -182, -181,  -2,    -1,    0,
                             1,      2,      181,    182,    255,  16383, 16384, 32766, 32767};

constexpr bool fits(qint64 value)
{
    return value >= Integer::Min && value <= Integer::Max;
}

static_assert(sizeof(Integer) == 2);
static_assert(Integer().toInt() == 0);
static_assert((Integer(32766) + 1).toInt() == 32767);
static_assert(Integer(2) < 3 && Integer(-1) == -1);
static_assert(!std::is_constructible_v<Integer, bool>, "a truth value is no number");
static_assert(!std::is_constructible_v<Integer, double>, "nothing is rounded on the quiet");

} // namespace

class Integer_test : public QObject
{
    Q_OBJECT

    template <class Number> static void convertsCorners()
    {
        for (const qint64 value :
             {qint64(std::numeric_limits<Number>::min()), qint64(-32769), qint64(-32768),
              qint64(-1), qint64(0), qint64(32767), qint64(32768), qint64(65535), qint64(65536),
              qint64(98304), qint64(std::numeric_limits<Number>::max())}) {
            if (!std::in_range<Number>(value))
                continue;
            const auto number = static_cast<Number>(value);
            if (fits(value))
                QCOMPARE(Integer(number).toInt(), int(value));
            else
                QCOMPARE(errorNumberOf([&] { return Integer(number); }), RunTimeError::Overflow);
        }
    }

    // An operation on 16 bits gives what it gives on 64 bits, or Overflow.
    template <class Narrow, class Wide> static void agreesOnAllCorners(Narrow narrow, Wide wide)
    {
        for (const int a : Corners)
            for (const int b : Corners) {
                const qint64 exact = wide(a, b);
                int result = 0;
                const RunTimeError::Number error =
                    errorNumberOf([&] { return result = narrow(Integer(a), Integer(b)).toInt(); });
                const QByteArray pair = u"%1, %2"_s.arg(a).arg(b).toLatin1();
                QVERIFY2(error == (fits(exact) ? NoRunTimeError : RunTimeError::Overflow), pair);
                QVERIFY2(!fits(exact) || result == exact, pair);
            }
    }

private Q_SLOTS:
    void conversionsFromWiderTypesAreChecked()
    {
        convertsCorners<signed char>();
        convertsCorners<qint16>();
        convertsCorners<quint16>();
        convertsCorners<int>();
        convertsCorners<unsigned>();
        convertsCorners<long>();
        convertsCorners<qint64>();
        QCOMPARE(errorNumberOf([] { return Integer(std::numeric_limits<quint64>::max()); }),
                 RunTimeError::Overflow);
        QCOMPARE(errorNumberOf([] { return Integer(std::size_t(32768)); }), RunTimeError::Overflow);
        QCOMPARE(Integer(std::size_t(32767)).toInt(), 32767);
    }

    void sumsAreChecked()
    {
        agreesOnAllCorners([](Integer a, Integer b) { return a + b; },
                           [](qint64 a, qint64 b) { return a + b; });
    }

    void differencesAreChecked()
    {
        agreesOnAllCorners([](Integer a, Integer b) { return a - b; },
                           [](qint64 a, qint64 b) { return a - b; });
    }

    void productsAreChecked()
    {
        agreesOnAllCorners([](Integer a, Integer b) { return a * b; },
                           [](qint64 a, qint64 b) { return a * b; });
    }

    void assigningSumsAreChecked()
    {
        agreesOnAllCorners([](Integer a, Integer b) { return a += b; },
                           [](qint64 a, qint64 b) { return a + b; });
    }

    void assigningDifferencesAreChecked()
    {
        agreesOnAllCorners([](Integer a, Integer b) { return a -= b; },
                           [](qint64 a, qint64 b) { return a - b; });
    }

    void steppingBeyondABoundOverflowsAndChangesNothing()
    {
        Integer high = 32766;
        QCOMPARE((++high).toInt(), 32767);
        QCOMPARE(errorNumberOf([&] { return ++high; }), RunTimeError::Overflow);
        QCOMPARE(high.toInt(), 32767);
        Integer low = -32767;
        QCOMPARE((--low).toInt(), -32768);
        QCOMPARE(errorNumberOf([&] { return --low; }), RunTimeError::Overflow);
        QCOMPARE(low.toInt(), -32768);
    }

    void anAssignmentThatOverflowsChangesNothing()
    {
        Integer number = 32000;
        QCOMPARE(errorNumberOf([&] { return number += 768; }), RunTimeError::Overflow);
        QCOMPARE(number.toInt(), 32000);
        number = -32000;
        QCOMPARE(errorNumberOf([&] { return number -= 769; }), RunTimeError::Overflow);
        QCOMPARE(number.toInt(), -32000);
    }

    void anAssignmentReturnsTheNumberItself()
    {
        Integer number = 5;
        (number += 2) += 3;
        QCOMPARE(number.toInt(), 10);
        --(number -= 4);
        QCOMPARE(number.toInt(), 5);
    }

    void comparisonsAgreeWithThoseOfInt()
    {
        for (const int a : Corners)
            for (const int b : Corners) {
                QCOMPARE(Integer(a) == Integer(b), a == b);
                QCOMPARE(Integer(a) != Integer(b), a != b);
                QCOMPARE(Integer(a) < Integer(b), a < b);
                QCOMPARE(Integer(a) <= b, a <= b);
                QCOMPARE(a > Integer(b), a > b);
                QCOMPARE(Integer(a) >= b, a >= b);
            }
    }

    void textHasTheDecimalDigits_data()
    {
        QTest::addColumn<int>("number");
        QTest::addColumn<QString>("text");
        QTest::newRow("zero") << 0 << u"0"_s;
        QTest::newRow("largest") << 32767 << u"32767"_s;
        QTest::newRow("lowest") << -32768 << u"-32768"_s;
    }

    void textHasTheDecimalDigits()
    {
        QFETCH(int, number);
        QFETCH(QString, text);
        QCOMPARE(Integer(number).toText(), text);
    }
};

QTEST_GUILESS_MAIN(Integer_test)
#include "Integer_test.moc"
