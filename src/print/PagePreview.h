// SPDX-License-Identifier: GPL-3.0-or-later
// One page of a print job after the other as a picture of its sheet: as a whole, or in its actual
// size.
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

    // Nothing is laid out in idle moments while there is one.
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

    // Shows other pages in place of those before, at the same page number as far as there is one.
    void setPages(std::unique_ptr<PreviewPages> pages);
    // Until pages are set again; lays out nothing meanwhile.
    void dropPages();
    [[nodiscard]] int page() const { return m_page; } // from 1; 0 = there is none
    [[nodiscard]] bool isFirst() const { return m_page <= 1; }
    [[nodiscard]] bool isLast() const;
    // "Page 2 of 7", or "Page 2 of about 7" while the pages are being counted.
    [[nodiscard]] QString pageText() const;

    void goTo(Page page);
    [[nodiscard]] Zoom zoom() const { return m_zoom; }
    void toggleZoom();

Q_SIGNALS:
    // Another page is shown, or more is known of how many there are.
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
    void paintTexts(QPainter &painter) const;

    std::unique_ptr<PreviewPages> m_pages;
    int m_page = 0;
    bool m_toLast = false; // the last page is to be shown when it is known
    Zoom m_zoom = Zoom::WholePage;
    QTimer m_idle;
    bool m_paused = false;
    WheelSteps m_wheel;
    QRectF m_sheet; // on the viewport, not scrolled
    bool m_textsKnown = false;
    std::vector<PreviewPages::Text> m_texts; // of the page
};
