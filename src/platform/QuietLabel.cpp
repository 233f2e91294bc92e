// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/QuietLabel.h"

#include "platform/AccessibleRole.h"
#include "platform/Appearance.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextDocument>
#include <QToolTip>

QuietLabel::QuietLabel(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::StatusBar, QuietLabel>();
    m_announcing.setSingleShot(true);
    m_announcing.setInterval(500);
    connect(&m_announcing, &QTimer::timeout, this, [this] { setAccessibleName(text()); });
}

void QuietLabel::setLine(const QString &text, const QString &marked)
{
    if (text == m_text && marked == m_marked)
        return;
    m_text = text;
    m_marked = marked;
    if (accessibleName().isEmpty())
        setAccessibleName(this->text());
    else
        m_announcing.start();
    update();
}

QSize QuietLabel::sizeHint() const
{
    return {0, fontMetrics().height()};
}

bool QuietLabel::event(QEvent *event)
{
    if (event->type() != QEvent::ToolTip)
        return QWidget::event(event);
    const bool isCut = fontMetrics().horizontalAdvance(text()) > width();
    // Plain text, which would otherwise be taken for HTML where it looks like that.
    QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                       isCut ? Qt::convertFromPlainText(text(), Qt::WhiteSpaceNormal) : QString(),
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
    const int textWidth = fontMetrics().horizontalAdvance(m_text);
    draw(rect(), m_text, quietColour(palette()));
    if (!m_marked.isEmpty() && textWidth < width())
        draw(rect().adjusted(textWidth, 0, 0, 0), m_marked, accentColour(palette()));
}
