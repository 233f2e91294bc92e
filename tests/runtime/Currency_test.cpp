// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/Currency.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Currency_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreRoundedToFourDecimalsHalvesToEven_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("scaled");
        const auto row = [](const char *text, qint64 scaled) {
            QTest::newRow(text) << QString::fromLatin1(text) << scaled;
        };
        row("0", 0);
        row("-0", 0);
        row("1", 10'000);
        row(" +1.5 ", 15'000);
        row("-1.26", -12'600);
        row(".5", 5'000);
        row("2.", 20'000);
        row("1.23445", 12'344);
        row("1.23455", 12'346);
        row("1.234450000000001", 12'345);
        row("1.00005", 10'000);
        row("1.00015", 10'002);
        row("0.00005", 0);
        row("0.000050001", 1);
        row("-0.00015", -2);
        row("0.99995", 10'000);
        row("9.99996", 100'000);
        row("12e-1", 12'000);
        row("1E3", 10'000'000);
        row("5e-5", 0);
        row("15e-5", 2);
        row("1e-300", 0);
        row("1e-400", 0);
        row("0000000000000000000000001", 10'000);
        row("9999999999.9999", 99'999'999'999'999);
        row("-9999999999.99994", -99'999'999'999'999);
    }

    void textsAreRoundedToFourDecimalsHalvesToEven()
    {
        QFETCH(QString, text);
        QTEST(qint64(Currency::fromText(text).scaled()), "scaled");
    }

    void aTextBeyondTheRangeOverflows_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"10000000000", "9999999999.99995", "-9999999999.99995",
                                 "922337203685478", "1e15", "1e300", "-1e400"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void aTextBeyondTheRangeOverflows()
    {
        QFETCH(QString, text);
        QCOMPARE(errorNumberOf([&] { return Currency::fromText(text); }), RunTimeError::Overflow);
    }

    void aTextThatIsNoNumberIsATypeMismatch()
    {
        for (const char *text : {"", "one", "1,5", "--1", ".", "0,001", "1,234", "1.5\xC2\xA0",
                                 "\t1", "1\n", "\u0661", "\uFF11"})
            QCOMPARE(errorNumberOf([&] { return Currency::fromText(QString::fromUtf8(text)); }),
                     RunTimeError::TypeMismatch);
    }

    void aDoubleIsRoundedToFourDecimals()
    {
        QCOMPARE(qint64(Currency(3 * 0.1).scaled()), qint64(3'000));
        QCOMPARE(qint64(Currency(-1.26).scaled()), qint64(-12'600));
        QCOMPARE(qint64(Currency(0.03125).scaled()), qint64(312));
        QCOMPARE(qint64(Currency(0.09375).scaled()), qint64(938));
        QCOMPARE(errorNumberOf([] { return Currency(1e15); }), RunTimeError::Overflow);
        QCOMPARE(errorNumberOf([] { return Currency(-1e15); }), RunTimeError::Overflow);
    }

    void theTextHasTwoDecimalsALeadingZeroAndGroups_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *number, const char *text) {
            QTest::newRow(number) << QString::fromLatin1(number) << QString::fromLatin1(text);
        };
        row("0", "0.00");
        row("1", "1.00");
        row("0.5", "0.50");
        row("1.26", "1.26");
        row("1.264", "1.26");
        row("1.265", "1.26");
        row("1.275", "1.28");
        row("-0.004", "0.00");
        row("-0.5", "-0.50");
        row("1234.5", "1,234.50");
        row("-1234567.891", "-1,234,567.89");
    }

    void theTextHasTwoDecimalsALeadingZeroAndGroups()
    {
        QFETCH(QString, number);
        QTEST(Currency::fromText(number).toText(), "text");
    }

    void wholeNumbersAreRoundedHalvesToEven()
    {
        const auto whole = [](const char *text) {
            return Currency::fromText(QString::fromLatin1(text)).toInteger();
        };
        QCOMPARE(whole("12.6"), Integer(13));
        QCOMPARE(whole("12.5"), Integer(12));
        QCOMPARE(whole("13.5"), Integer(14));
        QCOMPARE(whole("-0.5"), Integer(0));
        QCOMPARE(whole("-1.5"), Integer(-2));
        QCOMPARE(errorNumberOf([&] { return whole("32768"); }), RunTimeError::Overflow);
    }

    void aProductIsExactAndChecked()
    {
        QCOMPARE(Currency::fromText(u"1.26"_s) * Integer(10), Currency::fromText(u"12.6"_s));
        QCOMPARE(Currency(0) * Integer(-3), Currency(0));
        QCOMPARE(Currency::largest() * Integer(-1), Currency::smallest());
        for (const int factor : {2, -2, Integer::Max, Integer::Min}) {
            QCOMPARE(errorNumberOf([&] { return Currency::largest() * Integer(factor); }),
                     RunTimeError::Overflow);
            QCOMPARE(errorNumberOf([&] { return Currency::smallest() * Integer(factor); }),
                     RunTimeError::Overflow);
        }
    }

    void comparisonsFollowTheValues()
    {
        QVERIFY(Currency(3) < Currency::fromText(u"3.0001"_s));
        QVERIFY(Currency(-1) < Currency(0));
    }
};

QTEST_APPLESS_MAIN(Currency_test)

#include "Currency_test.moc"
