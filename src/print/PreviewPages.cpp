// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PreviewPages.h"

#include "core/cVocabList.h"
#include "platform/PrintMetrics.h"
#include "platform/Printer.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

struct PreviewPages::Position
{
    int entry = 0; // index in the pass
    int pages = 0; // begun before the entry
    bool onPage = false;
    double y = 0;
};

// Counts the pages and keeps the texts of one, without printing.
class PreviewPages::Recorder final : public Printer
{
public:
    explicit Recorder(const PrintMetrics &metrics) : m_metrics(metrics) {}

    int pages = 0;
    int keptPage = 0; // whose texts are kept; 0 = none
    std::vector<Text> texts;

    [[nodiscard]] Position position(int entry) const
    {
        return {entry, pages, sheetBegun(), CurrentY};
    }

    void goTo(const Position &position)
    {
        pages = position.pages;
        setSheetBegun(position.onPage);
        CurrentY = position.y;
    }

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
    void beginSheet() override { ++pages; }
    void drawText(QPointF topLeft, const QString &text, const PrintStyle &style) override
    {
        if (pages == keptPage)
            texts.push_back({topLeft, text, style});
    }
    void endDocument() override {}
    void dropDocument() override {}

private:
    const PrintMetrics &m_metrics;
};

PreviewPages::PreviewPages(std::shared_ptr<const PrintMetrics> metrics, const cVocabList &list,
                           const WordListPrint &job, Integer copies)
    : m_metrics(std::move(metrics)), m_list(list), m_job(job), m_copies(copies.toInt()),
      m_layout(std::make_unique<Recorder>(*m_metrics))
{
    m_job.startPass(*m_layout, 0);
}

PreviewPages::~PreviewPages() = default;

bool PreviewPages::isComplete() const
{
    return m_list.NumWords() < 1 || m_laidOut == m_job.entries();
}

void PreviewPages::layOut(int milliseconds)
{
    constexpr int EntriesAtATime = 16; // between two looks at the clock
    QElapsedTimer clock;
    clock.start();
    while (!isComplete() && !clock.hasExpired(milliseconds))
        for (int i = 0; i < EntriesAtATime && !isComplete(); ++i)
            layOutEntry();
}

void PreviewPages::layOutEntry()
{
    const Position before = m_layout->position(m_laidOut);
    const Integer position = m_job.position(m_laidOut);
    m_job.printEntry(*m_layout, position, m_list.entry(position));
    ++m_laidOut;
    m_pageStart.resize(static_cast<std::size_t>(m_layout->pages), before);
}

int PreviewPages::count() const
{
    const auto begun = static_cast<double>(m_pageStart.size());
    const double ofPass = isComplete() ? begun : begun * m_job.entries() / std::max(1, m_laidOut);
    // Copies of a long list may have more pages than an int can count. Adding one page must not
    // overflow either.
    constexpr qint64 Most = std::numeric_limits<int>::max() - 1;
    return static_cast<int>(std::min(static_cast<qint64>(std::ceil(ofPass)) * m_copies, Most));
}

// All passes have the same pages.
int PreviewPages::pageOfPass(int page) const
{
    return isComplete() ? (page - 1) % static_cast<int>(m_pageStart.size()) + 1 : page;
}

bool PreviewPages::knows(int page) const
{
    return page >= 1 && (isComplete() ? page <= count() : std::cmp_less(page, m_pageStart.size()));
}

QRectF PreviewPages::textArea() const
{
    const PageFrame &frame = m_job.frame;
    return m_metrics->area().adjusted(frame.left, frame.top, -frame.right, -frame.bottom);
}

std::vector<PreviewPages::Text> PreviewPages::texts(int page) const
{
    const int wanted = pageOfPass(page);
    const Position &start = m_pageStart[static_cast<std::size_t>(wanted - 1)];
    Recorder recorder(*m_metrics);
    m_job.startPass(recorder, 0);
    recorder.goTo(start);
    recorder.keptPage = wanted;
    for (int i = start.entry; i < m_laidOut && recorder.pages <= wanted; ++i)
        m_job.printEntry(recorder, m_job.position(i), m_list.entry(m_job.position(i)));
    return std::move(recorder.texts);
}
