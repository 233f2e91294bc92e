// SPDX-License-Identifier: GPL-3.0-or-later
// Prints to PDF through the dialog and reads the file with poppler's tools.
#include "platform/PrintMetrics.h"
#include "print/PreviewPages.h"
#include "print/PrintForm.h"
#include "print/WordListPrint.h"
#include "support/FormTest.h"

#include <QDir>
#include <QFileDialog>
#include <QProcess>
#include <QProgressDialog>
#include <QRegularExpression>
#include <QTimer>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

constexpr double PointsPerInch = 72;

struct Word
{
    int page;
    QRectF place; // inches from the corner of the sheet
    QString text;
};

struct PdfPage
{
    QSizeF size; // inches
    QStringList words;
};

QString outputOf(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!process.waitForFinished() || process.exitCode() != 0)
        failTest(tool + u" fails: "_s + process.errorString());
    return QString::fromUtf8(process.readAllStandardOutput());
}

class Pdf final
{
public:
    explicit Pdf(const QString &path) : m_path(path)
    {
        static const QRegularExpression line(
            u"<page width=\"([0-9.]+)\" height=\"([0-9.]+)\">|"
            "<word xMin=\"([0-9.-]+)\" yMin=\"([0-9.-]+)\" xMax=\"([0-9.-]+)\" "
            "yMax=\"([0-9.-]+)\">(.*)</word>"_s);
        auto found = line.globalMatch(outputOf(u"pdftotext"_s, {u"-bbox"_s, path, u"-"_s}));
        while (found.hasNext()) {
            const auto match = found.next();
            const auto inches = [&match](int part) {
                return match.captured(part).toDouble() / PointsPerInch;
            };
            if (match.capturedLength(1) > 0) {
                pages.push_back({QSizeF(inches(1), inches(2)), {}});
                continue;
            }
            pages.back().words += match.captured(7);
            words.push_back({int(pages.size()),
                             QRectF(QPointF(inches(3), inches(4)), QPointF(inches(5), inches(6))),
                             match.captured(7)});
        }
    }

    std::vector<PdfPage> pages;
    std::vector<Word> words;

    [[nodiscard]] QString text() const
    {
        return outputOf(u"pdftotext"_s, {u"-layout"_s, m_path, u"-"_s});
    }
    [[nodiscard]] QString fonts() const { return outputOf(u"pdffonts"_s, {m_path}); }

private:
    QString m_path;
};

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

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        failTest(file.errorString());
}

} // namespace

