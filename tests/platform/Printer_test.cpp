// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Printer.h"

#include "platform/RecordingPrinter.h"

#include <QTest>

using namespace Qt::StringLiterals;

class Printer_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextEndsTheLineOrNot()
    {
        RecordingPrinter printer;
        printer.CurrentX = 1;
        printer.Print(u"ab"_s, Printer::LineEnd::SameLine);
        QCOMPARE(printer.CurrentX, 1.25);
        QCOMPARE(printer.CurrentY, 0.0);
        printer.Print(u"c"_s);
        QCOMPARE(printer.CurrentX, 0.0);
        QCOMPARE(printer.CurrentY, 0.25);
        QCOMPARE(printer.places(), QStringList({u"1: 8,0 ab"_s, u"1: 10,0 c"_s}));
    }

    void aNewPageBeginsInTheCorner()
    {
        RecordingPrinter printer;
        printer.ScaleLeft = 1;
        printer.ScaleTop = 2;
        printer.NewPage();
        QCOMPARE(printer.CurrentX, 1.0);
        QCOMPARE(printer.CurrentY, 2.0);
        printer.Print(u"a"_s);
        QCOMPARE(printer.places(), QStringList({u"1: 0,0 a"_s}));
        QCOMPARE(printer.CurrentX, 1.0);
    }

    void noSheetIsBlank()
    {
        RecordingPrinter printer;
        printer.NewPage();
        printer.Print({});
        printer.Print(u"  "_s);
        printer.NewPage();
        QCOMPARE(printer.sheets, 0);
        printer.Print(u"a"_s);
        printer.NewPage();
        printer.EndDoc();
        QCOMPARE(printer.sheets, 1);
        QCOMPARE(printer.ended, 1);
        QCOMPARE(printer.dropped, 0);
    }

    void textsAreInTheFontOfTheirMoment()
    {
        RecordingPrinter printer;
        printer.Font = {u"Times New Roman"_s, 10};
        printer.FontBold = true;
        printer.Print(u"a"_s);
        printer.FontBold = false;
        printer.FontItalic = true;
        printer.Print(u"b"_s);
        const PrintStyle bold{{u"Times New Roman"_s, 10}, true, false};
        const PrintStyle italic{{u"Times New Roman"_s, 10}, false, true};
        QCOMPARE(printer.texts[0].style, bold);
        QCOMPARE(printer.texts[1].style, italic);
    }

    void aDroppedDocumentIsFollowedByAFreshOne()
    {
        RecordingPrinter printer;
        printer.Print(u"a"_s);
        printer.KillDoc();
        QCOMPARE(printer.dropped, 1);
        QCOMPARE(printer.CurrentY, 0.0);
        printer.Print(u"b"_s);
        QCOMPARE(printer.sheets, 2);
    }
};

QTEST_APPLESS_MAIN(Printer_test)

#include "Printer_test.moc"
