// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/WordListPrint.h"

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "platform/RecordingPrinter.h"

#include <QTest>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

bool goOn(int /*done*/, int /*total*/)
{
    return true;
}

QStringList headers(const RecordingPrinter &printer)
{
    QStringList headers;
    for (const RecordingPrinter::Text &text : printer.texts)
        if (text.style.bold)
            headers += text.text;
    return headers;
}

} // namespace

class WordListPrint_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        for (int i = 1; i <= 6; ++i)
            gVocabList().AddVocab(u"w%1"_s.arg(i), u"d%1"_s.arg(i), u"s%1"_s.arg(i));
        PrintItemNumber = true;
        FromWord = 1;
        ToWord = 6;
    }

    void anEntryIsPrintedAsHeaderTextsAndAnEmptyLine()
    {
        RecordingPrinter printer;
        FromWord = ToWord = 2;
        TopMargin = Currency(1);
        LeftMargin = Currency::fromText(u"0.5"_s);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(printer.places(), QStringList({u"1: 4,4  2. "_s, u"1: 8,4 w2:  "_s, u"1: 4,5 d2"_s,
                                                u"1: 4,6 s2"_s}));
        const PrintFont font{u"Times New Roman"_s, 10};
        QCOMPARE(printer.texts[0].style, (PrintStyle{font, true, false}));
        QCOMPARE(printer.texts[1].style, (PrintStyle{font, true, false}));
        QCOMPARE(printer.texts[2].style, (PrintStyle{font, false, false}));
        QCOMPARE(printer.texts[3].style, (PrintStyle{font, false, true}));
        QCOMPARE(printer.ended, 1);
        QCOMPARE(printer.dropped, 0);
    }

    void emptyTextsTakeNoLine()
    {
        gVocabList().ClearList();
        gVocabList().AddVocab(u"a"_s, {}, {});
        gVocabList().AddVocab(u"b"_s, {}, {});
        RecordingPrinter printer;
        ToWord = 2;
        PrintItemNumber = false;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(printer.places(), QStringList({u"1: 0,0 a:  "_s, u"1: 0,2 b:  "_s}));
    }

    void inAnUpwardRangeTheSettingDecidesOnNumbers()
    {
        RecordingPrinter printer;
        FromWord = 2;
        ToWord = 3;
        PrintItemNumber = false;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(headers(printer), QStringList({u"w2:  "_s, u"w3:  "_s}));
    }

    void inADownwardRangeNumbersAreAlwaysPrinted()
    {
        for (const bool numbered : {false, true}) {
            RecordingPrinter printer;
            FromWord = 5;
            ToWord = 2;
            PrintItemNumber = numbered;
            QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
            QCOMPARE(headers(printer),
                     QStringList({u" 5. w5:  "_s, u" 4. w4:  "_s, u" 3. w3:  "_s, u" 2. w2:  "_s}));
        }
    }

    void theLastPrintedEntryIsTheCurrentOne()
    {
        RecordingPrinter printer;
        FromWord = 5;
        ToWord = 2;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(gVocabList().CurrentWord(), Integer(2));
    }

    void eachCopyBeginsOnANewPageAtTheMargins()
    {
        RecordingPrinter printer;
        printer.Copies = 2;
        FromWord = ToWord = 3;
        TopMargin = Currency(1);
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(printer.places(), QStringList({u"1: 0,4  3. "_s, u"1: 4,4 w3:  "_s, u"1: 0,5 d3"_s,
                                                u"1: 0,6 s3"_s, u"2: 0,4  3. "_s, u"2: 4,4 w3:  "_s,
                                                u"2: 0,5 d3"_s, u"2: 0,6 s3"_s}));
        QCOMPARE(printer.sheets, 2);
        QCOMPARE(printer.Copies, Integer(2));
    }

    void theWholeListHasMarginsOfAnInchOnItsFirstPageOnly()
    {
        RecordingPrinter printer(40, 16);
        printer.Copies = 2;
        FromWord = 4;
        ToWord = 2;
        PrintItemNumber = false;
        QVERIFY(WordListPrint::wholeList().print(printer, gVocabList(), goOn));
        QCOMPARE(printer.places().mid(0, 3),
                 QStringList({u"1: 8,4  1. w1:  "_s, u"1: 8,5 d1"_s, u"1: 8,6 s1"_s}));
        // A header may be below the bottom margin; a paragraph goes to the corner of the next page.
        QCOMPARE(printer.places().mid(6, 5),
                 QStringList({u"1: 8,12  3. w3:  "_s, u"2: 0,0 d3"_s, u"2: 8,1 s3"_s,
                              u"2: 8,3  4. w4:  "_s, u"2: 8,4 d4"_s}));
        QCOMPARE(printer.places().mid(18, 2), QStringList({u"4: 8,0  1. w1:  "_s, u"4: 8,1 d1"_s}));
        QCOMPARE(gVocabList().CurrentWord(), Integer(6));
    }

    void aHeaderThatDoesNotFitOnTheSheetGoesToTheNext()
    {
        RecordingPrinter printer(40, 6);
        ToWord = 3;
        QVERIFY(WordListPrint::chosen().print(printer, gVocabList(), goOn));
        QCOMPARE(
            printer.places(),
            QStringList({u"1: 0,0  1. "_s, u"1: 4,0 w1:  "_s, u"1: 0,1 d1"_s, u"1: 0,2 s1"_s,
                         u"1: 0,4  2. "_s, u"1: 4,4 w2:  "_s, u"1: 0,5 d2"_s, u"2: 0,0 s2"_s,
                         u"2: 0,2  3. "_s, u"2: 4,2 w3:  "_s, u"2: 0,3 d3"_s, u"2: 0,4 s3"_s}));
    }

    void aCancelledJobPrintsNothing()
    {
        RecordingPrinter printer;
        printer.Copies = 2;
        int calls = 0;
        QVERIFY(!WordListPrint::chosen().print(printer, gVocabList(), [&](int done, int total) {
            ++calls;
            return done != 8 || total != 12;
        }));
        QCOMPARE(calls, 8);
        QCOMPARE(printer.ended, 0);
        QCOMPARE(printer.dropped, 1);
    }

    void aPositionBeyondTheListDropsTheDocument()
    {
        RecordingPrinter printer;
        WordListPrint job;
        job.first = 1;
        job.last = 100;
        QCOMPARE(errorNumberOf([&] { return job.print(printer, gVocabList(), goOn); }),
                 RunTimeError::SubscriptOutOfRange);
        QCOMPARE(printer.ended, 0);
        QCOMPARE(printer.dropped, 1);
    }

private:
    std::unique_ptr<FreshState> m_state;
};

QTEST_GUILESS_MAIN(WordListPrint_test)

#include "WordListPrint_test.moc"