class frmPrint_Pdf_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsThereInItsOrderAndCanBeCopied()
    {
        PrintForm form;
        gVocabList().ClearList();
        gVocabList().AddVocab(u"na\u00EFve"_s, u"d\u00E9finition \u00E0 c\u00F4t\u00E9"_s,
                              u"\u201CStra\u00DFe\u201D \u2014 \u20AC 5"_s);
        gVocabList().AddVocab(u"office"_s, u"first\r\nsecond"_s, u"AVATAR fjord waffle"_s);
        FromWord = 1;
        ToWord = 2;
        const Pdf pdf(print(form));
        QCOMPARE(pdf.text().simplified(),
                 u"1. na\u00EFve: d\u00E9finition \u00E0 c\u00F4t\u00E9 \u201CStra\u00DFe\u201D "
                 "\u2014 \u20AC 5 2. office: first second AVATAR fjord waffle"_s);
    }

    void theFontIsBoldRegularAndItalic()
    {
        PrintForm form;
        gVocabList().ClearList();
        gVocabList().AddVocab(u"word"_s, u"definition"_s, u"sentence"_s);
        ToWord = 1;
        const QStringList lines = Pdf(print(form)).fonts().split(u'\n', Qt::SkipEmptyParts);
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

    void theFirstLineIsAtTheMarginsAndNoWordIsBeyondThem()
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
        const Pdf pdf(print(form));
        const QRectF area = form.printer.metrics()->area();
        const QSizeF sheet = pdf.pages.front().size;
        QVERIFY(pdf.pages.size() > 2);
        QCOMPARE(pdf.words.front().text, u"entry1:"_s);
        // The top of the line is slightly above the box that pdftotext reports.
        QVERIFY(std::abs(pdf.words.front().place.left() - (area.left() + 1.5)) < 0.02);
        QVERIFY(std::abs(pdf.words.front().place.top() - (area.top() + 1)) < 0.06);
        constexpr double Line = 0.17;
        for (const Word &word : pdf.words) {
            const QByteArray text = word.text.toUtf8();
            QVERIFY2(word.place.left() >= area.left() + 1.5 - 0.02, text);
            QVERIFY2(word.place.right() <= area.right() - 1.2 + 0.02, text);
            QVERIFY2(word.place.top() >= area.top() + 1 - 0.06, text);
            // Lines begin at the bottom margin at the latest, a header up to two lines below.
            QVERIFY2(word.place.top() <= area.bottom() - 0.8 + 2 * Line, text);
        }
        QVERIFY(sheet.width() < sheet.height());
        QCOMPARE(pdf.text().count(u'm'), contentText().count(u'm'));
        QCOMPARE(pdf.text().count(u'W'), 300);
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
        const Pdf pdf(print(form));
        QCOMPARE(pdf.pages.size(), preview.size());
        for (std::size_t page = 0; page < preview.size(); ++page) {
            QCOMPARE(pdf.pages[page].words, preview[page]);
            QCOMPARE(pdf.pages[page].size.width() > pdf.pages[page].size.height(), landscape);
        }
    }

    void aPdfFileIsReplacedOnlyAfterYes()
    {
        PrintForm form;
        const QString path = form.path(u"list.pdf"_s);
        write(path, "old");
        form.answers.chooseFile(path);
        form.answers.answerOverwrite(u"list.pdf"_s, QMessageBox::No);
        form.answers.cancelFileDialog();
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(contentOf(path), QByteArray("old"));
        form.open();
        form.answers.chooseFile(path);
        form.answers.answerOverwrite(u"list.pdf"_s, QMessageBox::Yes);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(contentOf(path).startsWith("%PDF-"));
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
        QVERIFY(!form.dialog().isVisible());
        QVERIFY(pdfFiles(form).isEmpty());
        QCOMPARE(TopMargin, Currency(2));
    }

    void aFileThatCannotBeWrittenIsTold()
    {
        PrintForm form;
        // Nobody can create a file here.
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
        const Pdf pdf(print(form));
        QCOMPARE(pdf.words.size(), std::size_t(contentText().split(u' ').size()));
    }

    void aCancelledJobLeavesTheOldFileOrNone_data()
    {
        QTest::addColumn<QByteArray>("old");
        QTest::newRow("no file") << QByteArray();
        QTest::newRow("an old file") << QByteArray("old");
    }

    void aCancelledJobLeavesTheOldFileOrNone()
    {
        QFETCH(QByteArray, old);
        PrintForm form;
        fillWithProse(150);
        // Only Cancel ends such a long job.
        form.control<StepBar>("vsc_Copies").setValue(32767);
        const QString path = form.path(u"list.pdf"_s);
        form.answers.chooseFile(path);
        if (!old.isEmpty()) {
            write(path, old);
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
        QCOMPARE(contentOf(path), old);
        QCOMPARE(pdfFiles(form).size(), old.isEmpty() ? 0 : 1);
        // The settings stay, and the next job is printed.
        form.printer.Copies = 1;
        ToWord = 2;
        form.open();
        const Pdf pdf(print(form));
        QCOMPARE(pdf.words.front().text, u"1."_s);
        QCOMPARE(pdf.pages.size(), std::size_t(1));
    }

    void theCurrentEntryIsTheLastPrinted()
    {
        PrintForm form;
        gVocabList().CurrentWord(3);
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"9"_s);
        form.typeAndLeave("txtToWord", u"4"_s);
        QCOMPARE(gVocabList().CurrentWord(), Integer(3));
        const Pdf pdf(print(form));
        QCOMPARE(gVocabList().CurrentWord(), Integer(4));
        QCOMPARE(pdf.words.front().text, u"9."_s);
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
