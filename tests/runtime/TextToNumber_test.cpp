// SPDX-License-Identifier: GPL-3.0-or-later
#include "runtime/TextToNumber.h"

#include "runtime/ErrorNumber.h"

#include <QLocale>
#include <QTest>

using namespace Qt::StringLiterals;

class TextToNumber_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextIsRoundedToTheNearestWholeNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        const auto row = [](const char *text, int number) {
            QTest::newRow(text) << QString::fromUtf8(text) << number;
        };
        row("0", 0);
        row("1", 1);
        row("-1", -1);
        row("+7", 7);
        row("007", 7);
        row("12", 12);
        row(" 12", 12);
        row("12  ", 12);
        row("   12 ", 12);
        row("2.0", 2);
        row("2.", 2);
        row(".4", 0);
        row("1.e0", 1);
        row("+0000000000000000000000000000000000000032767", 32767);
        row("32767.4999999999999999999999", 32767);
        row("2.5000000000000000000000001", 3);
        row("-2.5000000000000000000000001", -3);
        row("1e-400", 0);
        row("1e-99999999999999999999", 0);
        row("0e99999999999999999999", 0);
        row("2.49", 2);
        row("2.51", 3);
        row("-2.49", -2);
        row("-2.51", -3);
        row("1e3", 1000);
        row("1E3", 1000);
        row("2.5e1", 25);
        row("32767", 32767);
        row("-32768", -32768);
    }

    void aTextIsRoundedToTheNearestWholeNumber()
    {
        QFETCH(QString, text);
        QTEST(toInteger(text).toInt(), "number");
    }

    void halvesGoToTheEvenNumber_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("number");
        for (int whole = -5; whole <= 5; ++whole) {
            const double half = whole + 0.5;
            const int even = whole % 2 == 0 ? whole : whole + 1;
            const QString text = QString::number(half, 'f', 1);
            QTest::newRow(qPrintable(text)) << text << even;
        }
        QTest::newRow("32766.5") << u"32766.5"_s << 32766;
        QTest::newRow("-32768.5") << u"-32768.5"_s << -32768;
        QTest::newRow("-32767.5") << u"-32767.5"_s << -32768;
    }

    void halvesGoToTheEvenNumber()
    {
        QFETCH(QString, text);
        QTEST(toInteger(text).toInt(), "number");
    }

    void whatDoesNotFitOverflows_data()
    {
        QTest::addColumn<QString>("text");
        for (const char *text : {"32767.5", "32768", "-32768.51", "-32769", "65536", "1e10",
                                 "-1e300", "99999999999999999999"})
            QTest::newRow(text) << QString::fromLatin1(text);
    }

    void whatDoesNotFitOverflows()
    {
        QFETCH(QString, text);
        QCOMPARE(errorNumberOf([&] { return toInteger(text); }), RunTimeError::Overflow);
        // It is a number, but does not fit into 16 bits.
        QCOMPARE(errorNumberOf([&] { return toNumber(text); }), NoRunTimeError);
    }

    void whatFitsNoNumberAtAllOverflows_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("1e400") << u"1e400"_s;
        QTest::newRow("-1e400") << u"-1e400"_s;
        QTest::newRow("400 digits") << QString(400, u'9');
        QTest::newRow("20 digits of exponent") << u"1e99999999999999999999"_s;
    }

    void whatFitsNoNumberAtAllOverflows()
    {
        QFETCH(QString, text);
        QCOMPARE(errorNumberOf([&] { return toInteger(text); }), RunTimeError::Overflow);
        QCOMPARE(errorNumberOf([&] { return toNumber(text); }), RunTimeError::Overflow);
    }

    void whatIsNoNumberIsATypeMismatch_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("nothing") << QString();
        QTest::newRow("a blank") << u" "_s;
        for (const char *text :
             {"V",  "one", "12a", "a12", "1 2",  "--1",   "+-1",   "1-",  "-",    ".",  "1.2.3",
              "e5", ".e5", "1e",  "1e+", "1e5.", "1e5e5", "\"2\"", "inf", "-inf", "nan"})
            QTest::newRow(text) << QString::fromLatin1(text);
        QTest::newRow("groups") << u"1,234"_s;
        QTest::newRow("groups behind a zero") << u"0,001"_s;
        QTest::newRow("a no-break space") << u"1.5\u00A0"_s;
        QTest::newRow("a tab") << u"\t1"_s;
        QTest::newRow("a line break") << u"1\n"_s;
        QTest::newRow("Arabic digits") << u"\u0661\u0662"_s;
        QTest::newRow("wide digits") << u"\uFF11"_s;
        QTest::newRow("a minus of its own") << u"\u22121"_s;
    }

    void whatIsNoNumberIsATypeMismatch()
    {
        QFETCH(QString, text);
        QCOMPARE(errorNumberOf([&] { return toInteger(text); }), RunTimeError::TypeMismatch);
        QCOMPARE(errorNumberOf([&] { return toNumber(text); }), RunTimeError::TypeMismatch);
    }

    void aNumberTooSmallForADoubleIsZero()
    {
        for (const char *text : {"1e-400", "-2e-1021", "0.1e-99999999999999999999"})
            QCOMPARE(toNumber(QString::fromLatin1(text)), 0.0);
    }

    void fractionsAndLargeNumbersStayAsTheyAre()
    {
        QCOMPARE(toNumber(u" 0.25 "_s), 0.25);
        QCOMPARE(toNumber(u"-1.75"_s), -1.75);
        QCOMPARE(toNumber(u"1234567"_s), 1234567.0);
    }

    void thePersonsLanguageDoesNotMatter()
    {
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const double number = toNumber(u"1.5"_s);
        const auto error = errorNumberOf([] { return toNumber(u"1,5"_s); });
        QLocale::setDefault(before);
        QCOMPARE(number, 1.5);
        QCOMPARE(error, RunTimeError::TypeMismatch);
    }
};

QTEST_APPLESS_MAIN(TextToNumber_test)

#include "TextToNumber_test.moc"
