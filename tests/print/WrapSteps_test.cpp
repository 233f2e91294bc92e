// SPDX-License-Identifier: GPL-3.0-or-later
// Compares the wrapping of random paragraphs with wrapping character by character.
#include "print/WrapText.h"

#include "print/UnevenPrinter.h"

#include <QTest>

#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr double Unit = UnevenPrinter::Unit;
constexpr QChar Blank = u' ';

// Fills the line up to the width, then goes back before its last blank.
QString takeLine(const Printer &printer, QString &unprinted, double width)
{
    const QString text = unprinted;
    QString line;
    do {
        line += unprinted.front();
        unprinted.remove(0, 1);
    } while (printer.TextWidth(line) < width);
    while (!line.isEmpty()) {
        const QChar last = line.back();
        line.chop(1);
        if (last == Blank)
            return line;
        unprinted.prepend(last);
    }
    // Without a blank the line ends after the last character that fits.
    qsizetype end = 1;
    while (end < text.size() && printer.TextWidth(text.first(end + 1)) <= width)
        ++end;
    unprinted = text.sliced(end);
    return text.first(end);
}

QString trimmed(QString line)
{
    while (line.startsWith(Blank))
        line.remove(0, 1);
    while (line.endsWith(Blank))
        line.chop(1);
    return line;
}

QStringList placesOneByOne(const Printer &printer, QString unprinted, double width, int left)
{
    QStringList lines;
    while (printer.TextWidth(unprinted) > width)
        lines += takeLine(printer, unprinted, width);
    lines += trimmed(unprinted);
    QStringList places;
    for (qsizetype i = 0; i < lines.size(); ++i)
        if (!trimmed(lines[i]).isEmpty())
            places +=
                u"1: %1,%2 %3"_s.arg(left).arg(i * UnevenPrinter::RegularHeight).arg(lines[i]);
    return places;
}

} // namespace

