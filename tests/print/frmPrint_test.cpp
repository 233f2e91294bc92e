// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/frmPrint.h"

#include "print/PrintForm.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <functional>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

Currency inches(const QString &text)
{
    return Currency::fromText(text);
}

} // namespace

class frmPrint_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRangeThatIsNotSetBecomesAllWords()
    {
        PrintForm form;
        QCOMPARE(FromWord, Integer(1));
        QCOMPARE(ToWord, Integer(20));
        for (const char *name : {"txtFromWord", "txtToWord", "lblFrom", "lblTo"})
            QVERIFY(!form.isEnabled(name));
        QCOMPARE(form.text("txtFromWord"), QString());
        QVERIFY(form.isChecked("optPrintAllWords"));
    }

    void theRangeIsCarriedOverToTheNextOpening()
    {
        PrintForm form;
        form.click("optPrintAllWords");
        form.click("cmdCancel");
        form.open();
        for (const char *name : {"txtFromWord", "txtToWord", "lblFrom", "lblTo"})
            QVERIFY(form.isEnabled(name));
        QCOMPARE(form.text("txtFromWord"), u"1"_s);
        QCOMPARE(form.text("txtToWord"), u"20"_s);
        QVERIFY(form.isChecked("optPrintAllWords"));
    }

    void aMarginIsTakenWhenItsBoxLosesTheFocus_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("margin");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<int>("bar");
        QTest::newRow("tenths") << u"0.5"_s << u"0.5"_s << u"0.50"_s << 5;
        QTest::newRow("too large") << u"7"_s << u"3"_s << u"3.00"_s << 30;
        QTest::newRow("below 0") << u"-1"_s << u"0"_s << u"0.00"_s << 0;
        QTest::newRow("out of the range of its type") << u"1e40"_s << u"3"_s << u"3.00"_s << 30;
        QTest::newRow("hundredths move the bar") << u"1.26"_s << u"1.3"_s << u"1.30"_s << 13;
        QTest::newRow("hundredths do not move the bar")
            << u"1.04"_s << u"1.04"_s << u"1.04"_s << 10;
        QTest::newRow("a half is rounded to even") << u"1.05"_s << u"1.05"_s << u"1.05"_s << 10;
        QTest::newRow("no number") << u"x"_s << u"1"_s << u"1.00"_s << 10;
        QTest::newRow("nothing") << QString() << u"1"_s << u"1.00"_s << 10;
    }

    void aMarginIsTakenWhenItsBoxLosesTheFocus()
    {
        QFETCH(QString, typed);
        QFETCH(QString, margin);
        const std::pair<QByteArray, Currency *> margins[] = {{"TopMargin", &TopMargin},
                                                             {"BottomMargin", &BottomMargin},
                                                             {"LeftMargin", &LeftMargin},
                                                             {"RightMargin", &RightMargin}};
        for (const auto &[name, setting] : margins) {
            PrintForm form;
            form.control<StepBar>("vsc_" + name).setValue(10);
            QCOMPARE(*setting, Currency(1));
            form.typeAndLeave("txt" + name, typed);
            QCOMPARE(*setting, inches(margin));
            QTEST(form.text("txt" + name), "shown");
            QTEST(form.value("vsc_" + name), "bar");
        }
    }

    void aReopenedDialogShowsTheMarginsInBoxesAndBars()
    {
        PrintForm form;
        form.typeAndLeave("txtTopMargin", u"1.3"_s);
        form.typeAndLeave("txtTopMargin", u"1.26"_s);
        form.click("cmdCancel");
        form.open();
        QCOMPARE(TopMargin, inches(u"1.26"_s));
        QCOMPARE(form.text("txtTopMargin"), u"1.26"_s);
        QCOMPARE(form.value("vsc_TopMargin"), 13);
    }

    void theOrientationIsSetOnThePrinterAtOnce()
    {
        PrintForm form;
        const double width = form.printer.ScaleWidth();
        form.click("optLandscape");
        QCOMPARE(form.printer.orientation(), SystemPrinter::Orientation::Landscape);
        QCOMPARE(PrintOrientation, u"Landscape"_s);
        QCOMPARE(form.printer.ScaleHeight(), width);
        form.click("cmdCancel");
        form.open();
        QVERIFY(form.isChecked("optLandscape"));
        form.click("optPortrait");
        QCOMPARE(form.printer.ScaleWidth(), width);
    }

    void thePreviewDoesNotChangeTheCurrentEntry()
    {
        PrintForm form;
        gVocabList().CurrentWord(7);
        form.click("chkPrintItemNumber");
        QVERIFY(!PrintItemNumber);
        QCOMPARE(gVocabList().CurrentWord(), Integer(7));
    }

    void anEmptyListIsNotPrinted()
    {
        PrintForm form(0);
        form.answers.expectMsgBox(u"Not printed: Your current wordlist is empty."_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(!form.dialog().isVisible());
    }

    void theListIsPrintedIntoAPdfFile()
    {
        PrintForm form;
        form.answers.chooseFile(form.path(u"list"_s));
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(!form.dialog().isVisible());
        const QByteArray content = readFile(form.path(u"list.pdf"_s));
        QVERIFY(content.startsWith("%PDF-"));
        QVERIFY(content.trimmed().endsWith("%%EOF"));
        QCOMPARE(gVocabList().CurrentWord(), Integer(20));
    }

    void withoutAFileNothingIsPrinted()
    {
        PrintForm form;
        gVocabList().CurrentWord(3);
        form.answers.cancelFileDialog();
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(form.dialog().isVisible());
        QCOMPARE(gVocabList().CurrentWord(), Integer(3));
    }

    void cancelTakesTheTypedText_data()
    {
        QTest::addColumn<std::function<void(frmPrint &)>>("leave");
        using Leave = std::function<void(frmPrint &)>;
        QTest::newRow("Esc") << Leave([](frmPrint &) { Controls::press(Qt::Key_Escape); });
        QTest::newRow("Alt+C") << Leave(
            [](frmPrint &dialog) { QTest::keyClick(&dialog, Qt::Key_C, Qt::AltModifier); });
        QTest::newRow("the close box") << Leave([](frmPrint &dialog) { dialog.close(); });
    }

    void cancelTakesTheTypedText()
    {
        QFETCH(std::function<void(frmPrint &)>, leave);
        PrintForm form;
        form.type("txtTopMargin", u"2"_s);
        leave(form.dialog());
        QTRY_VERIFY(!form.dialog().isVisible());
        QCOMPARE(TopMargin, Currency(2));
        form.open();
        form.click("optSubset");
        form.type("txtToWord", u"7"_s);
        leave(form.dialog());
        QTRY_VERIFY(!form.dialog().isVisible());
        QCOMPARE(ToWord, Integer(7));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmPrint_test>(argc, argv);
}

#include "frmPrint_test.moc"
