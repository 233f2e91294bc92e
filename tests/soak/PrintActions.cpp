// SPDX-License-Identifier: GPL-3.0-or-later
// Printing: the dialog with its preview, the whole list, the system's two dialogs. The only
// printer is a PDF file.
#include "soak/Soak.h"
#include "support/TestFiles.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostEntries = 400; // printing more would take too long

bool isPrintable(Soak &soak)
{
    return !soak.game() && soak.model.count() <= MostEntries;
}

// The path that is chosen for the PDF file; empty if the dialog is cancelled.
QString expectPdfDialog(Soak &soak)
{
    if (soak.chance(20)) {
        soak.answers().cancelFileDialog();
        return {};
    }
    const QString path = soak.path(u"pages %1.pdf"_s.arg(soak.roll(2)));
    soak.answers().chooseFile(path);
    if (QFile::exists(path))
        soak.answers().answerOverwrite(path.section(u'/', -1), QMessageBox::Yes);
    return path;
}

void checkPdf(const QString &path)
{
    if (path.isEmpty())
        return;
    const QByteArray bytes = readFile(path);
    if (!bytes.startsWith("%PDF-") || !bytes.trimmed().endsWith("%%EOF"))
        failTest(path + u" is no whole PDF file"_s);
}

void printWholeList(Soak &soak)
{
    QString path;
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Not printed: Your current wordlist is empty."_s);
    else
        path = expectPdfDialog(soak);
    soak.main().choose("mnuPrintWholeList");
    checkPdf(path);
}

void typeNumber(Soak &soak, QDialog &form)
{
    constexpr const char *boxes[] = {"txtFromWord",     "txtToWord",     "txtTopMargin",
                                     "txtBottomMargin", "txtLeftMargin", "txtRightMargin"};
    static const QStringList numbers{u"0"_s, u"1"_s, u"2.5"_s,         u"-3"_s,  u"40"_s,
                                     u""_s,  u"x"_s, u"99999999999"_s, u"1,5"_s, u"1e2"_s};
    const char *name = soak.oneOf(boxes);
    auto &box = Controls::find<QLineEdit>(form, name);
    if (!box.isEnabled())
        return;
    const QString number = soak.oneOf(numbers);
    soak.note(u"%1: %2"_s.arg(QLatin1String(name), number));
    Controls::type(box, number);
    Soak::press(box, Qt::Key_Tab);
}

void stepBar(Soak &soak, QDialog &form)
{
    constexpr const char *bars[] = {"vsc_TopMargin", "vsc_BottomMargin", "vsc_LeftMargin",
                                    "vsc_RightMargin"};
    const char *name = soak.oneOf(bars);
    soak.note(QLatin1String(name));
    Controls::find<QScrollBar>(form, name).setValue(soak.roll(31));
}

void pressButton(Soak &soak, QDialog &form)
{
    constexpr const char *buttons[] = {
        "optPortrait",  "optLandscape", "optPrintAllWords", "optSubset",   "chkPrintItemNumber",
        "cmdFirstPage", "cmdNextPage",  "cmdPreviousPage",  "cmdLastPage", "cmdZoom"};
    const char *name = soak.oneOf(buttons);
    auto &button = Controls::find<QAbstractButton>(form, name);
    if (!Soak::isUsable(button))
        return;
    soak.note(QLatin1String(name));
    button.click();
}

void leavePrintDialog(Soak &soak, QDialog &form)
{
    switch (soak.roll(3)) {
    case 0:
        return Controls::click(Controls::find<QPushButton>(form, "cmdCancel"));
    case 1:
        return Soak::press(form, Qt::Key_Escape);
    default:
        form.close();
    }
}

void printFrom(Soak &soak, QDialog &form)
{
    QString path;
    if (soak.model.count() == 0)
        soak.expectMsgBox(u"Not printed: Your current wordlist is empty."_s);
    else
        path = expectPdfDialog(soak);
    soak.note(u"print to "_s + path);
    Controls::click(Controls::find<QPushButton>(form, "cmdPrint"));
    checkPdf(path);
    if (form.isVisible())
        leavePrintDialog(soak, form);
}

void usePrintDialog(Soak &soak, QDialog &form)
{
    Soak::waitFor(form);
    for (int times = soak.roll(8); times > 0; --times) {
        switch (soak.roll(3)) {
        case 0:
            typeNumber(soak, form);
            break;
        case 1:
            stepBar(soak, form);
            break;
        default:
            pressButton(soak, form);
        }
        // The preview lays out its pages while the program is idle.
        Soak::waitFor(form);
    }
    if (soak.chance(50))
        printFrom(soak, form);
    else
        leavePrintDialog(soak, form);
}

void print(Soak &soak)
{
    soak.answers().useForm("frmPrint", [&soak](QDialog &form) { usePrintDialog(soak, form); });
    soak.main().choose("mnuPrint");
}

// Uses one of Qt's own dialogs, which have no object name.
void useSystemDialog(Soak &soak, const char *menuItem)
{
    const bool accepted = soak.chance(60);
    soak.answers().useForm("", [accepted](QDialog &dialog) {
        Controls::click(*dialog.findChild<QDialogButtonBox *>()->button(
            accepted ? QDialogButtonBox::Ok : QDialogButtonBox::Cancel));
    });
    soak.main().choose(menuItem);
}

void setUpPrinter(Soak &soak)
{
    useSystemDialog(soak, "mnuPrinterSetup");
}

void setUpPage(Soak &soak)
{
    useSystemDialog(soak, "mnuPageSetup");
}

} // namespace

std::vector<Action> printActions()
{
    return {
        {"File > Print", 5, isPrintable, print},
        {"File > Print Whole List", 2, isPrintable, printWholeList},
        {"File > Printer Setup", 2, isPrintable, setUpPrinter},
        {"File > Page Setup", 2, isPrintable, setUpPage},
    };
}
