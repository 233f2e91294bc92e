// SPDX-License-Identifier: GPL-3.0-or-later
// The pages of a print job, laid out step by step with the code that prints them. Only the start of
// each page is kept.
#pragma once

#include "platform/PrintFont.h"
#include "print/WordListPrint.h"

#include <QPointF>
#include <QRectF>

#include <memory>
#include <vector>

class PrintMetrics;

class PreviewPages
{
public:
    struct Text
    {
        QPointF topLeft; // inches from the corner of the printable area
        QString text;
        PrintStyle style;
    };

    // The list must outlive the object and must not change meanwhile. Its current entry is not
    // changed.
    PreviewPages(std::shared_ptr<const PrintMetrics> metrics, const cVocabList &list,
                 const WordListPrint &job, Integer copies);
    ~PreviewPages();
    Q_DISABLE_COPY_MOVE(PreviewPages)

    // Lays out more pages for about this time.
    void layOut(int milliseconds);
    [[nodiscard]] bool isComplete() const;

    // All pages of the job; an estimate until the layout is complete.
    [[nodiscard]] int count() const;
    // Whether the page is laid out. Pages count from 1.
    [[nodiscard]] bool knows(int page) const;
    [[nodiscard]] std::vector<Text> texts(int page) const;
    // What the margins leave of the sheet, in inches from its corner.
    [[nodiscard]] QRectF textArea() const;
    [[nodiscard]] const PrintMetrics &metrics() const { return *m_metrics; }

private:
    class Recorder;
    struct Position; // the print position between two entries

    [[nodiscard]] int pageOfPass(int page) const;
    void layOutEntry();

    std::shared_ptr<const PrintMetrics> m_metrics;
    const cVocabList &m_list;
    WordListPrint m_job;
    int m_copies;
    std::unique_ptr<Recorder> m_layout;
    int m_laidOut = 0;                 // entries of the first pass so far
    std::vector<Position> m_pageStart; // before the entry in which each page begins
};
