// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PreviewPages.h"

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "platform/PrintMetrics.h"
#include "platform/Printer.h"

#include <QTest>

#include <memory>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

std::shared_ptr<const PrintMetrics> metrics()
{
    return std::make_shared<PrintMetrics>(QSizeF(8, 5), QRectF(0.25, 0.25, 7.5, 4.5), 600);
}

// Records the pages that a job prints with these metrics.
class PrintedPages final : public Printer
{
public:
    explicit PrintedPages(const PrintMetrics &metrics) : m_metrics(metrics) {}

    std::vector<std::vector<PreviewPages::Text>> pages;

    [[nodiscard]] double ScaleWidth() const override { return m_metrics.area().width(); }
    [[nodiscard]] double ScaleHeight() const override { return m_metrics.area().height(); }

protected:
    [[nodiscard]] double widthOf(QStringView text, const PrintStyle &style) const override
    {
        return m_metrics.widthOf(text, style);
    }
    [[nodiscard]] double lineHeight(const PrintStyle &style) const override
    {
        return m_metrics.lineHeight(style);
    }
    void beginSheet() override { pages.emplace_back(); }
    void drawText(QPointF topLeft, const QString &text, const PrintStyle &style) override
    {
        pages.back().push_back({topLeft, text, style});
    }
    void endDocument() override {}
    void dropDocument() override {}

private:
    const PrintMetrics &m_metrics;
};

bool same(const std::vector<PreviewPages::Text> &a, const std::vector<PreviewPages::Text> &b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const auto &x, const auto &y) {
        return x.topLeft == y.topLeft && x.text == y.text && x.style == y.style;
    });
}

void complete(PreviewPages &pages)
{
    while (!pages.isComplete())
        pages.layOut(1000);
}

} // namespace

class PreviewPages_test : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshState>();
        const QString prose = u"a text that is long enough to need more than one line of a page "_s;
        for (int i = 1; i <= 60; ++i)
            gVocabList().AddVocab(u"word %1"_s.arg(i), prose.repeated(i % 7),
                                  prose.repeated(i % 5) + u"\r\n\r\nend"_s);
        // An entry that fills several pages.
        gVocabList().AddVocab(u"long"_s, prose.repeated(60), prose);
        gVocabList().AddVocab(u"last"_s, {}, {});
        gVocabList().CurrentWord(3);
        FromWord = 1;
        ToWord = 62;
        TopMargin = BottomMargin = LeftMargin = RightMargin = Currency::fromText(u"0.7"_s);
    }

    void thePreviewHasThePagesThatArePrinted_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<int>("to");
        QTest::addColumn<QString>("margin");
        QTest::newRow("all") << 1 << 62 << u"0.7"_s;
        QTest::newRow("downwards") << 61 << 5 << u"0.7"_s;
        QTest::newRow("one") << 62 << 62 << u"0"_s;
        QTest::newRow("no margins") << 1 << 62 << u"0"_s;
        QTest::newRow("margins higher than the page") << 50 << 62 << u"2.3"_s;
    }

    void thePreviewHasThePagesThatArePrinted()
    {
        QFETCH(int, from);
        QFETCH(int, to);
        QFETCH(QString, margin);
        FromWord = from;
        ToWord = to;
        TopMargin = BottomMargin = LeftMargin = RightMargin = Currency::fromText(margin);
        const auto measures = metrics();
        PreviewPages preview(measures, gVocabList(), WordListPrint::chosen(), 2);
        complete(preview);
        QCOMPARE(gVocabList().CurrentWord(), Integer(3));

        PrintedPages printed(*measures);
        printed.Copies = 2;
        QVERIFY(
            WordListPrint::chosen().print(printed, gVocabList(), [](int, int) { return true; }));
        QCOMPARE(preview.count(), int(printed.pages.size()));
        for (int page = preview.count(); page >= 1; --page) {
            QVERIFY(preview.knows(page));
            QVERIFY2(same(preview.texts(page), printed.pages[std::size_t(page - 1)]),
                     qPrintable(QString::number(page)));
        }
        QVERIFY(!preview.knows(preview.count() + 1));
    }

    void aPageCanBeSeenBeforeTheRestIsLaidOut()
    {
        for (int i = 0; i < 20'000; ++i)
            gVocabList().AddVocab(u"word"_s, u"definition"_s, u"sentence"_s);
        ToWord = gVocabList().NumWords();
        PreviewPages preview(metrics(), gVocabList(), WordListPrint::chosen(), 1);
        QVERIFY(!preview.knows(1));
        while (!preview.knows(1))
            preview.layOut(0);
        QVERIFY(!preview.isComplete());
        QVERIFY(preview.count() > 100);
        const auto early = preview.texts(1);
        complete(preview);
        QVERIFY(same(preview.texts(1), early));
    }

    void theNumberOfPagesDoesNotOverflow()
    {
        gVocabList().ClearList();
        for (int i = 0; i < 2'000; ++i)
            gVocabList().AddVocab(u"word"_s, u"line\r\n"_s.repeated(40), {});
        ToWord = 2'000;
        // A sheet of one line.
        const auto slip = std::make_shared<PrintMetrics>(QSizeF(8, 0.3), QRectF(0, 0, 8, 0.3), 600);
        TopMargin = BottomMargin = 0;
        PreviewPages preview(slip, gVocabList(), WordListPrint::chosen(), 32767);
        complete(preview);
        QVERIFY2(preview.count() > 2'000'000'000, qPrintable(QString::number(preview.count())));
    }

    void anEmptyListHasNoPages()
    {
        gVocabList().ClearList();
        FromWord = 1;
        ToWord = 0;
        PreviewPages preview(metrics(), gVocabList(), WordListPrint::chosen(), 1);
        QVERIFY(preview.isComplete());
        QCOMPARE(preview.count(), 0);
        QVERIFY(!preview.knows(1));
    }

private:
    std::unique_ptr<FreshState> m_state;
};

QTEST_MAIN(PreviewPages_test)

#include "PreviewPages_test.moc"
