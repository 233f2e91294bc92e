// SPDX-License-Identifier: GPL-3.0-or-later
// Prints lists through the dialog into real queues and reads the result.
#include "print/PrintForm.h"
#include "print/PrintServer.h"
#include "print/PrintedPages.h"
#include "runtime/ErrorNumber.h"
#include "support/FormTest.h"
#include "support/SmallFiles.h"
#include "support/TestFiles.h"

#include <QProgressDialog>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

// The A4 sheet of Paper.ppd, in points.
constexpr QSizeF Sheet(595, 842);
constexpr QMarginsF Borders(18, 54, 30, 36); // left, top, right, bottom
// In landscape. The queue may turn the sheet to either side, so opposite borders are equal.
constexpr QMarginsF TurnedBorders(54, 30, 54, 30);
constexpr double FontSize = 10;
constexpr double Tolerance = 1; // points

const QString LongWord = u"Donaudampfschifffahrtsgesellschaft"_s.repeated(6);

const QString Paper = u"Paper"_s;
const QString Draft = u"Paper/draft"_s;
const QString PostScript = u"PostScript"_s;
const QString PaperDriver = QStringLiteral(TANGLEWIT_TESTS_FOLDER "/print/Paper.ppd");
const QString PostScriptDriver = QStringLiteral(TANGLEWIT_TESTS_FOLDER "/print/PostScript.ppd");

// The print dialog with a list and a queue.
class QueueForm final : public PrintForm
{
public:
    explicit QueueForm(const QString &queue, const std::vector<VocabRecord> &entries) : PrintForm(0)
    {
        for (const VocabRecord &entry : entries)
            gVocabList().AddVocab(entry.Word, entry.Definition, entry.Sentence);
        open();
        choosePrinter(queue);
    }

    void choosePrinter(const QString &name)
    {
        auto &list = control<QListWidget>("lstPrinter");
        const auto rows = list.findItems(name, Qt::MatchExactly);
        QCOMPARE(rows.size(), 1);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {},
                          list.visualItemRect(rows.constFirst()).center());
        QCOMPARE(printer.DeviceName(), name);
    }

    void setMargins(const QString &top, const QString &bottom, const QString &left,
                    const QString &right)
    {
        typeAndLeave("txtTopMargin", top);
        typeAndLeave("txtBottomMargin", bottom);
        typeAndLeave("txtLeftMargin", left);
        typeAndLeave("txtRightMargin", right);
    }
};

std::vector<VocabRecord> frenchWords()
{
    return {{u"école"_s, u"school; a place\r\nwhere one learns"_s, u"L'école est fermée."_s},
            {u"Schiff"_s, LongWord, {}},
            {u"œuvre"_s, u"a work"_s, u"Ses œuvres coûtent 20 €."_s}};
}

QString words(int count)
{
    QStringList some;
    for (int i = 1; i <= count; ++i)
        some += u"word%1"_s.arg(i);
    return some.join(u' ');
}

QStringList textsOf(const std::vector<PrintedWord> &printed)
{
    QStringList texts;
    for (const PrintedWord &word : printed)
        texts += word.text;
    return texts;
}

// A box on the portrait sheet as seen when the sheet is turned to landscape.
QRectF turned(const QRectF &box)
{
    return {Sheet.height() - box.bottom(), box.left(), box.height(), box.width()};
}

} // namespace

