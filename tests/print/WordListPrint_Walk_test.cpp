// SPDX-License-Identifier: GPL-3.0-or-later
// Which entries a job prints, in which styles and at which places.
#include "print/WordListPrint.h"

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "platform/RecordingPrinter.h"
#include "print/UnevenPrinter.h"

#include <QTest>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const auto GoOn = [](int /*done*/, int /*total*/) { return true; };

QStringList headers(const RecordingPrinter &printer)
{
    QStringList headers;
    for (const RecordingPrinter::Text &text : printer.texts)
        if (text.style.bold)
            headers += text.text;
    return headers;
}

QStringList headersOf(const WordListPrint &job)
{
    RecordingPrinter printer(40, 1000);
    job.print(printer, gVocabList(), GoOn);
    return headers(printer);
}

// The positions that become current, in order.
QList<int> walkOf(const WordListPrint &job, Integer copies = 1)
{
    RecordingPrinter printer;
    printer.Copies = copies;
    QList<int> walk;
    job.print(printer, gVocabList(), [&walk](int, int) {
        walk += gVocabList().CurrentWord().toInt();
        return true;
    });
    return walk;
}

} // namespace

class WordListPrint_Walk_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        fill(6);
        PrintItemNumber = false;
    }

    void eachPrintedEntryBecomesTheCurrentOne_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QList<int>>("walk");
        QTest::newRow("upwards") << 2 << 5 << QList<int>{2, 3, 4, 5, 2, 3, 4, 5};
        QTest::newRow("downwards") << 5 << 2 << QList<int>{5, 4, 3, 2, 5, 4, 3, 2};
        QTest::newRow("one") << 3 << 3 << QList<int>{3, 3};
    }

    void eachPrintedEntryBecomesTheCurrentOne()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        FromWord = from;
        ToWord = to;
        QTEST(walkOf(WordListPrint::chosen(), 2), "walk");
        QCOMPARE(gVocabList().CurrentWord(), Integer(to));
    }

    void theWholeListIsPrintedUpwardsWhateverTheRange()
    {
        FromWord = 5;
        ToWord = 2;
        QCOMPARE(walkOf(WordListPrint::wholeList()), QList<int>({1, 2, 3, 4, 5, 6}));
        QCOMPARE(headersOf(WordListPrint::wholeList()).first(2),
                 QStringList({u" 1. w1:  "_s, u" 2. w2:  "_s}));
    }

    void aRangeOfOneEntryRunsUpwards()
    {
        FromWord = ToWord = 4;
        QCOMPARE(headersOf(WordListPrint::chosen()), QStringList({u"w4:  "_s}));
        PrintItemNumber = true;
        QCOMPARE(headersOf(WordListPrint::chosen()), QStringList({u" 4. "_s, u"w4:  "_s}));
    }

    void aRangeBeyondTheListIsLimitedToTheList_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QStringList>("headers");
        QTest::newRow("end beyond the list") << 5 << 100 << QStringList({u"w5:  "_s, u"w6:  "_s});
        QTest::newRow("start beyond the list")
            << 100 << 5 << QStringList({u" 6. w6:  "_s, u" 5. w5:  "_s});
        QTest::newRow("both beyond the list") << 90 << 100 << QStringList({u"w6:  "_s});
        QTest::newRow("both beyond the list, downwards")
            << 100 << 90 << QStringList({u" 6. w6:  "_s});
    }

    void aRangeBeyondTheListIsLimitedToTheList()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        FromWord = from;
        ToWord = to;
        QTEST(headersOf(WordListPrint::chosen()), "headers");
        // The settings keep the longer range.
        QCOMPARE(FromWord, Integer(from));
        QCOMPARE(ToWord, Integer(to));
    }

    void theLinesOfAnEntryAreInTheirStyles()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"wi"_s, u"a\r\n\r\nb"_s, u"i\r\nw"_s);
        gVocabList().AddVocab(u"a"_s, {}, {});
        gVocabList().AddVocab(u"i"_s, {}, u"s"_s);
        FromWord = 1;
        ToWord = 3;
        PrintItemNumber = true;
        UnevenPrinter printer(100);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        // Bold lines are 5 units high, regular ones 2, italic and empty ones 3. The number " 1. "
        // is 12 units wide in bold.
        QCOMPARE(printer.places,
                 QStringList({u"1: 0,0  1. "_s, u"1: 12,0 wi:  "_s, u"1: 0,5 a"_s, u"1: 0,9 b"_s,
                              u"1: 0,11 i"_s, u"1: 0,14 w"_s, u"1: 0,20  2. "_s, u"1: 12,20 a:  "_s,
                              u"1: 0,28  3. "_s, u"1: 12,28 i:  "_s, u"1: 0,33 s"_s}));
        QCOMPARE(printer.Font, (PrintFont{u"Times New Roman"_s, 10}));
        QVERIFY(!printer.FontBold);
        QVERIFY(printer.FontItalic);
    }

    void aLongHeaderIsNotWrapped()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"a word wider than the page"_s, u"d"_s, {});
        RecordingPrinter printer(10, 20);
        FromWord = ToWord = 1;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        QCOMPARE(printer.places(),
                 QStringList({u"1: 0,0 a word wider than the page:  "_s, u"1: 0,1 d"_s}));
    }

    void aHeaderMayBeBelowTheBottomMarginButItsTextsMayNot()
    {
        // Counted from 0, line 2 is the last one above the bottom margin and line 4 the last one
        // of the sheet.
        RecordingPrinter printer(40, 5);
        FromWord = 1;
        ToWord = 2;
        BottomMargin = Currency::fromText(u"0.75"_s);
        LeftMargin = Currency::fromText(u"0.25"_s);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        QCOMPARE(printer.places(),
                 QStringList({u"1: 2,0 w1:  "_s, u"1: 2,1 d1"_s, u"1: 2,2 s1"_s, u"1: 2,4 w2:  "_s,
                              u"2: 2,0 d2"_s, u"2: 2,1 s2"_s}));
    }

    void aHeaderWithoutRoomOnTheSheetGoesToTheNextOne()
    {
        // Counted from 0, line 9 is the last one above the bottom margin and line 12 the last one
        // of the sheet.
        RecordingPrinter printer(40, 13);
        fill(3);
        QVERIFY(WordListPrint::wholeList().print(printer, gVocabList(), GoOn));
        QCOMPARE(printer.places(),
                 QStringList({u"1: 8,4  1. w1:  "_s, u"1: 8,5 d1"_s, u"1: 8,6 s1"_s,
                              u"1: 8,8  2. w2:  "_s, u"1: 8,9 d2"_s, u"2: 0,0 s2"_s,
                              u"2: 8,2  3. w3:  "_s, u"2: 8,3 d3"_s, u"2: 8,4 s3"_s}));
        // Without texts the headers are printed down to the last line of the sheet.
        gVocabList().ClearList();
        for (int i = 1; i <= 6; ++i)
            gVocabList().AddVocab(u"w%1"_s.arg(i), {}, {});
        RecordingPrinter foot(40, 13);
        QVERIFY(WordListPrint::wholeList().print(foot, gVocabList(), GoOn));
        QCOMPARE(foot.places().mid(3), QStringList({u"1: 8,10  4. w4:  "_s, u"1: 8,12  5. w5:  "_s,
                                                    u"2: 8,5  6. w6:  "_s}));
    }

    void aLineMayBeginExactlyAtTheBottomMargin_data()
    {
        QTest::addColumn<QString>("margin");
        QTest::addColumn<QString>("place");
        // The sheet is 5 inches high, the sentence 0.5 from the top.
        QTest::newRow("on it") << u"4.5"_s << u"1: 0,2 s1"_s;
        QTest::newRow("below it") << u"4.5001"_s << u"2: 0,0 s1"_s;
    }

    void aLineMayBeginExactlyAtTheBottomMargin()
    {
        QFETCH(QString, margin);
        RecordingPrinter printer(40, 20);
        FromWord = ToWord = 1;
        BottomMargin = Currency::fromText(margin);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        QTEST(printer.places().constLast(), "place");
    }

    void aLineMayEndExactlyAtTheRightMargin_data()
    {
        QTest::addColumn<QString>("margin");
        QTest::addColumn<int>("lines");
        // The sheet is 5 inches wide, the definition 1.
        QTest::newRow("up to it") << u"4"_s << 1;
        QTest::newRow("beyond it") << u"4.0001"_s << 2;
    }

    void aLineMayEndExactlyAtTheRightMargin()
    {
        QFETCH(QString, margin);
        gVocabList().ClearList();
        gVocabList().AddVocab({}, u"abc defg"_s, {});
        RecordingPrinter printer(40, 20);
        FromWord = ToWord = 1;
        RightMargin = Currency::fromText(margin);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        QTEST(int(printer.texts.size()) - 1, "lines");
    }

    void laterCopiesOfTheWholeListBeginInTheCorner()
    {
        fill(1);
        RecordingPrinter printer;
        printer.Copies = 3;
        QVERIFY(WordListPrint::wholeList().print(printer, gVocabList(), GoOn));
        // Each line begins at the left margin. Only the first pass begins at the top margin.
        QCOMPARE(printer.places(),
                 QStringList({u"1: 8,4  1. w1:  "_s, u"1: 8,5 d1"_s, u"1: 8,6 s1"_s,
                              u"2: 8,0  1. w1:  "_s, u"2: 8,1 d1"_s, u"2: 8,2 s1"_s,
                              u"3: 8,0  1. w1:  "_s, u"3: 8,1 d1"_s, u"3: 8,2 s1"_s}));
        QCOMPARE(printer.sheets, 3);
        QCOMPARE(printer.ended, 1);
        QCOMPARE(printer.Copies, Integer(3));
    }

    void afterALongCopyTheNextOneBeginsANewPage()
    {
        RecordingPrinter printer(40, 6);
        printer.Copies = 2;
        FromWord = 2;
        ToWord = 1;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), GoOn));
        const QStringList places = printer.places();
        QCOMPARE(places.size(), 12);
        QCOMPARE(places[5], u"2: 0,0 s1"_s);
        QCOMPARE(places[6], u"3: 0,0  2. w2:  "_s);
        QCOMPARE(places[11], u"4: 0,0 s1"_s);
    }

private:
    static void fill(int entries)
    {
        gVocabList().ClearList();
        for (int i = 1; i <= entries; ++i)
            gVocabList().AddVocab(u"w%1"_s.arg(i), u"d%1"_s.arg(i), u"s%1"_s.arg(i));
    }

    std::unique_ptr<FreshState> m_state;
};

QTEST_GUILESS_MAIN(WordListPrint_Walk_test)

#include "WordListPrint_Walk_test.moc"