class WrapSteps_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void randomParagraphsBreakAsWhenMeasuredByCharacter_data()
    {
        QTest::addColumn<QString>("alphabet");
        QTest::newRow("short words") << u"aiw  "_s;
        QTest::newRow("long words") << u"aiwaiwaiwaiw "_s;
        QTest::newRow("mostly blanks") << u"a   i   "_s;
        QTest::newRow("combining accents") << u"a\u0301i\u0301w "_s;
    }

    void randomParagraphsBreakAsWhenMeasuredByCharacter()
    {
        QFETCH(QString, alphabet);
        std::mt19937 random(20'111);
        const auto upTo = [&random](int most) {
            return std::uniform_int_distribution(0, most)(random);
        };
        for (int round = 0; round < 3000; ++round) {
            QString text;
            for (int length = upTo(60); length > 0; --length)
                text += alphabet[upTo(int(alphabet.size()) - 1)];
            UnevenPrinter printer(12 + upTo(40));
            const int left = upTo(6);
            const int right = upTo(6);
            const double width = printer.ScaleWidth() - (left + right) * Unit;
            printer.CurrentX = left * Unit;
            printWrapped(printer, text, {0, 0, left * Unit, right * Unit});
            QCOMPARE(printer.places, placesOneByOne(printer, text, width, left));
        }
    }

    void textIsMeasuredInItsStyle()
    {
        // "aa aa" is 10 units wide, and 15 in bold.
        for (const bool bold : {false, true}) {
            UnevenPrinter printer(10);
            printer.FontBold = bold;
            printWrapped(printer, u"aa aa"_s, {});
            QCOMPARE(printer.places, bold ? QStringList({u"1: 0,0 aa"_s, u"1: 0,5 aa"_s})
                                          : QStringList({u"1: 0,0 aa aa"_s}));
        }
    }

    void aWordAsWideAsTheLineIsNotCut()
    {
        UnevenPrinter printer(10);
        printWrapped(printer, u"wia\u0301a ia"_s, {});
        // The blank after it is beyond the width. It begins the last line, which is trimmed.
        QCOMPARE(printer.places, QStringList({u"1: 0,0 wia\u0301a"_s, u"1: 0,2 ia"_s}));
    }

    void aCharacterWiderThanTheLineHasItsOwnLine()
    {
        UnevenPrinter printer(4);
        printWrapped(printer, u"iiwwii i"_s, {});
        QCOMPARE(printer.places, QStringList({u"1: 0,0 ii"_s, u"1: 0,2 w"_s, u"1: 0,4 w"_s,
                                              u"1: 0,6 ii"_s, u"1: 0,8 i"_s}));
    }

    void aParagraphOfBlanksIsBrokenToo()
    {
        UnevenPrinter printer(4);
        // Three lines of blanks, the last one trimmed.
        printWrapped(printer, u"       "_s, {});
        QCOMPARE(printer.places, QStringList());
        QCOMPARE(printer.CurrentY, 4 * UnevenPrinter::RegularHeight * Unit);
    }

    void eachLineOfAParagraphIsCheckedForThePage_data()
    {
        QTest::addColumn<int>("y");
        QTest::addColumn<QStringList>("places");
        QTest::newRow("the last line is on the margin")
            << 4 << QStringList({u"1: 1,4 aa"_s, u"1: 1,6 aa"_s, u"1: 1,8 aa"_s});
        QTest::newRow("the last line is below it")
            << 5 << QStringList({u"1: 1,5 aa"_s, u"1: 1,7 aa"_s, u"2: 1,3 aa"_s});
        QTest::newRow("the second line is below it")
            << 7 << QStringList({u"1: 1,7 aa"_s, u"2: 1,3 aa"_s, u"2: 1,5 aa"_s});
        QTest::newRow("the first line is below it")
            << 9 << QStringList({u"1: 1,3 aa"_s, u"1: 1,5 aa"_s, u"1: 1,7 aa"_s});
    }

    void eachLineOfAParagraphIsCheckedForThePage()
    {
        QFETCH(int, y);
        UnevenPrinter printer(8, 20);
        // Lines begin no lower than 8 units from the top.
        const PageFrame frame{3 * Unit, 12 * Unit, Unit, 2 * Unit};
        printer.CurrentX = Unit;
        printer.CurrentY = y * Unit;
        printWrapped(printer, u"aa aa aa"_s, frame);
        QTEST(printer.places, "places");
    }

    void theFixedLayoutContinuesDownwardsFromTheCorner()
    {
        UnevenPrinter printer(24, 22);
        const PageFrame frame{1, 1, 1, 1, PageFrame::Break::ToCorner};
        printer.CurrentX = 1;
        printer.CurrentY = 1;
        printParagraphs(printer, u"aa aaa bbb ccc ddd eee fff ggg hhh iii"_s, frame);
        // Lines are 8 units wide and begin no lower than 14 units from the top.
        QCOMPARE(printer.places.mid(0, 4), QStringList({u"1: 8,8 aa"_s, u"1: 8,10 aaa"_s,
                                                        u"1: 8,12 bbb"_s, u"1: 8,14 ccc"_s}));
        QCOMPARE(printer.places.mid(4),
                 QStringList({u"2: 0,0 ddd"_s, u"2: 8,2 eee"_s, u"2: 8,4 fff"_s, u"2: 8,6 ggg"_s,
                              u"2: 8,8 hhh"_s, u"2: 8,10 iii"_s}));
    }

    void aLineFeedAnywhereEndsAParagraph_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("places");
        const auto row = [](const char *name, const QString &text, const QStringList &places) {
            QTest::newRow(name) << text << places;
        };
        row("two empty paragraphs", u"a\r\n\r\n\r\nb"_s, {u"1: 1,0 a"_s, u"1: 1,6 b"_s});
        row("at the start with its carriage return", u"\r\nb"_s, {u"1: 1,2 b"_s});
        row("two at the start", u"\n\nb"_s, {u"1: 1,4 b"_s});
        row("alone", u"\n"_s, {});
        row("each paragraph is trimmed", u"  a \r\n b "_s, {u"1: 1,0 a"_s, u"1: 1,2 b"_s});
        row("a paragraph of blanks", u"a\r\n   \r\nb"_s, {u"1: 1,0 a"_s, u"1: 1,4 b"_s});
        row("a carriage return alone ends no paragraph", u"a\rb"_s, {u"1: 1,0 a\rb"_s});
        row("each is wrapped", u"aa aa\r\nbb bb"_s,
            {u"1: 1,0 aa"_s, u"1: 1,2 aa"_s, u"1: 1,4 bb"_s, u"1: 1,6 bb"_s});
    }

    void aLineFeedAnywhereEndsAParagraph()
    {
        QFETCH(QString, text);
        UnevenPrinter printer(9);
        printParagraphs(printer, text, {0, 0, Unit, 0});
        QTEST(printer.places, "places");
    }

    void anEmptyParagraphTakesALineAndMayBeginAPage()
    {
        UnevenPrinter printer(10);
        printParagraphs(printer, u"\n"_s, {});
        QCOMPARE(printer.CurrentY, UnevenPrinter::RegularHeight * Unit);

        UnevenPrinter small(10, 20);
        small.CurrentY = 9 * Unit;
        printParagraphs(small, u"\r\na"_s, {3 * Unit, 12 * Unit, 0, 0});
        QCOMPARE(small.places, QStringList({u"1: 0,5 a"_s}));
    }
};

QTEST_APPLESS_MAIN(WrapSteps_test)

#include "WrapSteps_test.moc"
