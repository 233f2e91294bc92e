// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one page of a print job at a time, as a whole or in its actual size, with the lines of its
// margins.
#pragma once

#include "platform/WheelSteps.h"
#include "print/PreviewPages.h"

#include <QAbstractScrollArea>
#include <QTimer>

class PagePreview final : public QAbstractScrollArea
{
    Q_OBJECT

public:
    enum class Zoom { WholePage, ActualSize };
    enum class Page { First, Previous, Next, Last };

    // While it exists, no pages are laid out in the background.
    class Pause
    {
    public:
        explicit Pause(PagePreview &preview);
        ~Pause();
        Q_DISABLE_COPY_MOVE(Pause)

    private:
        PagePreview &m_preview;
    };

    explicit PagePreview(QWidget *parent = nullptr);

    // Replaces the pages. The page number stays if the new job has so many pages.
    void setPages(std::unique_ptr<PreviewPages> pages);
    // Shows no pages and lays out none until they are set again.
    void dropPages();
    [[nodiscard]] int page() const { return m_page; } // from 1; 0 = none
    [[nodiscard]] bool isFirst() const { return m_page <= 1; }
    [[nodiscard]] bool isLast() const;
    [[nodiscard]] bool isCounted() const { return !m_pages || m_pages->isComplete(); }
    // "Page 2 of 7", or "Page 2 of about 7" while the pages are being counted.
    [[nodiscard]] QString pageText() const;

    void goTo(Page page);
    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    void toggleZoom();

Q_SIGNALS:
    // The page in view, the zoom or the number of pages may have changed.
    void changed();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    void layOutWhenIdle();
    void layOutMore();
    void afterLayout();
    void goToNumber(int page);
    void setZoom(Zoom zoom);
    void takeKey(QKeyEvent &event);
    void placeSheet();
    void showTexts();
    void paintMargins(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;

    std::unique_ptr<PreviewPages> m_pages;
    int m_page = 0;
    bool m_toLast = false; // go to the last page once it is known
    Zoom m_zoom = Zoom::WholePage;
    QTimer m_idle;
    bool m_paused = false;
    WheelSteps m_wheel;
    QRectF m_sheet; // in pixels of the viewport before it is scrolled
    bool m_textsKnown = false;
    std::vector<PreviewPages::Text> m_texts; // of the page in view
};
