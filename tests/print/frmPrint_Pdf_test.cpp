// SPDX-License-Identifier: GPL-3.0-or-later
// Prints to PDF through the dialog and reads the file with poppler's tools.
#include "platform/PrintMetrics.h"
#include "print/PreviewPages.h"
#include "print/PrintForm.h"
#include "print/PrintedPages.h"
#include "print/WordListPrint.h"
#include "support/FormTest.h"
#include "support/TestFiles.h"

#include <QFileDialog>
#include <QProgressDialog>
#include <QTimer>
#include <QTransform>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

QString textOf(const QString &file)
{
    return QString::fromUtf8(outputOf(u"pdftotext"_s, {u"-layout"_s, file, u"-"_s}));
}

QString fontsOf(const QString &file)
{
    return QString::fromUtf8(outputOf(u"pdffonts"_s, {file}));
}

struct Page
{
    QSizeF sheet;
    QStringList words;
};

// The pages with words on them.
std::vector<Page> pagesOf(const QString &file)
{
    std::vector<Page> pages;
    for (const PrintedWord &word : wordsOnPages(file)) {
        pages.resize(std::size_t(word.page));
        pages.back().sheet = word.sheet;
        pages.back().words += word.text;
    }
    return pages;
}

// The words on each page of the preview.
std::vector<QStringList> previewOf(SystemPrinter &printer)
{
    PreviewPages preview(printer.metrics(), gVocabList(), WordListPrint::chosen(), printer.Copies);
    while (!preview.isComplete())
        preview.layOut(1000);
    std::vector<QStringList> pages;
    for (int page = 1; page <= preview.count(); ++page) {
        QStringList words;
        for (const PreviewPages::Text &text : preview.texts(page))
            words += text.text.simplified().split(QLatin1Char(' '));
        pages.push_back(words);
    }
    return pages;
}

void fillWithProse(int entries)
{
    const QString prose = u"seven words that wrap on every page "_s;
    gVocabList().ClearList();
    for (int i = 1; i <= entries; ++i)
        gVocabList().AddVocab(u"entry%1"_s.arg(i), prose.repeated(i % 9 + 1),
                              u"first\r\n"_s + prose.repeated(i % 5));
    FromWord = 1;
    ToWord = entries;
}

} // namespace

