// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's printing commands, where "Print to PDF" is the only printer.
#include "core/ListTools.h"
#include "editor/MainWindow.h"
#include "platform/QuietLabel.h"
#include "print/OutputOf.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>

#include <set>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

constexpr char SystemDialog[] = ""; // Qt gives its printing dialogs no name

template <class Control> Control &in(QDialog &dialog, const char *name)
{
    return Controls::find<Control>(dialog, name);
}

void press(QDialog &dialog, QDialogButtonBox::StandardButton button)
{
    Controls::click(*dialog.findChild<QDialogButtonBox *>()->button(button));
}

// The size of each page of a PDF document, and its text.
QString pagesOf(const QString &pdf)
{
    QStringList pages;
    const QStringList lines =
        QString::fromUtf8(outputOf(u"pdfinfo"_s, {u"-l"_s, u"-1"_s, pdf})).split(u'\n');
    for (const QString &line : lines)
        if (line.startsWith(u"Page ") && line.contains(u"size:"))
            pages += line.simplified();
    return pages.join(u'\n');
}

QString textOf(const QString &pdf)
{
    return QString::fromUtf8(outputOf(u"pdftotext"_s, {u"-raw"_s, pdf, u"-"_s}));
}

} // namespace

class frmMain_Print_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_main = std::make_unique<MainWindow>();
        m_main->fill(5);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
    }

    void theMarginsAndTheRangeStartAt0()
    {
        for (const Currency margin : {TopMargin, BottomMargin, LeftMargin, RightMargin})
            QCOMPARE(margin, Currency(0));
        QCOMPARE(FromWord, Integer(0));
        QCOMPARE(ToWord, Integer(0));
        QVERIFY(PrintItemNumber);
        QCOMPARE(PrintOrientation, u"Portrait"_s);
    }

    void eachItemOfTheFileMenuHasAKeyOfItsOwn()
    {
        std::set<QChar> keys;
        const QList<QAction *> items = m_main->control<QMenu>("mnuFile").actions();
        for (const QAction *item : items) {
            if (item->isSeparator())
                continue;
            const qsizetype mark = item->text().indexOf(u'&');
            QVERIFY2(mark >= 0, qPrintable(item->text()));
            QVERIFY2(keys.insert(item->text().at(mark + 1).toLower()).second,
                     qPrintable(item->text()));
        }
        QCOMPARE(m_main->action("mnuPrintWholeList").text().remove(u'&'), u"Print Whole List"_s);
    }

    void controlPOpensThePrintDialog()
    {
        bool opened = false;
        m_main->answers.useForm("frmPrint", [&opened](QDialog &dialog) {
            opened = dialog.isModal();
            dialog.close();
        });
        QTest::keyClick(&m_main->window(), Qt::Key_P, Qt::ControlModifier);
        QTRY_VERIFY(opened);
    }

    void eachPrintTakesTheCopiesOfTheCommonDialog()
    {
        for (int round = 0; round < 2; ++round) {
            m_main->answers.useForm("frmPrint", [](QDialog &dialog) {
                auto &bar = in<QScrollBar>(dialog, "vsc_Copies");
                QCOMPARE(bar.value(), 1);
                bar.setValue(4);
                QCOMPARE(in<QLineEdit>(dialog, "txtCopies").text(), u"4"_s);
                dialog.close();
            });
            m_main->choose("mnuPrint");
        }
    }

    void printerSetupGivesTheNextPrintItsCopies()
    {
        setUpPrinter([](QDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Printer Setup"_s);
            dialog.findChild<QSpinBox *>(u"copies"_s)->setValue(3);
        });
        for (int round = 0; round < 2; ++round) {
            m_main->answers.useForm("frmPrint", [](QDialog &dialog) {
                QCOMPARE(in<QScrollBar>(dialog, "vsc_Copies").value(), 3);
                in<QScrollBar>(dialog, "vsc_Copies").setValue(2);
                dialog.close();
            });
            m_main->choose("mnuPrint");
        }
    }

    void printerSetupGivesItsCopiesToNothingElse()
    {
        setUpPrinter(
            [](QDialog &dialog) { dialog.findChild<QSpinBox *>(u"copies"_s)->setValue(3); });
        QCOMPARE(pagesOf(printedWholeList()).count(u"Page "_s), 1);
        setUpPrinter([](QDialog &dialog) {
            QCOMPARE(dialog.findChild<QSpinBox *>(u"copies"_s)->value(), 3);
        });
    }

    void aCancelledPrinterSetupChangesNothing()
    {
        m_main->answers.useForm(SystemDialog, [](QDialog &dialog) {
            dialog.findChild<QSpinBox *>(u"copies"_s)->setValue(3);
            press(dialog, QDialogButtonBox::Cancel);
        });
        m_main->choose("mnuPrinterSetup");
        m_main->answers.useForm("frmPrint", [](QDialog &dialog) {
            QCOMPARE(in<QScrollBar>(dialog, "vsc_Copies").value(), 1);
            dialog.close();
        });
        m_main->choose("mnuPrint");
    }

    void printerSetupAsksForNoFile()
    {
        setUpPrinter([](QDialog &dialog) {
            for (const char *name : {"filename", "lOutput", "fileBrowser"})
                QVERIFY2(!in<QWidget>(dialog, name).isVisible(), name);
        });
        const QString path = m_main->path(u"print.pdf"_s);
        writeFile(path, "old");
        setUpPrinter({});
        QCOMPARE(readFile(path), "old"_ba);
    }

    void printerSetupOffersOnlyWhatIsFollowed()
    {
        setUpPrinter([](QDialog &dialog) {
            for (auto *button : dialog.findChildren<QPushButton *>())
                if (button->text().startsWith(u"&Options"))
                    Controls::click(*button);
            QVERIFY(in<QWidget>(dialog, "printers").isVisible());
            QVERIFY(in<QWidget>(dialog, "copies").isVisible());
            QVERIFY(in<QWidget>(dialog, "duplex").isVisibleTo(&in<QWidget>(dialog, "optionsTab")));
            for (const char *name :
                 {"properties", "gbPrintRange", "collate", "reverse", "colorMode"}) {
                auto &control = in<QWidget>(dialog, name);
                QVERIFY2(control.parentWidget()->isHidden(), name);
                QVERIFY2(!control.isVisible(), name);
            }
        });
    }

    void pageSetupOffersOnlyWhatIsFollowed()
    {
        m_main->answers.useForm(SystemDialog, [](QDialog &dialog) {
            for (const char *name : {"pageSizeCombo", "portrait", "landscape"})
                QVERIFY2(in<QWidget>(dialog, name).isVisible(), name);
            for (const char *name : {"topMargin", "leftMargin", "rightMargin", "bottomMargin",
                                     "pagesPerSheetCombo", "pagesPerSheetLayoutCombo"})
                QVERIFY2(!in<QWidget>(dialog, name).isVisible(), name);
            press(dialog, QDialogButtonBox::Ok);
        });
        m_main->choose("mnuPageSetup");
    }

    void pageSetupTurnsTheSheet()
    {
        setUpPage("landscape", QDialogButtonBox::Ok);
        QCOMPARE(PrintOrientation, u"Landscape"_s);
        m_main->answers.useForm("frmPrint", [](QDialog &dialog) {
            QVERIFY(in<QRadioButton>(dialog, "optLandscape").isChecked());
            dialog.close();
        });
        m_main->choose("mnuPrint");
        QCOMPARE(pagesOf(printedWholeList()), u"Page 1 size: 842 x 595 pts (A4)"_s);

        setUpPage("portrait", QDialogButtonBox::Ok);
        QCOMPARE(PrintOrientation, u"Portrait"_s);
        QCOMPARE(pagesOf(printedWholeList()), u"Page 1 size: 595 x 842 pts (A4)"_s);
    }

    void aCancelledPageSetupChangesNothing()
    {
        setUpPage("landscape", QDialogButtonBox::Cancel);
        QCOMPARE(PrintOrientation, u"Portrait"_s);
        QCOMPARE(pagesOf(printedWholeList()), u"Page 1 size: 595 x 842 pts (A4)"_s);
    }

    void pageSetupChoosesThePaper()
    {
        m_main->answers.useForm(SystemDialog, [](QDialog &dialog) {
            auto &sizes = in<QComboBox>(dialog, "pageSizeCombo");
            const int a5 = sizes.findText(u"A5"_s);
            QVERIFY(a5 >= 0);
            sizes.setCurrentIndex(a5);
            Q_EMIT sizes.activated(a5);
            press(dialog, QDialogButtonBox::Ok);
        });
        m_main->choose("mnuPageSetup");
        QVERIFY(pagesOf(printedWholeList()).startsWith(u"Page 1 size: 420 x 595 pts"));
    }

    void theWholeListIsPrintedWhateverTheSettings()
    {
        FromWord = 4;
        ToWord = 2;
        PrintItemNumber = false;
        TopMargin = Currency(3);
        gVocabList().CurrentWord(2);
        QCOMPARE(textOf(printedWholeList()).simplified(),
                 u"1. word 1: definition 1 sentence 1 2. word 2: definition 2 sentence 2 "
                 "3. word 3: definition 3 sentence 3 4. word 4: definition 4 sentence 4 "
                 "5. word 5: definition 5 sentence 5"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(5));
        QCOMPARE(FromWord, Integer(4));
    }

    void withoutAFileTheWholeListIsNotPrinted()
    {
        gVocabList().CurrentWord(2);
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuPrintWholeList");
        QCOMPARE(gVocabList().CurrentWord(), Integer(2));
    }

    void anEmptyListIsReported()
    {
        gVocabList().ClearList();
        m_main->answers.expectMsgBox(u"Not printed: Your current wordlist is empty."_s);
        m_main->choose("mnuPrintWholeList");
    }

    void theFileIsNamedAfterTheList()
    {
        gFileTitle = u"My words.lwx"_s;
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Print to PDF"_s);
            QVERIFY(dialog.selectedFiles().constFirst().endsWith(u"/My words.pdf"));
        });
        m_main->choose("mnuPrintWholeList");
        gFileTitle.clear();
        m_main->answers.cancelFileDialog([](QFileDialog &dialog) {
            QVERIFY(dialog.selectedFiles().constFirst().endsWith(u"/Untitled.pdf"));
        });
        m_main->choose("mnuPrintWholeList");
    }

    void aPrintedListIsReportedInTheQuietLine()
    {
        const auto &line = m_main->control<QuietLabel>("lblQuiet");
        const QString before = line.text();
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuPrintWholeList");
        QCOMPARE(line.text(), before);
        const QString file = QFileInfo(printedWholeList()).fileName();
        QCOMPARE(line.text(), u"Printed to %1."_s.arg(file));
        m_main->answers.useForm("frmPrint", [this](QDialog &dialog) {
            m_main->answers.chooseFile(m_main->path(u"chosen.pdf"_s));
            Controls::click(in<QPushButton>(dialog, "cmdPrint"));
        });
        m_main->choose("mnuPrint");
        QCOMPARE(line.text(), u"Printed to chosen.pdf."_s);
        // The next command takes back what this one said.
        m_main->answers.cancelFileDialog();
        m_main->choose("mnuPrintWholeList");
        QCOMPARE(line.text(), before);
    }

    void afterCancelInTheChoiceOfAFileThePrintDialogIsOpen()
    {
        m_main->answers.useForm("frmPrint", [this](QDialog &dialog) {
            m_main->answers.cancelFileDialog();
            Controls::click(in<QPushButton>(dialog, "cmdPrint"));
            QVERIFY(dialog.isVisible());
            Controls::click(in<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuPrint");
        QVERIFY(!m_main->control<QuietLabel>("lblQuiet").text().startsWith(u"Printed"));
    }

private:
    // Printer Setup, accepted with the real button.
    void setUpPrinter(const std::function<void(QDialog &)> &use)
    {
        m_main->answers.useForm(SystemDialog, [use](QDialog &dialog) {
            if (use)
                use(dialog);
            press(dialog, QDialogButtonBox::Ok);
        });
        m_main->choose("mnuPrinterSetup");
    }
    void setUpPage(const char *orientation, QDialogButtonBox::StandardButton button)
    {
        m_main->answers.useForm(SystemDialog, [=](QDialog &dialog) {
            // Without the mouse: the button is wider than the part that takes a click.
            in<QRadioButton>(dialog, orientation).click();
            press(dialog, button);
        });
        m_main->choose("mnuPageSetup");
    }
    // The PDF file that Print Whole List makes.
    QString printedWholeList()
    {
        const QString path = m_main->path(u"whole %1.pdf"_s.arg(++m_files));
        m_main->answers.chooseFile(path);
        m_main->choose("mnuPrintWholeList");
        return path;
    }

    std::unique_ptr<MainWindow> m_main;
    int m_files = 0;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmMain_Print_test>(argc, argv);
}

#include "frmMain_Print_test.moc"
