// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Motion.h"

#include "platform/ReducedMotion.h"

#include <QEasingCurve>
#include <QPainter>
#include <QStyle>

#include <algorithm>
#include <cmath>
#include <utility>

std::chrono::milliseconds Motion::usualTime(const QWidget &widget)
{
    if (ReducedMotion::isAskedFor())
        return {};
    const int time =
        widget.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &widget);
    return std::min(std::chrono::milliseconds(time), LongestTime);
}

void Motion::play(QWidget &widget, const QRect &area, std::chrono::milliseconds duration,
                  const Paint &paint)
{
    if (!widget.isVisible() || usualTime(widget).count() <= 0)
        return;
    auto *motion = new Motion(widget, area, paint);
    motion->m_time.setDuration(static_cast<int>(std::min(duration, LongestTime).count()));
    motion->show();
    motion->m_time.start();
}

void Motion::turnOver(QWidget &card, const QPixmap &oldSide, const QPixmap &newSide,
                      const QBrush &behind)
{
    const QSize size = card.size();
    play(card, card.rect(), usualTime(card),
         [oldSide, newSide, behind, size](QPainter &painter, double t) {
             painter.fillRect(QRect(QPoint(), size), behind);
             const double turned = QEasingCurve(QEasingCurve::InOutQuad).valueForProgress(t);
             const double shown = std::abs(1 - 2 * turned);
             const double left = size.width() * (1 - shown) / 2;
             painter.drawPixmap(QRectF(left, 0, size.width() * shown, size.height()),
                                turned < 0.5 ? oldSide : newSide, {});
         });
}

void Motion::end(QWidget &widget)
{
    const auto motions = widget.findChildren<Motion *>(QString(), Qt::FindDirectChildrenOnly);
    for (Motion *motion : motions)
        motion->close();
}

Motion::Motion(QWidget &widget, const QRect &area, Paint paint)
    : QWidget(&widget), m_paint(std::move(paint))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(area);
    m_time.setStartValue(0.0);
    m_time.setEndValue(1.0);
    connect(&m_time, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&m_time, &QVariantAnimation::finished, this, &QWidget::close);
}

void Motion::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    m_paint(painter, m_time.currentValue().toDouble());
}
