// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/DifLines.h"

#include "runtime/ErrorNumber.h"

#include <QTest>

using namespace Qt::StringLiterals;

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
            QTest::newRow(name) << bytes << lines.split(u'|');
        };
        row("CR LF", "one\r\ntwo\r\n", u"one|two"_s);
        row("CR", "one\rtwo\r", u"one|two"_s);
        row("LF", "one\ntwo\n", u"one|two"_s);
        row("CR LF, the last line open", "one\r\ntwo", u"one|two"_s);
        row("CR, the last line open", "one\rtwo", u"one|two"_s);
        row("LF, the last line open", "one\ntwo", u"one|two"_s);
        row("CR and CR LF mixed", "one\rtwo\r\nthree\r", u"one|two|three"_s);
        row("LF belongs to a line where there is CR", "one\ntwo\rthree\n", u"one\ntwo|three\n"_s);
        row("LF CR is CR after a text", "one\n\rtwo", u"one\n|two"_s);
        row("empty lines, CR LF", "\r\n\r\nthree\r\n\r\n", u"||three|"_s);
        row("empty lines, CR", "\r\rthree\r\r", u"||three|"_s);
        row("empty lines, LF", "\n\nthree\n\n", u"||three|"_s);
        row("one line alone", "one", u"one"_s);
        row("one line end alone", "\r\n", QString());
        row("a line of blanks", "  \r\n", u"  "_s);
    }

    void aLineEndsAtCarriageReturnOrAtBothOrInAFileWithoutItAtLineFeed()
    {
        QFETCH(QByteArray, bytes);
        QTEST(linesOf(bytes), "lines");
    }

    void aFileEndsAtLineFeedWhereItsFirst64KiBHaveNoCarriageReturn()
    {
        const QByteArray start = "one\ntwo\n"_ba.leftJustified(64 * 1024, 'x');
        const QStringList lines = linesOf(start + "\rfour");
        QCOMPARE(lines.size(), 3);
        QCOMPARE(lines.first(2), (QStringList{u"one"_s, u"two"_s}));
        QCOMPARE(linesOf(start.chopped(1) + "\rfour").size(), 2);
    }

    void aLineOfMoreThan16MiBEndsTheLines()
    {
        const qsizetype longest = 16 * 1024 * 1024;
        QCOMPARE(linesOf("one\r" + QByteArray(longest, '\0') + "\rthree").size(), 3);
        const QByteArray tooLong = "one\r" + QByteArray(longest + 1, '\0');
        QCOMPARE(linesOf(tooLong + "\rthree"), QStringList{u"one"_s});
        QCOMPARE(difEnd(tooLong), std::optional<qsizetype>(4));
        QCOMPARE(difEnd(tooLong.chopped(1)), std::nullopt);
    }

    // The import does not look at the lines "...".
    void anImportLooksAtTheLinesUpToItsEnd_data()
    {
        QTest::addColumn<QByteArray>("vectors");
        QTest::addColumn<QByteArray>("tuples");
        QTest::addColumn<QByteArray>("data"); // from line 14 on
        const auto row = [](const char *name, const char *vectors, const char *tuples,
                            const char *data) {
            QTest::newRow(name) << QByteArray(vectors) << QByteArray(tuples) << QByteArray(data);
        };
        row("two values", "0,1", "0,2", "BOT|t|w|t|d|-1,0|EOD|...");
        row("word and sentence", "0,1", "0,3", "BOT|t|w|t|s|-1,0|EOD|...");
        row("the word alone", "0,1", "0,1", "BOT|t|w|BOT|t|w|EOD|...");
        row("two rows", "0,9", "0,2", "BOT|t|w|t|d|-1,0|BOT|t|w|t|d|EOD|...");
        row("EOD at the first line of data", "0,1", "0,2", "EOD|x|EOD|...");
        row("EOD as type", "0,1", "0,2", "BOT|EOD|w|EOD|d|EOD|...");
        row("EOD as word of two values", "0,1", "0,2", "BOT|t|EOD|t|d|EOD|...");
        row("EOD as word alone", "0,1", "0,1", "BOT|t|EOD|...");
        row("BOT as type", "0,1", "0,1", "BOT|BOT|w|EOD|...");
        row("BOT as word alone", "0,1", "0,1", "BOT|t|BOT|t|w|EOD|...");
        row("a word too short", "0,1", "0,1", "BOT|t||x|EOD|...");
        row("no vectors", "0,0", "0,2", nullptr);
        row("vectors that are no number", "0,V", "0,2", nullptr);
        row("tuples that are no number", "0,1", "0,T", nullptr);
        row("too many tuples", "0,1", "0,99999", nullptr);
    }

    void anImportLooksAtTheLinesUpToItsEnd()
    {
        QFETCH(QByteArray, vectors);
        QFETCH(QByteArray, tuples);
        QFETCH(QByteArray, data);
        QByteArrayList lines{"TABLE", "0,1", "\"\"", "VECTORS", vectors, "\"\"", "TUPLES", tuples};
        if (!data.isNull())
            lines += QByteArrayList{"\"\"", "DATA", "0,0", "\"\"", "-1,0"} + data.split('|');
        if (lines.last() == "...")
            lines.removeLast();
        for (const QByteArray &lineEnd : {"\r\n"_ba, "\r"_ba, "\n"_ba}) {
            const QByteArray bytes = lines.join(lineEnd) + lineEnd;
            for (qsizetype size = 0; size < bytes.size() - lineEnd.size(); ++size)
                QCOMPARE(difEnd(bytes.first(size)), std::nullopt);
            QCOMPARE(difEnd(bytes), std::optional<qsizetype>(bytes.size()));
            QCOMPARE(difEnd(bytes + "..." + lineEnd), std::optional<qsizetype>(bytes.size()));
        }
    }

    void anEmptyFileHasNoLine() { QCOMPARE(difLines(QByteArray()).size(), 0); }

    void charactersAreWindows1252()
    {
        QCOMPARE(linesOf("cr\xE8me \x96 \x80\r\n"), QStringList{u"cr\u00E8me \u2013 \u20AC"_s});
    }

    void zeroBytesAreCharacters()
    {
        QCOMPARE(linesOf(QByteArray("a\0b\r\nc", 6)),
                 (QStringList{u"a"_s + QChar(0) + u'b', u"c"_s}));
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
        row("cats", "at"); // any characters
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
        for (const QString &line : {QString(), u"V"_s, u"\""_s})
            QCOMPARE(errorNumberOf([&] { return difValue(line); }),
                     RunTimeError::InvalidProcedureCall);
    }
};

QTEST_APPLESS_MAIN(DifLines_test)

#include "DifLines_test.moc"
