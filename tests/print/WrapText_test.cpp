// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/WrapText.h"

#include "platform/RecordingPrinter.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

constexpr double Character = RecordingPrinter::CharacterWidth;
constexpr double Line = RecordingPrinter::LineHeight;

// The lines of a paragraph on a sheet of this many characters.
QStringList wrapped(const QString &text, int characters)
{
    RecordingPrinter printer(characters, 1000);
    printWrapped(printer, text, {});
    return printer.lines();
}

// A sheet of 10 characters and 4 lines.
constexpr int Characters = 10;
constexpr int Lines = 4;

} // namespace

class WrapText_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aLineIsBrokenAtItsLastBlank_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("lines");
        const auto row = [](const char *name, const QString &text, const QStringList &lines) {
            QTest::newRow(name) << text << lines;
        };
        row("fits", u"abc def"_s, {u"abc def"_s});
        row("fits exactly", u"abcd fghij"_s, {u"abcd fghij"_s});
        row("one character too many", u"abcd fghijk"_s, {u"abcd"_s, u"fghijk"_s});
        row("a blank that fills the line", u"abcdefghi k"_s, {u"abcdefghi"_s, u"k"_s});
        // A line that is exactly as wide as the frame is full: the blank after it belongs to the
        // next line.
        row("a word that fills the line after a blank", u"abcd fghij klm"_s,
            {u"abcd"_s, u"fghij klm"_s});
        row("trimmed where it fits", u"  abc  "_s, {u"abc"_s});
        row("leading blanks of a broken line stay", u"  abc def ghi"_s, {u"  abc def"_s, u"ghi"_s});
        row("blanks before the break stay", u"abcde    fgh ijk"_s, {u"abcde   "_s, u"fgh ijk"_s});
        row("only the last line is trimmed", u"abc defg    hij klm  "_s,
            {u"abc defg "_s, u"  hij klm"_s});
        row("several lines", u"aaa bbb ccc ddd eee fff"_s,
            {u"aaa bbb"_s, u"ccc ddd"_s, u"eee fff"_s});
        row("a word wider than the line", u"abcdefghijklmnopqrstuvwxyz"_s,
            {u"abcdefghij"_s, u"klmnopqrst"_s, u"uvwxyz"_s});
        row("a wide word after a short one", u"ab cdefghijklmn"_s,
            {u"ab"_s, u"cdefghijkl"_s, u"mn"_s});
        row("a wide word in the middle", u"ab cdefghijklm no"_s,
            {u"ab"_s, u"cdefghijkl"_s, u"m no"_s});
        row("no-break spaces are no blanks", u"ab\u00A0cdefghijk"_s,
            {u"ab\u00A0cdefghi"_s, u"jk"_s});
        row("a surrogate pair stays together", u"abcdefghi\U0001F600jk"_s,
            {u"abcdefghi"_s, u"\U0001F600jk"_s});
        row("half a surrogate pair counts as a character", u"abcdefghi\xD83Djk"_s,
            {u"abcdefghi\xD83D"_s, u"jk"_s});
    }

    void aLineIsBrokenAtItsLastBlank()
    {
        QFETCH(QString, text);
        QTEST(wrapped(text, Characters), "lines");
    }

    void aBlankBeforeAWordWiderThanTheLineGivesAnEmptyLine()
    {
        RecordingPrinter printer(Characters, Lines);
        printWrapped(printer, u" abcdefghijkl"_s, {});
        QCOMPARE(printer.places(), QStringList({u"1: 0,1 abcdefghij"_s, u"1: 0,2 kl"_s}));
    }

    void ifTheMarginsLeaveNoRoomEachCharacterIsALine()
    {
        RecordingPrinter printer(Characters, Lines);
        printWrapped(printer, u"abc"_s, {0, 0, 6 * Character, 6 * Character});
        QCOMPARE(printer.lines(), QStringList({u"a"_s, u"b"_s, u"c"_s}));
    }

    void anEmptyParagraphIsAnEmptyLine()
    {
        RecordingPrinter printer(Characters, Lines);
        printWrapped(printer, {}, {});
        QCOMPARE(printer.sheets, 0);
        QCOMPARE(printer.CurrentY, Line);
    }

    void linesAfterTheFirstBeginAtTheLeftMargin()
    {
        RecordingPrinter printer(Characters, Lines);
        printer.CurrentX = 5 * Character;
        printWrapped(printer, u"aaaa bbbb"_s, {0, 0, 2 * Character, 2 * Character});
        QCOMPARE(printer.places(), QStringList({u"1: 5,0 aaaa"_s, u"1: 2,1 bbbb"_s}));
    }

    void paragraphsEndAtLineFeeds_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("places");
        const auto row = [](const char *name, const QString &text, const QStringList &places) {
            QTest::newRow(name) << text << places;
        };
        row("nothing", {}, {});
        row("one", u"a"_s, {u"1: 1,0 a"_s});
        row("two", u"a\r\nb"_s, {u"1: 1,0 a"_s, u"1: 1,1 b"_s});
        row("an empty one between", u"a\r\n\r\nb"_s, {u"1: 1,0 a"_s, u"1: 1,2 b"_s});
        row("a line feed at the end", u"a\r\n"_s, {u"1: 1,0 a"_s});
        row("a line feed at the start", u"\nb"_s, {u"1: 1,1 b"_s});
        row("the character before a line feed goes", u"abc\nd"_s, {u"1: 1,0 ab"_s, u"1: 1,1 d"_s});
    }

    void paragraphsEndAtLineFeeds()
    {
        QFETCH(QString, text);
        RecordingPrinter printer(Characters, Lines);
        printParagraphs(printer, text, {0, 0, Character, 0});
        QTEST(printer.places(), "places");
    }

    void belowTheBottomMarginANewPageBeginsAtTheMargins()
    {
        RecordingPrinter printer(Characters, 6);
        const PageFrame frame{Line, 3 * Line, Character, 0};
        // A line that begins exactly on the margin is still printed.
        printer.CurrentY = 2 * Line;
        printParagraphs(printer, u"a\r\nb\r\nc\r\nd"_s, frame);
        QCOMPARE(printer.places(),
                 QStringList({u"1: 1,2 a"_s, u"1: 1,3 b"_s, u"2: 1,1 c"_s, u"2: 1,2 d"_s}));
    }

    void theFixedLayoutContinuesInTheCornerOfANewPage()
    {
        RecordingPrinter printer(Characters, 6);
        const PageFrame frame{Line, 3 * Line, Character, 5 * Character, PageFrame::Break::ToCorner};
        printer.CurrentX = Character;
        printer.CurrentY = 4 * Line;
        printWrapped(printer, u"aaa bbb ccc"_s, frame);
        QCOMPARE(printer.places(),
                 QStringList({u"1: 0,0 aaa"_s, u"1: 1,1 bbb"_s, u"1: 1,2 ccc"_s}));
    }

    void aLineThatDoesNotFitOnTheSheetGoesToTheNext()
    {
        RecordingPrinter printer(Characters, Lines);
        const PageFrame frame{Line, 0, Character, 0};
        printer.CurrentY = 3 * Line;
        printParagraphs(printer, u"a\r\nb"_s, frame);
        QCOMPARE(printer.places(), QStringList({u"1: 1,3 a"_s, u"2: 1,1 b"_s}));
    }

    void onASheetShorterThanItsTopMarginNoLineIsLost()
    {
        RecordingPrinter printer(Characters, Lines);
        const PageFrame frame{12 * Line, 0, 0, 0};
        printer.CurrentY = frame.top;
        printParagraphs(printer, u"a\r\nb"_s, frame);
        QCOMPARE(printer.places(), QStringList({u"1: 0,3 a"_s, u"2: 0,3 b"_s}));
    }

    void theTimeForALongParagraphIsProportionalToItsLength()
    {
        const auto measuredFor = [](int words) {
            RecordingPrinter printer(Characters, 100'000);
            printWrapped(printer, u"aaaa bbbb "_s.repeated(words), {});
            return printer.charactersMeasured;
        };
        QVERIFY(measuredFor(4000) < 5 * measuredFor(1000));
    }
};

QTEST_APPLESS_MAIN(WrapText_test)

#include "WrapText_test.moc"
