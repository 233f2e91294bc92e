// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/FittedLabel.h"

#include <QPainter>

#include <algorithm>

void FittedLabel::paintEvent(QPaintEvent * /*event*/)
{
    constexpr double smallestType = 9; // points
    const QRect room = contentsRect();
    QFont type = font();
    const QSizeF needed = QFontMetricsF(type).size(Qt::TextSingleLine, text());
    const double share = std::min(room.width() / needed.width(), room.height() / needed.height());
    if (share < 1)
        type.setPointSizeF(std::max(type.pointSizeF() * share, smallestType));
    // The width of a text is not quite in proportion to the size of its type.
    const auto shown = [&] {
        return QFontMetrics(type).elidedText(text(), Qt::ElideRight, room.width());
    };
    while (type.pointSizeF() > smallestType && shown() != text())
        type.setPointSizeF(std::max(type.pointSizeF() - 0.5, smallestType));
    QPainter painter(this);
    painter.setFont(type);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(room, Qt::AlignCenter, shown());
}
