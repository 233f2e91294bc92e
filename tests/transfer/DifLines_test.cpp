// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/DifLines.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

namespace {

QStringList linesOf(const QByteArray &bytes)
{
    const Array<QString> lines = difLines(bytes);
    QStringList list;
    for (int i = 1; i <= lines.size(); ++i)
        list += lines(i);
    return list;
}

} // namespace

class DifLines_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineEndsAtCarriageReturnOrAtBothOrInAFileWithoutItAtLineFeed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QByteArray &bytes, const QString &lines) {
            QTest::newRow(name) << bytes << lines.split(QLatin1Char('|'));
        };
        row("CR LF", "one\r\ntwo\r\n", QStringLiteral("one|two"));
        row("CR", "one\rtwo\r", QStringLiteral("one|two"));
        row("LF", "one\ntwo\n", QStringLiteral("one|two"));
        row("CR LF, the last line open", "one\r\ntwo", QStringLiteral("one|two"));
        row("CR, the last line open", "one\rtwo", QStringLiteral("one|two"));
        row("LF, the last line open", "one\ntwo", QStringLiteral("one|two"));
        row("CR and CR LF mixed", "one\rtwo\r\nthree\r", QStringLiteral("one|two|three"));
        row("LF belongs to a line where there is CR", "one\ntwo\rthree\n",
            QStringLiteral("one\ntwo|three\n"));
        row("LF CR is CR after a text", "one\n\rtwo", QStringLiteral("one\n|two"));
        row("empty lines, CR LF", "\r\n\r\nthree\r\n\r\n", QStringLiteral("||three|"));
        row("empty lines, CR", "\r\rthree\r\r", QStringLiteral("||three|"));
        row("empty lines, LF", "\n\nthree\n\n", QStringLiteral("||three|"));
        row("one line alone", "one", QStringLiteral("one"));
        row("one line end alone", "\r\n", QString());
        row("a line of blanks", "  \r\n", QStringLiteral("  "));
    }

    void aLineEndsAtCarriageReturnOrAtBothOrInAFileWithoutItAtLineFeed()
    {
        QFETCH(QByteArray, bytes);
        QTEST(linesOf(bytes), "lines");
    }

    void anEmptyFileHasNoLine() { QCOMPARE(difLines(QByteArray()).size(), 0); }

    void charactersAreWindows1252()
    {
        QCOMPARE(linesOf("cr\xE8me \x96 \x80\r\n"),
                 QStringList{QStringLiteral("cr\u00E8me \u2013 \u20AC")});
    }

    void zeroBytesAreCharacters()
    {
        QCOMPARE(
            linesOf(QByteArray("a\0b\r\nc", 6)),
            (QStringList{QStringLiteral("a") + QChar(0) + QLatin1Char('b'), QStringLiteral("c")}));
    }

    void aCountFollowsTheFirstComma_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("count");
        const auto row = [](const char *line, const char *count) {
            QTest::addRow("\"%s\"", line)
                << QString::fromLatin1(line) << QString::fromLatin1(count);
        };
        row("0,3", "3");
        row("0, 12 ", " 12 ");
        row("0,1,2", "1,2");
        row(",7", "7");
        row("0,", "0");
        row(",", "0");
        row("0", "0");
        row("V", "0");
        row("", "0");
        row("0,V", "V");
    }

    void aCountFollowsTheFirstComma()
    {
        QFETCH(QString, line);
        QTEST(difCount(line), "count");
    }

    void aValueIsTheLineWithoutItsFirstAndLastCharacter_data()
    {
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("value");
        const auto row = [](const char *line, const char *value) {
            QTest::newRow(line) << QString::fromLatin1(line) << QString::fromLatin1(value);
        };
        row("\"cat\"", "cat");
        row("\"\"", "");
        row("\" cat \"", " cat ");
        row("\"say \"\"hi\"\"\"", "say \"\"hi\"\"");
        row("cats", "at"); // whatever they are
        row("ab", "");
        row("\"cat", "ca");
    }

    void aValueIsTheLineWithoutItsFirstAndLastCharacter()
    {
        QFETCH(QString, line);
        QTEST(difValue(line), "value");
    }

    void aValueLineShorterThanItsQuotesIsReported()
    {
        for (const QString &line : {QString(), QStringLiteral("V"), QStringLiteral("\"")})
            QCOMPARE(errorNumberOf([&] { return difValue(line); }),
                     RunTimeError::InvalidProcedureCall);
    }
};

QTEST_APPLESS_MAIN(DifLines_test)

#include "DifLines_test.moc"
