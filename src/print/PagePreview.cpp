// SPDX-License-Identifier: GPL-3.0-or-later
#include "print/PagePreview.h"

#include "platform/AccessibleRole.h"
#include "platform/Guarded.h"
#include "platform/PrintMetrics.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int LongestWait = 20; // milliseconds that setPages lays out the page in view
constexpr int IdleSlice = 8;    // milliseconds of layout before other events are handled
constexpr int Border = 16;      // pixels around the sheet
constexpr QColor MarginColour(0x5B, 0x84, 0xB8);
constexpr int Step = 40; // pixels of one step of a scroll bar

QColor groundColour(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    return window.lightness() < 128 ? window.darker(140) : window.darker(118);
}

} // namespace

PagePreview::Pause::Pause(PagePreview &preview) : m_preview(preview)
{
    m_preview.m_paused = true;
    m_preview.m_idle.stop();
}

PagePreview::Pause::~Pause()
{
    m_preview.m_paused = false;
    m_preview.layOutWhenIdle();
}

PagePreview::PagePreview(QWidget *parent) : QAbstractScrollArea(parent)
{
    giveAccessibleRole<QAccessible::Graphic, PagePreview>();
    setFocusPolicy(Qt::StrongFocus);
    setZoom(Zoom::WholePage);
    connect(&m_idle, &QTimer::timeout, this, guarded(this, &PagePreview::layOutMore));
}

void PagePreview::setPages(std::unique_ptr<PreviewPages> pages)
{
    m_pages = std::move(pages);
    m_page = std::max(1, m_page);
    m_texts.clear();
    m_textsKnown = false;
    QElapsedTimer clock;
    clock.start();
    while (!m_pages->knows(m_page) && !m_pages->isComplete() && !clock.hasExpired(LongestWait))
        m_pages->layOut(1);
    layOutWhenIdle();
    placeSheet();
    afterLayout();
}

void PagePreview::dropPages()
{
    m_idle.stop();
    m_pages.reset();
    m_texts.clear();
}

void PagePreview::layOutWhenIdle()
{
    if (m_pages && !m_paused)
        m_idle.start();
}

void PagePreview::layOutMore()
{
    m_idle.stop(); // a layout that throws is not tried again
    m_pages->layOut(IdleSlice);
    m_idle.start();
    afterLayout();
}

void PagePreview::afterLayout()
{
    if (m_pages->isComplete()) {
        m_idle.stop();
        const int last = m_pages->count();
        m_page = m_toLast ? last : std::clamp(m_page, std::min(1, last), last);
        m_toLast = false;
    }
    if (!m_textsKnown)
        showTexts();
    Q_EMIT changed();
}

void PagePreview::showTexts()
{
    m_textsKnown = m_pages->knows(m_page);
    m_texts = m_textsKnown ? m_pages->texts(m_page) : std::vector<PreviewPages::Text>();
    viewport()->update();
}

bool PagePreview::isLast() const
{
    return !m_pages || (m_pages->isComplete() && m_page >= m_pages->count());
}

QString PagePreview::pageText() const
{
    if (!m_pages || (m_pages->isComplete() && m_page == 0))
        return QStringLiteral("No pages");
    const int count = std::max(m_page, m_pages->count());
    return (m_pages->isComplete() ? QStringLiteral("Page %1 of %2")
                                  : QStringLiteral("Page %1 of about %2"))
        .arg(m_page)
        .arg(count);
}

void PagePreview::goTo(Page page)
{
    switch (page) {
    case Page::First:
        goToNumber(1);
        break;
    case Page::Previous:
        goToNumber(m_page - 1);
        break;
    case Page::Next:
        goToNumber(m_page + 1);
        break;
    case Page::Last:
        if (!m_pages)
            break;
        goToNumber(m_pages->count());
        m_toLast = !m_pages->isComplete();
        break;
    }
}

void PagePreview::goToNumber(int page)
{
    const int last = m_pages ? std::max(m_page, m_pages->count()) : 0;
    const int shown = std::clamp(page, std::min(1, last), last);
    m_toLast = false;
    if (shown == m_page)
        return;
    m_page = shown;
    verticalScrollBar()->setValue(0);
    showTexts();
    Q_EMIT changed();
}

void PagePreview::toggleZoom()
{
    setZoom(m_zoom == Zoom::WholePage ? Zoom::ActualSize : Zoom::WholePage);
}

void PagePreview::setZoom(Zoom zoom)
{
    m_zoom = zoom;
    // Scroll bars that come and go would change the size of the viewport.
    const auto policy = zoom == Zoom::WholePage ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAlwaysOn;
    setHorizontalScrollBarPolicy(policy);
    setVerticalScrollBarPolicy(policy);
    placeSheet();
    horizontalScrollBar()->setValue(0);
    verticalScrollBar()->setValue(0);
    Q_EMIT changed();
}

