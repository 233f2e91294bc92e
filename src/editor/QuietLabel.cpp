// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/QuietLabel.h"

#include "platform/Appearance.h"
#include "platform/StatusBarRole.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

QuietLabel::QuietLabel(QWidget *parent) : QWidget(parent)
{
    giveStatusBarRole<QuietLabel>();
}

void QuietLabel::setLine(const QuietTexts::Line &line)
{
    if (line.text == m_line.text && line.marked == m_line.marked)
        return;
    m_line = line;
    setAccessibleName(text());
    update();
}

bool QuietLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const bool isCut = fontMetrics().horizontalAdvance(text()) > width();
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), isCut ? text() : QString(),
                       this);
    return true;
}

void QuietLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    const auto draw = [&](QRect place, const QString &text, const QColor &colour) {
        painter.setPen(colour);
        painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                         fontMetrics().elidedText(text, Qt::ElideRight, place.width()));
    };
    const int textWidth = fontMetrics().horizontalAdvance(m_line.text);
    draw(rect(), m_line.text, quietColour(palette()));
    if (!m_line.marked.isEmpty() && textWidth < width())
        draw(rect().adjusted(textWidth, 0, 0, 0), m_line.marked, accentColour(palette()));
}
