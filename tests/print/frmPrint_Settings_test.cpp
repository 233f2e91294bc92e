// SPDX-License-Identifier: GPL-3.0-or-later
// The settings of the print dialog: when it opens, while it is used, and after it is closed.
#include "print/PrintForm.h"
#include "support/FormTest.h"

#include <QFileDialog>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QWheelEvent>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

Currency inches(const QString &text)
{
    return Currency::fromText(text);
}

struct Margin
{
    QByteArray name;
    Currency *setting;

    [[nodiscard]] QByteArray box() const { return "txt" + name; }
    [[nodiscard]] QByteArray bar() const { return "vsc_" + name; }
};

const std::vector<Margin> Margins{{"TopMargin", &TopMargin},
                                  {"BottomMargin", &BottomMargin},
                                  {"LeftMargin", &LeftMargin},
                                  {"RightMargin", &RightMargin}};

struct End
{
    const char *box;
    Integer *setting;
};

void turnWheel(QWidget &under, int delta)
{
    const QPointF middle = QRectF(under.rect()).center();
    QWheelEvent wheel(middle, under.mapToGlobal(middle), {}, {0, delta}, {}, {}, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&under, &wheel);
}

const std::vector<End> Ends{{"txtFromWord", &FromWord}, {"txtToWord", &ToWord}};

} // namespace