void PagePreview::placeSheet()
{
    if (!m_pages)
        return;
    const QSize view = viewport()->size();
    const QSizeF paper = m_pages->metrics().sheet();
    QSizeF shown(paper.width() * logicalDpiX(), paper.height() * logicalDpiY());
    if (m_zoom == Zoom::WholePage)
        shown = paper.scaled(view - QSize(2 * Border, 2 * Border), Qt::KeepAspectRatio);
    const auto place = [](QScrollBar *bar, double size, int room) {
        const double hidden = std::max(0.0, size + 2 * Border - room);
        bar->setRange(0, static_cast<int>(std::ceil(hidden)));
        bar->setPageStep(room);
        bar->setSingleStep(Step);
        return hidden > 0 ? Border : (room - size) / 2;
    };
    const double left = place(horizontalScrollBar(), shown.width(), view.width());
    const double top = place(verticalScrollBar(), shown.height(), view.height());
    m_sheet = QRectF({left, top}, shown);
    viewport()->update();
}

void PagePreview::resizeEvent(QResizeEvent *event)
{
    QAbstractScrollArea::resizeEvent(event);
    placeSheet();
}

void PagePreview::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), groundColour(palette()));
    if (!m_pages)
        return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-horizontalScrollBar()->value(), -verticalScrollBar()->value());
    constexpr int ShadowSteps = 6;
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 14));
    for (int i = 1; i <= ShadowSteps; ++i)
        painter.drawRoundedRect(m_sheet.adjusted(1 - i, 2 - i, i, 1 + i), i, i);
    painter.fillRect(m_sheet, Qt::white);
    paintMargins(painter);
    if (m_textsKnown || m_pages->isComplete()) {
        paintTexts(painter);
    } else {
        painter.setPen(Qt::black);
        painter.drawText(m_sheet, Qt::AlignCenter, QStringLiteral("Laying out..."));
    }
}

void PagePreview::paintMargins(QPainter &painter) const
{
    const double pixelsPerInch = m_sheet.width() / m_pages->metrics().sheet().width();
    const QRectF text = m_pages->textArea();
    const double left = m_sheet.left() + text.left() * pixelsPerInch;
    const double right = m_sheet.left() + text.right() * pixelsPerInch;
    const double top = m_sheet.top() + text.top() * pixelsPerInch;
    const double bottom = m_sheet.top() + text.bottom() * pixelsPerInch;
    painter.setPen(QPen(MarginColour, 1, Qt::DashLine));
    painter.drawLine(QPointF(left, m_sheet.top()), QPointF(left, m_sheet.bottom()));
    painter.drawLine(QPointF(right, m_sheet.top()), QPointF(right, m_sheet.bottom()));
    painter.drawLine(QPointF(m_sheet.left(), top), QPointF(m_sheet.right(), top));
    painter.drawLine(QPointF(m_sheet.left(), bottom), QPointF(m_sheet.right(), bottom));
}

void PagePreview::paintTexts(QPainter &painter) const
{
    const PrintMetrics &metrics = m_pages->metrics();
    const double pixelsPerInch = m_sheet.width() / metrics.sheet().width();
    painter.setClipRect(m_sheet);
    painter.translate(m_sheet.topLeft() + metrics.area().topLeft() * pixelsPerInch);
    painter.scale(pixelsPerInch / metrics.resolution(), pixelsPerInch / metrics.resolution());
    painter.setPen(Qt::black);
    for (const PreviewPages::Text &text : m_texts)
        metrics.draw(painter, text.topLeft, text.text, text.style);
}

void PagePreview::keyPressEvent(QKeyEvent *event)
{
    runGuarded([this, event] { takeKey(*event); });
}

void PagePreview::takeKey(QKeyEvent &event)
{
    const bool whole = m_zoom == Zoom::WholePage;
    switch (event.key()) {
    case Qt::Key_PageDown:
        goTo(Page::Next);
        return;
    case Qt::Key_PageUp:
        goTo(Page::Previous);
        return;
    case Qt::Key_Home:
        goTo(Page::First);
        return;
    case Qt::Key_End:
        goTo(Page::Last);
        return;
    case Qt::Key_Right:
        if (whole) {
            goTo(Page::Next);
            return;
        }
        break;
    case Qt::Key_Left:
        if (whole) {
            goTo(Page::Previous);
            return;
        }
        break;
    case Qt::Key_Plus:
        setZoom(Zoom::ActualSize);
        return;
    case Qt::Key_Minus:
        setZoom(Zoom::WholePage);
        return;
    default:
        break;
    }
    QAbstractScrollArea::keyPressEvent(&event); // the arrow keys scroll
}

// Shows the next or previous page when the page in view is scrolled to its end.
void PagePreview::wheelEvent(QWheelEvent *event)
{
    const QScrollBar &bar = *verticalScrollBar();
    const int turned = event->angleDelta().y();
    if ((turned < 0 && bar.value() == bar.maximum()) ||
        (turned > 0 && bar.value() == bar.minimum()))
        runGuarded([this, turned] { goToNumber(m_page - m_wheel.turned(turned)); });
    else
        QAbstractScrollArea::wheelEvent(event);
    event->accept();
}

void PagePreview::mouseDoubleClickEvent(QMouseEvent * /*event*/)
{
    toggleZoom();
}