class frmPrint_Pdf_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextOfThePdfFileCanBeReadInOrder()
    {
        PrintForm form;
        gVocabList().ClearList();
        gVocabList().AddVocab(u"na\u00EFve"_s, u"d\u00E9finition \u00E0 c\u00F4t\u00E9"_s,
                              u"\u201CStra\u00DFe\u201D \u2014 \u20AC 5"_s);
        gVocabList().AddVocab(u"office"_s, u"first\r\nsecond"_s, u"AVATAR fjord waffle"_s);
        FromWord = 1;
        ToWord = 2;
        QCOMPARE(textOf(print(form)).simplified(),
                 u"1. na\u00EFve: d\u00E9finition \u00E0 c\u00F4t\u00E9 \u201CStra\u00DFe\u201D "
                 "\u2014 \u20AC 5 2. office: first second AVATAR fjord waffle"_s);
    }

    void theFontsAreBoldRegularAndItalic()
    {
        PrintForm form;
        gVocabList().ClearList();
        gVocabList().AddVocab(u"word"_s, u"definition"_s, u"sentence"_s);
        ToWord = 1;
        const QStringList lines = fontsOf(print(form)).split(u'\n', Qt::SkipEmptyParts);
        QStringList styles;
        for (const QString &line : lines.mid(2)) {
            const QString name = line.section(u' ', 0, 0);
            QVERIFY2(name.contains(u"Serif") || name.contains(u"Times"), qPrintable(name));
            styles += name.contains(u"Bold")     ? u"bold"_s
                      : name.contains(u"Italic") ? u"italic"_s
                                                 : u"regular"_s;
        }
        styles.sort();
        QCOMPARE(styles, QStringList({u"bold"_s, u"italic"_s, u"regular"_s}));
    }

    void theTextBeginsAtTheMarginsAndStaysWithinThem()
    {
        PrintForm form;
        fillWithProse(40);
        gVocabList().AddVocab(u"long"_s, QString(400, u'm'), u"W"_s.repeated(300));
        ToWord = 41;
        form.typeAndLeave("txtTopMargin", u"1"_s);
        form.typeAndLeave("txtBottomMargin", u"0.8"_s);
        form.typeAndLeave("txtLeftMargin", u"1.5"_s);
        form.typeAndLeave("txtRightMargin", u"1.2"_s);
        form.click("chkPrintItemNumber");
        const QString file = print(form);
        const std::vector<PrintedWord> words = wordsOnPages(file);
        const QRectF area = form.printer.metrics()->area();
        const QRectF body = area.marginsRemoved({1.5, 1, 1.2, 0.8});
        const auto place = [](const PrintedWord &word) { // in inches
            return QTransform::fromScale(1 / PointsPerInch, 1 / PointsPerInch).mapRect(word.box);
        };
        QVERIFY(words.back().page > 2);
        QCOMPARE(words.front().text, u"entry1:"_s);
        // The top of the line is slightly above the box that pdftotext reports.
        QVERIFY(std::abs(place(words.front()).left() - body.left()) < 0.02);
        QVERIFY(std::abs(place(words.front()).top() - body.top()) < 0.06);
        constexpr double Line = 0.17;
        for (const PrintedWord &word : words) {
            const QByteArray text = word.text.toUtf8();
            QVERIFY2(place(word).left() >= body.left() - 0.02, text);
            QVERIFY2(place(word).right() <= body.right() + 0.02, text);
            QVERIFY2(place(word).top() >= body.top() - 0.06, text);
            // The last line begins at the bottom margin, a header at most two lines below it.
            QVERIFY2(place(word).top() <= body.bottom() + 2 * Line, text);
        }
        QVERIFY(words.front().sheet.width() < words.front().sheet.height());
        QCOMPARE(textOf(file).count(u'm'), contentText().count(u'm'));
        QCOMPARE(textOf(file).count(u'W'), 300);
    }

    void withoutMarginsTheBorderOfTheSheetStaysEmpty_data()
    {
        QTest::addColumn<bool>("landscape");
        QTest::newRow("portrait") << false;
        QTest::newRow("landscape") << true;
    }

    void withoutMarginsTheBorderOfTheSheetStaysEmpty()
    {
        QFETCH(bool, landscape);
        constexpr double Border = 0.25 * PointsPerInch;
        PrintForm form;
        fillWithProse(40);
        form.click(landscape ? "optLandscape" : "optPortrait");
        const std::vector<PrintedWord> words = wordsOnPages(print(form));
        const PrintedWord &first = words.front();
        QCOMPARE(first.sheet.width() > first.sheet.height(), landscape);
        const QRectF body = QRectF({}, first.sheet).adjusted(Border, Border, -Border, -Border);
        // The number begins with a blank, and the box is slightly below the top of the line.
        QVERIFY(first.box.left() >= body.left() && first.box.left() < body.left() + 4);
        QVERIFY(first.box.top() >= body.top() - 4 && first.box.top() < body.top() + 4);
        double right = 0;
        for (const PrintedWord &word : words) {
            QVERIFY(word.box.left() > body.left() - 1);
            right = std::max(right, word.box.right());
        }
        QVERIFY(right < body.right() + 1 && right > body.right() - 60);
    }

    void thePagesAreThoseOfThePreview_data()
    {
        QTest::addColumn<bool>("landscape");
        QTest::addColumn<QString>("margin");
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<int>("copies");
        QTest::newRow("portrait") << false << u"0.5"_s << 1 << 150 << 1;
        QTest::newRow("portrait, twice") << false << u"0"_s << 1 << 60 << 2;
        QTest::newRow("landscape") << true << u"1"_s << 1 << 150 << 1;
        QTest::newRow("landscape, downwards") << true << u"3"_s << 30 << 1 << 1;
    }

    void thePagesAreThoseOfThePreview()
    {
        QFETCH(bool, landscape);
        QFETCH(QString, margin);
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(int, copies);
        PrintForm form;
        fillWithProse(150);
        FromWord = from;
        ToWord = to;
        for (const char *box :
             {"txtTopMargin", "txtBottomMargin", "txtLeftMargin", "txtRightMargin"})
            form.typeAndLeave(box, margin);
        form.click(landscape ? "optLandscape" : "optPortrait");
        form.control<StepBar>("vsc_Copies").setValue(copies);
        const std::vector<QStringList> preview = previewOf(form.printer);
        QVERIFY(preview.size() > 2);
        const std::vector<Page> printed = pagesOf(print(form));
        QCOMPARE(printed.size(), preview.size());
        for (std::size_t page = 0; page < preview.size(); ++page) {
            QCOMPARE(printed[page].words, preview[page]);
            QCOMPARE(printed[page].sheet.width() > printed[page].sheet.height(), landscape);
        }
    }

    void aPdfFileIsReplacedOnlyAfterYes()
    {
        PrintForm form;
        const QString path = form.path(u"list.pdf"_s);
        writeFile(path, "old");
        form.answers.chooseFile(path);
        form.answers.answerOverwrite(u"list.pdf"_s, QMessageBox::No);
        form.answers.cancelFileDialog();
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(readFile(path), QByteArray("old"));
        form.answers.chooseFile(path);
        form.answers.answerOverwrite(u"list.pdf"_s, QMessageBox::Yes);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(readFile(path).startsWith("%PDF-"));
    }

    void withoutAFileNothingIsPrintedAndTheSettingsStay()
    {
        PrintForm form;
        form.answers.cancelFileDialog([](QFileDialog &dialog) {
            QCOMPARE(dialog.defaultSuffix(), u"pdf"_s);
            QCOMPARE(dialog.acceptMode(), QFileDialog::AcceptSave);
        });
        form.typeAndLeave("txtTopMargin", u"2"_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(form.dialog().isVisible());
        QVERIFY(pdfFiles(form).isEmpty());
        QCOMPARE(TopMargin, Currency(2));
        QVERIFY(textOf(print(form)).contains(u"w20:"_s));
    }

    void aFileThatCannotBeWrittenIsReported()
    {
        PrintForm form;
        // No file can be created in this folder.
        const QString path = u"/sys/list.pdf"_s;
        form.answers.chooseFile(path);
        form.answers.expectAnyMsgBox(QMessageBox::Ok, [path](QMessageBox &box) {
            QVERIFY2(box.text().startsWith(u"Run-time error '70':\n\nPermission denied\n"),
                     qPrintable(box.text()));
            QVERIFY2(box.text().contains(path + u": "_s), qPrintable(box.text()));
        });
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        // The dialog stays open for another file.
        QVERIFY(form.dialog().isVisible());
        QCOMPARE(gVocabList().NumWords(), Integer(20));
        QCOMPARE(textOf(print(form)).simplified(), contentText());
    }

    void aCancelledJobChangesNoFile_data()
    {
        QTest::addColumn<QByteArray>("old");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("an old file") << QByteArray("old");
    }

    void aCancelledJobChangesNoFile()
    {
        QFETCH(QByteArray, old);
        PrintForm form;
        fillWithProse(150);
        // Only Cancel ends such a long job.
        form.control<StepBar>("vsc_Copies").setValue(32767);
        const QString path = form.path(u"list.pdf"_s);
        form.answers.chooseFile(path);
        if (!old.isEmpty()) {
            writeFile(path, old);
            form.answers.answerOverwrite(u"list.pdf"_s, QMessageBox::Yes);
        }
        QTimer look;
        connect(&look, &QTimer::timeout, &form.dialog(), [&form] {
            auto *bar = form.dialog().findChild<QProgressDialog *>();
            if (bar && bar->isVisible())
                QTest::mouseClick(bar->findChild<QPushButton *>(), Qt::LeftButton);
        });
        look.start(5);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(pdfFiles(form), old.isEmpty() ? QStringList() : QStringList(u"list.pdf"_s));
        if (!old.isEmpty())
            QCOMPARE(readFile(path), old);
        // The dialog stays for the next job.
        QVERIFY(form.dialog().isVisible());
        form.control<StepBar>("vsc_Copies").setValue(1);
        ToWord = 2;
        const std::vector<PrintedWord> words = wordsOnPages(print(form));
        QCOMPARE(words.front().text, u"1."_s);
        QCOMPARE(words.back().page, 1);
    }

    void theLastPrintedEntryIsTheCurrentOne()
    {
        PrintForm form;
        gVocabList().CurrentWord(3);
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"9"_s);
        form.typeAndLeave("txtToWord", u"4"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(3));
        const QString file = print(form);
        QCOMPARE(gVocabList().CurrentWord(), Integer(4));
        QCOMPARE(wordsOnPages(file).front().text, u"9."_s);
    }

private:
    // The text of a job of the whole list.
    static QString contentText()
    {
        QString text;
        for (int i = 1; i <= gVocabList().NumWords().toInt(); ++i) {
            const VocabRecord &entry = gVocabList().entry(i);
            text += u" %1. "_s.arg(i) + entry.Word + u":  "_s + entry.Definition + u' ' +
                    entry.Sentence + u' ';
        }
        return text.simplified();
    }

    static QStringList pdfFiles(const PrintForm &form)
    {
        return QDir(form.path(u"."_s)).entryList({u"*.pdf*"_s}, QDir::Files | QDir::Hidden);
    }

    QString print(PrintForm &form)
    {
        const QString path = form.path(u"printed %1.pdf"_s.arg(++m_files));
        form.answers.chooseFile(path);
        form.click("cmdPrint");
        if (!form.answers.allSeen() || form.dialog().isVisible())
            failTest(u"the list is not printed"_s);
        return path;
    }

    int m_files = 0;
};

int main(int argc, char *argv[])
{
    return runFormTest<frmPrint_Pdf_test>(argc, argv);
}

#include "frmPrint_Pdf_test.moc"