class frmPrint_Settings_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theControlsHaveTheirCaptions()
    {
        PrintForm form;
        QCOMPARE(form.dialog().windowTitle(), u"Print"_s);
        const auto frame = [&form](const char *name) {
            return form.control<QGroupBox>(name).title();
        };
        QCOMPARE(frame("FramePrinter"), u"Select Printer"_s);
        QCOMPARE(frame("FrameOrientation"), u"Orientation"_s);
        QCOMPARE(frame("FrameRange"), u"Print Range"_s);
        QCOMPARE(frame("FrameMargins"), u"Margins"_s);
        QCOMPARE(frame("FrameCopies"), u"Copies"_s);
        const auto button = [&form](const char *name) {
            return form.control<QAbstractButton>(name).text();
        };
        QCOMPARE(button("optPortrait"), u"Portrait"_s);
        QCOMPARE(button("optLandscape"), u"Landscape"_s);
        QCOMPARE(button("optPrintAllWords"), u"Print all words"_s);
        QCOMPARE(button("optSubset"), u"Subset"_s);
        QCOMPARE(button("chkPrintItemNumber"), u"Print item number of each word"_s);
        QCOMPARE(button("cmdPrint"), u"&Print"_s);
        QCOMPARE(button("cmdCancel"), u"&Cancel"_s);
        QVERIFY(form.control<QPushButton>("cmdPrint").isDefault());
        QCOMPARE(form.control<QLabel>("lblFrom").text(), u"From:"_s);
        QCOMPARE(form.control<QLabel>("lblTo").text(), u"To:"_s);
        QCOMPARE(form.control<QLabel>("lblCopies").text(), u"Number of copies:"_s);
    }

    void theFramesHoldTheirControls()
    {
        PrintForm form;
        const std::vector<std::pair<const char *, std::vector<const char *>>> frames{
            {"FramePrinter", {"lstPrinter"}},
            {"FrameOrientation", {"optPortrait", "optLandscape"}},
            {"FrameRange", {"optPrintAllWords", "optSubset", "txtFromWord", "txtToWord"}},
            {"FrameMargins",
             {"txtTopMargin", "vsc_TopMargin", "txtBottomMargin", "vsc_BottomMargin",
              "txtLeftMargin", "vsc_LeftMargin", "txtRightMargin", "vsc_RightMargin"}},
            {"FrameCopies", {"txtCopies", "vsc_Copies", "lblCopies"}}};
        for (const auto &[frame, controls] : frames)
            for (const char *name : controls)
                QVERIFY2(form.control<QGroupBox>(frame).isAncestorOf(&form.control<QWidget>(name)),
                         name);
    }

    void theBarsHaveTheirRanges()
    {
        PrintForm form;
        for (const Margin &margin : Margins) {
            const auto &bar = form.control<StepBar>(margin.bar());
            QCOMPARE(bar.minimum(), 0);
            QCOMPARE(bar.maximum(), 30);
        }
        QCOMPARE(form.control<StepBar>("vsc_Copies").minimum(), 1);
        QCOMPARE(form.control<StepBar>("vsc_Copies").maximum(), 32767);
    }

    void printToPdfIsTheLastPrinterAndTheCurrentOneIsSelected()
    {
        PrintForm form;
        const auto &list = form.control<QListWidget>("lstPrinter");
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            names += list.item(row)->text();
        QCOMPARE(names, SystemPrinter::installed());
        QCOMPARE(names.constLast(), u"Print to PDF"_s);
        QCOMPARE(list.currentItem()->text(), form.printer.DeviceName());
        QCOMPARE(list.currentRow(), list.count() - 1);
    }

    void noPrinterOfTheMachineIsOffered()
    {
        QVERIFY(!qEnvironmentVariableIsEmpty("CUPS_SERVER"));
        QCOMPARE(SystemPrinter::installed(), QStringList(u"Print to PDF"_s));
    }

    void ctrlClickLeavesTheCurrentPrinterSelected()
    {
        PrintForm form;
        auto &list = form.control<QListWidget>("lstPrinter");
        const QRect marked = list.visualItemRect(list.currentItem());
        QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::ControlModifier, marked.center());
        QCOMPARE(list.selectedItems().size(), 1);
        QCOMPARE(list.selectedItems().constFirst()->text(), form.printer.DeviceName());
    }

    void aClickOnAPrinterMakesItTheCurrentOne()
    {
        PrintForm form;
        form.printer.select(u"gone"_s);
        form.open();
        auto &list = form.control<QListWidget>("lstPrinter");
        QVERIFY(list.selectedItems().isEmpty());
        const QRect last = list.visualItemRect(list.item(list.count() - 1));
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, last.center());
        QCOMPARE(form.printer.DeviceName(), u"Print to PDF"_s);
        form.click("cmdCancel");
        QCOMPARE(form.printer.DeviceName(), u"Print to PDF"_s);
    }

    void theNamesOfPrintersAreCaseSensitive()
    {
        PrintForm form;
        form.printer.select(u"gone"_s);
        form.open();
        auto &list = form.control<QListWidget>("lstPrinter");
        list.addItem(u"print to pdf"_s);
        list.setCurrentRow(list.count() - 1);
        QCOMPARE(form.printer.DeviceName(), u"gone"_s);
    }

    void theDialogSetsTheOrientationWhenItOpens_data()
    {
        QTest::addColumn<QString>("setting");
        QTest::addColumn<bool>("landscape");
        QTest::newRow("Portrait") << u"Portrait"_s << false;
        QTest::newRow("Landscape") << u"Landscape"_s << true;
        QTest::newRow("nothing") << QString() << true;
        QTest::newRow("lower case") << u"portrait"_s << true;
    }

    void theDialogSetsTheOrientationWhenItOpens()
    {
        QFETCH(QString, setting);
        QFETCH(bool, landscape);
        PrintForm form;
        PrintOrientation = setting;
        using Orientation = SystemPrinter::Orientation;
        form.printer.setOrientation(landscape ? Orientation::Portrait : Orientation::Landscape);
        form.open();
        QCOMPARE(form.isChecked("optLandscape"), landscape);
        QCOMPARE(form.isChecked("optPortrait"), !landscape);
        QCOMPARE(form.printer.orientation(),
                 landscape ? Orientation::Landscape : Orientation::Portrait);
        QCOMPARE(PrintOrientation, landscape ? u"Landscape"_s : u"Portrait"_s);
    }

    void theDialogShowsWhetherItemNumbersArePrinted()
    {
        PrintForm form;
        QVERIFY(form.isChecked("chkPrintItemNumber"));
        PrintItemNumber = false;
        form.open();
        QVERIFY(!form.isChecked("chkPrintItemNumber"));
        form.click("chkPrintItemNumber");
        QVERIFY(PrintItemNumber);
    }

    void aRangeThatIsSetIsShownUnchanged_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("inside the list") << 3 << 7;
        QTest::newRow("downwards") << 9 << 4;
        QTest::newRow("beyond the list") << 30 << 100;
    }

    void aRangeThatIsSetIsShownUnchanged()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        PrintForm form;
        FromWord = from;
        ToWord = to;
        form.open();
        QCOMPARE(form.text("txtFromWord"), QString::number(from));
        QCOMPARE(form.text("txtToWord"), QString::number(to));
        for (const char *name : {"txtFromWord", "txtToWord", "lblFrom", "lblTo"})
            QVERIFY2(form.isEnabled(name), name);
        QVERIFY(form.isChecked("optPrintAllWords"));
        QCOMPARE(FromWord, Integer(from));
        QCOMPARE(ToWord, Integer(to));
    }

    void aRangeThatIsNotSetBecomesTheWholeList_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::newRow("from") << 0 << 7;
        QTest::newRow("to") << 7 << 0;
    }

    void aRangeThatIsNotSetBecomesTheWholeList()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        PrintForm form;
        FromWord = from;
        ToWord = to;
        form.open();
        QCOMPARE(FromWord, Integer(1));
        QCOMPARE(ToWord, Integer(20));
        for (const char *name : {"txtFromWord", "txtToWord", "lblFrom", "lblTo"})
            QVERIFY2(!form.isEnabled(name), name);
    }

    void choosingTheSubsetKeepsTheRange()
    {
        PrintForm form;
        FromWord = 3;
        ToWord = 7;
        form.open();
        form.click("optSubset");
        QCOMPARE(FromWord, Integer(3));
        QCOMPARE(ToWord, Integer(7));
        form.click("optPrintAllWords");
        QCOMPARE(FromWord, Integer(1));
        QCOMPARE(ToWord, Integer(20));
        for (const char *name : {"txtFromWord", "txtToWord", "lblFrom", "lblTo"})
            QVERIFY2(!form.isEnabled(name), name);
        // The boxes still show the previous range.
        QCOMPARE(form.text("txtFromWord"), u"3"_s);
        QCOMPARE(form.text("txtToWord"), u"7"_s);
        form.click("optSubset");
        QCOMPARE(FromWord, Integer(1));
        QVERIFY(form.isEnabled("txtFromWord"));
    }

    void theSubsetPutsTheKeyboardIntoFrom_data()
    {
        QTest::addColumn<Qt::Key>("key"); // 0 = the mouse
        QTest::newRow("the mouse") << Qt::Key(0);
        QTest::newRow("Space") << Qt::Key_Space;
        QTest::newRow("an arrow key") << Qt::Key_Down;
    }

    void theSubsetPutsTheKeyboardIntoFrom()
    {
        QFETCH(Qt::Key, key);
        PrintForm form;
        FromWord = 3;
        ToWord = 7;
        form.open();
        auto &option =
            form.control<QWidget>(key == Qt::Key_Down ? "optPrintAllWords" : "optSubset");
        option.setFocus();
        if (key == Qt::Key(0))
            form.click("optSubset");
        else
            Controls::press(key);
        QVERIFY(form.isChecked("optSubset"));
        QTRY_COMPARE(Controls::focusedControl(), u"txtFromWord"_s);
        QCOMPARE(form.control<QLineEdit>("txtFromWord").selectedText(), u"3"_s);
    }

    void emptyBoxesShowTheRange()
    {
        PrintForm form;
        const auto from = [&form] {
            return form.control<QLineEdit>("txtFromWord").placeholderText();
        };
        const auto to = [&form] { return form.control<QLineEdit>("txtToWord").placeholderText(); };
        QCOMPARE(from(), u"1"_s);
        QCOMPARE(to(), u"20"_s);
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"4"_s);
        QCOMPARE(from(), u"4"_s);
        form.open();
        QCOMPARE(from(), u"4"_s);
        form.click("optPrintAllWords");
        QCOMPARE(from(), u"1"_s);
    }

    void theStepsStandBesideTheirBoxAndMarginsShowTheirUnit()
    {
        PrintForm form;
        for (const QByteArray name :
             {"TopMargin", "BottomMargin", "LeftMargin", "RightMargin", "Copies"}) {
            const QRect box = form.control<QWidget>("txt" + name).geometry();
            const QRect bar = form.control<QWidget>("vsc_" + name).geometry();
            QVERIFY2(bar.left() > box.right() && bar.left() - box.right() <= 5, name);
            QVERIFY2(std::abs(bar.center().y() - box.center().y()) <= 1, name);
        }
        for (const char *unit : {"lblTopUnit", "lblBottomUnit", "lblLeftUnit", "lblRightUnit"})
            QCOMPARE(form.control<QLabel>(unit).text(), u"in"_s);
    }

    void aRangeThatRunsDownwardsIsKept()
    {
        PrintForm form;
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"9"_s);
        form.typeAndLeave("txtToWord", u"4"_s);
        QCOMPARE(FromWord, Integer(9));
        QCOMPARE(ToWord, Integer(4));
        QCOMPARE(form.text("txtFromWord"), u"9"_s);
        QCOMPARE(form.text("txtToWord"), u"4"_s);
    }

    void aTypedPositionIsLimitedToTheList_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("shown");
        QTest::newRow("500") << u"500"_s << 20 << u"20"_s;
        QTest::newRow("0") << u"0"_s << 1 << u"1"_s;
        QTest::newRow("-3") << u"-3"_s << 1 << u"1"_s;
        QTest::newRow("blanks around it") << u"  6 "_s << 6 << u"6"_s;
        QTest::newRow("a half is rounded to even") << u"6.5"_s << 6 << u"6"_s;
        QTest::newRow("above the 16-bit range") << u"70000"_s << 20 << u"20"_s;
        QTest::newRow("below the 16-bit range") << u"-70000"_s << 1 << u"1"_s;
        QTest::newRow("with an exponent") << u"-1e9"_s << 1 << u"1"_s;
        QTest::newRow("no number") << u"6th"_s << 5 << u"5"_s;
        QTest::newRow("a blank") << u" "_s << 5 << u"5"_s;
        QTest::newRow("nothing") << QString() << 5 << QString();
    }

    void aTypedPositionIsLimitedToTheList()
    {
        QFETCH(QString, typed);
        for (const End &end : Ends) {
            PrintForm form;
            FromWord = ToWord = 5;
            form.open();
            form.typeAndLeave(end.box, typed);
            QTEST(end.setting->toInt(), "position");
            QTEST(form.text(end.box), "shown");
            const End &other = &end == &Ends[0] ? Ends[1] : Ends[0];
            QCOMPARE(*other.setting, Integer(5));
        }
    }

    void withAnEmptyListAnyNumberBecomes1()
    {
        for (const End &end : Ends)
            for (const QString &typed : {u"7"_s, u"0"_s, u"-3"_s, u"40000"_s}) {
                PrintForm form(0);
                form.click("optSubset");
                form.typeAndLeave(end.box, typed);
                QCOMPARE(*end.setting, Integer(1));
                QCOMPARE(form.text(end.box), u"1"_s);
            }
    }

    void hundredthsAreKeptIfTheBarDoesNotMove()
    {
        for (const Margin &margin : Margins) {
            PrintForm form;
            form.typeAndLeave(margin.box(), u"1"_s);
            form.typeAndLeave(margin.box(), u"1.26"_s);
            QCOMPARE(*margin.setting, inches(u"1.3"_s));
            QCOMPARE(form.text(margin.box()), u"1.30"_s);
            QCOMPARE(form.value(margin.bar()), 13);
            form.typeAndLeave(margin.box(), u"1.26"_s);
            QCOMPARE(*margin.setting, inches(u"1.26"_s));
            QCOMPARE(form.text(margin.box()), u"1.26"_s);
            QCOMPARE(form.value(margin.bar()), 13);
            form.typeAndLeave(margin.box(), u" 1.3 "_s);
            QCOMPARE(form.text(margin.box()), u" 1.3 "_s);
            for (const QString &typed : {u"x"_s, QString(), u"1,3"_s}) {
                form.typeAndLeave(margin.box(), u"1.26784"_s);
                QCOMPARE(*margin.setting, inches(u"1.2678"_s));
                QCOMPARE(form.text(margin.box()), u"1.26784"_s);
                form.typeAndLeave(margin.box(), typed);
                QCOMPARE(*margin.setting, inches(u"1.2678"_s));
                QCOMPARE(form.text(margin.box()), u"1.27"_s);
                QCOMPARE(form.value(margin.bar()), 13);
            }
            for (const Margin &other : Margins)
                QVERIFY(&other == &margin || *other.setting == 0);
        }
    }

    void aMarginOutOfTheRangeOfItsTypeIsLimited()
    {
        for (const Margin &margin : Margins) {
            PrintForm form;
            form.typeAndLeave(margin.box(), u"1e300"_s);
            QCOMPARE(*margin.setting, Currency(3));
            QCOMPARE(form.text(margin.box()), u"3.00"_s);
            form.typeAndLeave(margin.box(), u"-922337203685478"_s);
            QCOMPARE(*margin.setting, Currency(0));
            QCOMPARE(form.text(margin.box()), u"0.00"_s);
            QCOMPARE(form.value(margin.bar()), 0);
            for (const QString &typed : {u"7"_s, u"8"_s}) { // the second one does not move the bar
                form.typeAndLeave(margin.box(), typed);
                QCOMPARE(form.text(margin.box()), u"3.00"_s);
                QCOMPARE(form.value(margin.bar()), 30);
            }
        }
    }

    void theBarStepsTheMarginByTenths()
    {
        for (const Margin &margin : Margins) {
            PrintForm form;
            auto &bar = form.control<StepBar>(margin.bar());
            QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, 3});
            QCOMPARE(*margin.setting, inches(u"0.1"_s));
            QCOMPARE(form.text(margin.box()), u"0.10"_s);
            for (int tenths = 0; tenths <= 30; ++tenths) {
                bar.setValue(tenths);
                QCOMPARE(*margin.setting, Currency::fromScaled(tenths * 1000));
            }
            QCOMPARE(form.text(margin.box()), u"3.00"_s);
        }
    }

    void theWheelStepsFromTheTypedMargin()
    {
        PrintForm form;
        auto &box = form.control<QLineEdit>("txtLeftMargin");
        form.type("txtLeftMargin", u"2.54"_s);
        turnWheel(box, 120);
        QCOMPARE(LeftMargin, inches(u"2.6"_s));
        QCOMPARE(form.text("txtLeftMargin"), u"2.60"_s);
        form.control<QWidget>("lstPrinter").setFocus();
        turnWheel(box, 120);
        turnWheel(form.control<StepBar>("vsc_LeftMargin"), 120);
        turnWheel(form.control<StepBar>("vsc_Copies"), 120);
        QCOMPARE(LeftMargin, inches(u"2.6"_s));
        QCOMPARE(form.printer.Copies, Integer(1));
        form.control<QWidget>("txtCopies").setFocus();
        turnWheel(form.control<QLineEdit>("txtCopies"), 120);
        QCOMPARE(form.printer.Copies, Integer(2));
    }

    void onlyTheBottomBarTakesTheTypedTextWhenItLosesTheFocus()
    {
        for (const Margin &margin : Margins) {
            PrintForm form;
            const bool takes = margin.name == "BottomMargin";
            for (const auto &[text, taken] : {std::pair{u"2.04"_s, u"2.00"_s},
                                              {u"2.04"_s, u"2.04"_s},
                                              {u"9"_s, u"3.00"_s},
                                              {u"x"_s, u"3.00"_s}}) {
                form.control<StepBar>(margin.bar()).setFocus();
                form.control<QLineEdit>(margin.box()).setText(text);
                Controls::press(Qt::Key_Tab);
                QCOMPARE(form.text(margin.box()), takes ? taken : text);
            }
            QCOMPARE(*margin.setting, takes ? Currency(3) : Currency(0));
        }
    }

    void typingANumberOfCopiesChangesNothing()
    {
        PrintForm form;
        QCOMPARE(form.text("txtCopies"), u"1"_s);
        form.control<StepBar>("vsc_Copies").setValue(3);
        QCOMPARE(form.text("txtCopies"), u"3"_s);
        for (const QString &typed : {u"9"_s, u"x"_s, QString()}) {
            form.typeAndLeave("txtCopies", typed);
            QCOMPARE(form.text("txtCopies"), typed);
            QCOMPARE(form.value("vsc_Copies"), 3);
            QCOMPARE(form.printer.Copies, Integer(3));
        }
        auto &bar = form.control<StepBar>("vsc_Copies");
        QTest::mouseClick(&bar, Qt::LeftButton, {}, {bar.width() / 2, 3});
        QCOMPARE(form.text("txtCopies"), u"4"_s);
        bar.setValue(32767);
        QCOMPARE(form.printer.Copies, Integer(32767));
        QCOMPARE(form.text("txtCopies"), u"32767"_s);
    }

    void cancelKeepsEveryChange_data()
    {
        QTest::addColumn<Qt::Key>("key"); // 0 = the button
        QTest::newRow("the button") << Qt::Key(0);
        QTest::newRow("Esc") << Qt::Key_Escape;
    }

    void cancelKeepsEveryChange()
    {
        QFETCH(Qt::Key, key);
        PrintForm form;
        form.typeAndLeave("txtTopMargin", u"0.5"_s);
        form.typeAndLeave("txtBottomMargin", u"1"_s);
        form.typeAndLeave("txtLeftMargin", u"1.5"_s);
        form.typeAndLeave("txtRightMargin", u"2"_s);
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"4"_s);
        form.typeAndLeave("txtToWord", u"9"_s);
        form.click("chkPrintItemNumber");
        form.click("optLandscape");
        form.control<StepBar>("vsc_Copies").setValue(5);
        if (key == Qt::Key(0))
            form.click("cmdCancel");
        else
            Controls::press(key);
        QVERIFY(!form.dialog().isVisible());
        QCOMPARE(TopMargin, inches(u"0.5"_s));
        QCOMPARE(BottomMargin, inches(u"1"_s));
        QCOMPARE(LeftMargin, inches(u"1.5"_s));
        QCOMPARE(RightMargin, inches(u"2"_s));
        QCOMPARE(FromWord, Integer(4));
        QCOMPARE(ToWord, Integer(9));
        QVERIFY(!PrintItemNumber);
        QCOMPARE(PrintOrientation, u"Landscape"_s);
        QCOMPARE(form.printer.Copies, Integer(5));
        QCOMPARE(form.printer.orientation(), SystemPrinter::Orientation::Landscape);
        form.open();
        QCOMPARE(form.text("txtTopMargin"), u"0.50"_s);
        QCOMPARE(form.text("txtBottomMargin"), u"1.00"_s);
        QCOMPARE(form.text("txtLeftMargin"), u"1.50"_s);
        QCOMPARE(form.text("txtRightMargin"), u"2.00"_s);
    }

    void enterTakesTheTypedTextOfEachBox_data()
    {
        QTest::addColumn<QByteArray>("box");
        for (const End &end : Ends)
            QTest::newRow(end.box) << QByteArray(end.box);
        for (const Margin &margin : Margins)
            QTest::newRow(margin.box()) << margin.box();
    }

    void enterTakesTheTypedTextOfEachBox()
    {
        QFETCH(QByteArray, box);
        PrintForm form;
        form.click("optSubset");
        // The text must be taken before the job starts, not only when the dialog closes.
        int taken = 0;
        form.answers.cancelFileDialog([&](QFileDialog &) {
            for (const End &end : Ends)
                taken += end.box == box && *end.setting == 2 ? 1 : 0;
            for (const Margin &margin : Margins)
                taken += margin.box() == box && *margin.setting == 2 ? 1 : 0;
        });
        form.type(box, u"2"_s);
        Controls::press(Qt::Key_Return);
        QVERIFY(form.answers.allSeen());
        QCOMPARE(taken, 1);
    }

    void aMissingPrinterIsReported()
    {
        PrintForm form;
        form.printer.select(u"gone"_s);
        form.open();
        form.answers.expectMsgBox(u"gone has encountered an error"_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        // Another printer can be chosen.
        QVERIFY(form.dialog().isVisible());
        auto &list = form.control<QListWidget>("lstPrinter");
        list.setCurrentRow(list.count() - 1);
        form.answers.chooseFile(form.path(u"after.pdf"_s));
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(QFile::exists(form.path(u"after.pdf"_s)));
    }
};

int main(int argc, char *argv[])
{
    return runFormTest<frmPrint_Settings_test>(argc, argv);
}

#include "frmPrint_Settings_test.moc"
