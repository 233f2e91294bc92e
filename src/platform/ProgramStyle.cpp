// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramStyle.h"

#include "platform/Appearance.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace {

QColor thumbColour(const QStyleOptionSlider &bar)
{
    const bool isUsed = bar.activeSubControls.testFlag(QStyle::SC_ScrollBarSlider) &&
                        bar.state.testFlag(QStyle::State_MouseOver);
    if (isUsed)
        return accentColour(bar.palette);
    return isDark(bar.palette) ? QColor(0x9A, 0xA3, 0xA9) : QColor(0x66, 0x72, 0x7A);
}

// A bar that only has its two arrows is used for steps.
bool isLong(const QRect &thumb, const QStyleOptionSlider &bar)
{
    return bar.orientation == Qt::Vertical ? thumb.height() >= thumb.width()
                                           : thumb.width() >= thumb.height();
}

void drawThumb(QPainter &painter, QRect place, const QStyleOptionSlider &bar)
{
    constexpr int gap = 3; // to the track's edges
    place = bar.orientation == Qt::Vertical ? place.adjusted(gap, 1, -gap, -1)
                                            : place.adjusted(1, gap, -1, -gap);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(thumbColour(bar));
    painter.drawRoundedRect(place, 3, 3);
    painter.restore();
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    const auto *bar =
        control == CC_ScrollBar ? qstyleoption_cast<const QStyleOptionSlider *>(option) : nullptr;
    if (!bar || !bar->subControls.testFlag(SC_ScrollBarSlider)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    QStyleOptionSlider track = *bar;
    track.subControls.setFlag(SC_ScrollBarSlider, false);
    QProxyStyle::drawComplexControl(control, &track, painter, widget);
    const QRect thumb = proxy()->subControlRect(control, bar, SC_ScrollBarSlider, widget);
    if (bar->minimum < bar->maximum && bar->state.testFlag(State_Enabled) && isLong(thumb, *bar))
        drawThumb(*painter, thumb, *bar);
}