class PrintedForReal_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        if (!PrintServer::isInstalled())
            QSKIP("CUPS or its filters are not installed.");
        m_server = std::make_unique<PrintServer>();
        m_server->addQueue(Paper, PaperDriver);
        m_server->addQueue(PostScript, PostScriptDriver);
        m_server->addInstance(Paper, u"draft"_s);
    }

    void cleanupTestCase() { m_server.reset(); }

    void theDialogOffersTheQueues()
    {
        PrintForm form;
        auto &list = form.control<QListWidget>("lstPrinter");
        QStringList names;
        for (int row = 0; row < list.count(); ++row)
            names += list.item(row)->text();
        QCOMPARE(names, QStringList({Paper, Draft, PostScript, u"Print to PDF"_s}));
    }

    void thePrinterIsChosenByItsNameAndNotByItsRow()
    {
        QueueForm form(Paper, frenchWords());
        auto &list = form.control<QListWidget>("lstPrinter");
        list.insertItem(0, PostScript);
        for (const int row : {0, 3}) {
            form.printer.select(Paper);
            list.setCurrentRow(row);
            QCOMPARE(list.currentItem()->text(), PostScript);
            QCOMPARE(form.printer.DeviceName(), PostScript);
            list.setCurrentRow(1);
        }
    }

    void theTextCanBeReadBackInItsOrder()
    {
        QueueForm form(Paper, frenchWords());
        form.click("cmdPrint");
        const auto printed = wordsOnPages(m_server->printed(Paper));
        QString text = textsOf(printed).join(u' ');
        const QString wanted = u"1. école: school; a place where one learns L'école est fermée. "
                               "2. Schiff: %1 3. œuvre: a work Ses œuvres coûtent 20 €."_s;
        QVERIFY2(!text.contains(LongWord), "the long word has to be broken");
        QCOMPARE(text.remove(u' '), wanted.arg(LongWord).remove(u' '));
    }

    void aRangeCanBePrintedDownwards()
    {
        QueueForm form(Paper, frenchWords());
        form.click("optSubset");
        form.typeAndLeave("txtFromWord", u"3"_s);
        form.typeAndLeave("txtToWord", u"1"_s);
        form.click("cmdPrint");
        const QStringList texts = textsOf(wordsOnPages(m_server->printed(Paper)));
        QCOMPARE(texts.filter(u":"_s), QStringList({u"œuvre:"_s, u"Schiff:"_s, u"école:"_s}));
    }

    void wordsAreBoldDefinitionsRegularAndSentencesItalic()
    {
        QueueForm form(Paper, {{u"école"_s, u"school\r\nplace"_s, u"L'école."_s}});
        form.click("cmdPrint");
        QCOMPARE(
            styledTexts(m_server->printed(Paper)),
            QStringList({u"<b> 1. école:  </b>"_s, u"school"_s, u"place"_s, u"<i>L'école.</i>"_s}));
    }

    void everyWordLiesInsideTheMargins_data()
    {
        QTest::addColumn<bool>("landscape");
        QTest::newRow("portrait") << false;
        QTest::newRow("landscape") << true;
    }

    void everyWordLiesInsideTheMargins()
    {
        QFETCH(bool, landscape);
        QueueForm form(Paper, {{u"a"_s, words(3000), LongWord.repeated(40)}});
        form.click(landscape ? "optLandscape" : "optPortrait");
        form.setMargins(u"1.5"_s, u"0.7"_s, u"0.4"_s, u"1.1"_s);
        form.click("cmdPrint");
        const auto printed = wordsOnPages(m_server->printed(Paper));
        QVERIFY(printed.back().page > 2);

        const QMarginsF borders = landscape ? TurnedBorders : Borders;
        const QRectF body = QRectF({}, landscape ? Sheet.transposed() : Sheet)
                                .marginsRemoved(borders)
                                .marginsRemoved(QMarginsF(0.4, 1.5, 1.1, 0.7) * PointsPerInch);
        double left = body.right();
        double right = 0;
        int begun = 0; // pages so far
        for (const PrintedWord &word : printed) {
            QCOMPARE(word.sheet, Sheet);
            const QRectF box = landscape ? turned(word.box) : word.box;
            QVERIFY(box.left() > body.left() - Tolerance);
            QVERIFY(box.right() < body.right() + Tolerance);
            QVERIFY(box.top() > body.top() - Tolerance);
            QVERIFY(box.top() < body.bottom() + Tolerance);
            left = std::min(left, box.left());
            right = std::max(right, box.right());
            if (std::exchange(begun, word.page) != word.page)
                QVERIFY(std::abs(box.top() - body.top()) < Tolerance);
        }
        QVERIFY(std::abs(left - body.left()) < Tolerance);
        // A line of the long word ends less than one letter before the margin.
        QVERIFY(right > body.right() - FontSize);
    }

    void aPageEndsWithTheLastLineThatBeginsAboveTheBottomMargin()
    {
        QStringList lines;
        for (int i = 1; i <= 200; ++i)
            lines += u"line%1"_s.arg(i);
        QueueForm form(Paper, {{u"a"_s, lines.join(u"\r\n"_s), {}}});
        form.setMargins(u"1"_s, u"2"_s, u"0"_s, u"0"_s);
        form.click("cmdPrint");
        const auto printed = wordsOnPages(m_server->printed(Paper));

        const double first = Borders.top() + 1 * PointsPerInch;
        const double limit = Sheet.height() - Borders.bottom() - 2 * PointsPerInch;
        const double pitch = printed[3].box.top() - printed[2].box.top();
        QVERIFY(pitch > FontSize && pitch < 1.2 * FontSize);
        QCOMPARE(printed[0].text, u"1."_s);
        QVERIFY(std::abs(printed[0].box.top() - first) < Tolerance);
        int breaks = 0;
        for (std::size_t i = 3; i < printed.size(); ++i) {
            const double above = printed[i - 1].box.top();
            const double top = printed[i].box.top();
            if (printed[i].page == printed[i - 1].page) {
                QVERIFY(std::abs(top - above - pitch) < Tolerance);
                QVERIFY(top < limit);
            } else {
                ++breaks;
                QVERIFY(above + pitch > limit);
                QVERIFY(std::abs(top - first) < Tolerance);
            }
        }
        QCOMPARE(breaks, 4);
    }

    // The program repeats the range, and the queue repeats the job.
    void copiesAreMadeByTheProgramAndByTheQueue()
    {
        QueueForm form(Paper, frenchWords());
        form.control<StepBar>("vsc_Copies").setValue(2);
        form.click("cmdPrint");
        const auto printed = wordsOnPages(m_server->printed(Paper));
        QCOMPARE(textsOf(printed).filter(u"école:"_s).size(), 4);
        QCOMPARE(printed.back().page, 4);
    }

    void aPostScriptPrinterIsAskedForTheCopies()
    {
        QueueForm form(PostScript, frenchWords());
        form.control<StepBar>("vsc_Copies").setValue(3);
        form.click("cmdPrint");
        const QByteArray document = readFile(m_server->printed(PostScript));
        QVERIFY(document.startsWith("%!PS"));
        QVERIFY(document.contains("numcopies(3)"));
        QCOMPARE(document.count("\n%%Page: "), 3);
    }

    void anInstanceOfAPrinterPrintsIntoItsQueue()
    {
        QueueForm form(Draft, frenchWords());
        const qsizetype before = m_server->jobs(Paper);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(m_server->jobs(Paper), before + 1);
        static_cast<void>(m_server->printed(Paper));
    }

    void aQueueThatTakesNoJobIsReported_data()
    {
        QTest::addColumn<QString>("trouble");
        QTest::addColumn<QString>("repair");
        QTest::newRow("stopped") << u"cupsdisable"_s << u"cupsenable"_s;
        QTest::newRow("rejecting") << u"cupsreject"_s << u"cupsaccept"_s;
    }

    void aQueueThatTakesNoJobIsReported()
    {
        QFETCH(QString, trouble);
        QFETCH(QString, repair);
        QueueForm form(Paper, frenchWords());
        const qsizetype before = m_server->jobs(Paper);
        m_server->tell(trouble, Paper);
        form.answers.expectMsgBox(u"Paper has encountered an error"_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(m_server->jobs(Paper), before);
        QVERIFY(form.dialog().isVisible());

        m_server->tell(repair, Paper);
        form.click("cmdPrint");
        QVERIFY(!form.dialog().isVisible());
        QCOMPARE(m_server->jobs(Paper), before + 1);
        static_cast<void>(m_server->printed(Paper));
    }

    void aRemovedQueueIsReported()
    {
        const QString queue = u"Vanishing"_s;
        m_server->addQueue(queue, PaperDriver);
        QueueForm form(queue, frenchWords());
        m_server->removeQueue(queue);
        form.answers.expectMsgBox(u"Vanishing has encountered an error"_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(form.dialog().isVisible());

        const qsizetype before = m_server->jobs(Paper);
        form.choosePrinter(Paper);
        form.click("cmdPrint");
        QCOMPARE(m_server->jobs(Paper), before + 1);
        static_cast<void>(m_server->printed(Paper));
    }

    void aQueueThatIsAddedLaterCanBePrintedTo()
    {
        const QString queue = u"Returning"_s;
        QueueForm form(Paper, frenchWords());
        const qsizetype before = m_server->jobs(Paper);
        form.printer.select(queue);
        m_server->addQueue(queue, PaperDriver);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QCOMPARE(m_server->jobs(Paper), before);
        QCOMPARE(m_server->jobs(queue), 1);
        static_cast<void>(m_server->printed(queue));
        m_server->removeQueue(queue);
    }

    // As if the disk for temporary files were full.
    void aDocumentThatCannotBeWrittenIsNotPrinted()
    {
        QueueForm form(Paper, frenchWords());
        const qsizetype before = m_server->jobs(Paper);
        SystemPrinter &printer = form.printer;
        QVERIFY(printer.StartDoc(nullptr, u"list"_s));
        printer.Font = {u"Times New Roman"_s, 10};
        printer.Print(words(100));
        const SmallFiles small(512);
        QCOMPARE(errorNumberOf([&printer] { printer.EndDoc(); }), RunTimeError::PrinterFault);
        QCOMPARE(m_server->jobs(Paper), before);
    }

    void aCancelledJobDoesNotReachTheQueue()
    {
        QueueForm form(Paper, std::vector<VocabRecord>(3000, {u"a"_s, words(30), words(30)}));
        form.control<StepBar>("vsc_Copies").setValue(1000);
        const qsizetype before = m_server->jobs(Paper);
        QTimer looking;
        bool cancelled = false;
        connect(&looking, &QTimer::timeout, &looking, [&] {
            const auto *bar = form.dialog().findChild<QProgressDialog *>();
            if (bar && bar->isVisible() && !cancelled) {
                cancelled = true;
                Controls::click(Controls::find<QAbstractButton>(*bar, ""));
            }
        });
        looking.start(5);
        form.click("cmdPrint");
        QVERIFY(cancelled);
        QVERIFY(form.dialog().isVisible());
        QCOMPARE(m_server->jobs(Paper), before);
    }

    void withoutTheServerThePrinterIsInError()
    {
        QueueForm form(Paper, frenchWords());
        m_server->stop();
        form.answers.expectMsgBox(u"Paper has encountered an error"_s);
        form.click("cmdPrint");
        QVERIFY(form.answers.allSeen());
        QVERIFY(form.dialog().isVisible());
    }

private:
    std::unique_ptr<PrintServer> m_server;
};

int main(int argc, char *argv[])
{
    return runFormTest<PrintedForReal_test>(argc, argv);
}

#include "PrintedForReal_test.moc"
