// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ProgramStyle.h"

#include "platform/Appearance.h"

#include <QAbstractButton>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QWidget>

#include <algorithm>

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

// Of a mark that can be switched on.
struct MarkColours
{
    explicit MarkColours(const QStyleOption &option)
    {
        const QPalette &palette = option.palette;
        const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
        const bool isOn = !option.state.testFlag(QStyle::State_Off);
        const bool isUsed = (option.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) != 0;
        const QColor line = isOn || isUsed ? accentColour(palette) : outlineColour(palette);
        outline = isEnabled ? line : palette.color(QPalette::Disabled, QPalette::WindowText);
        inside = palette.color(isEnabled ? QPalette::Base : QPalette::Window);
    }

    QColor outline; // and the sign of a mark that is on
    QColor inside;
};

QRectF markPlace(const QStyleOption &option)
{
    const int side = std::min(option.rect.width(), option.rect.height());
    QRectF place(0, 0, side, side);
    place.moveCenter(QRectF(option.rect).center());
    return place.adjusted(0.75, 0.75, -0.75, -0.75); // half the line
}

void drawOption(QPainter &painter, const QStyleOption &option)
{
    const MarkColours colours(option);
    const QRectF place = markPlace(option);
    painter.setPen(QPen(colours.outline, 1.5));
    painter.setBrush(colours.inside);
    painter.drawEllipse(place);
    if (!option.state.testFlag(QStyle::State_On))
        return;
    const double rim = place.width() / 4;
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.outline);
    painter.drawEllipse(place.adjusted(rim, rim, -rim, -rim));
}

void drawCheckBox(QPainter &painter, const QStyleOption &option)
{
    const MarkColours colours(option);
    const QRectF place = markPlace(option);
    const bool isOn = option.state.testFlag(QStyle::State_On);
    painter.setPen(QPen(colours.outline, 1.5));
    painter.setBrush(isOn ? colours.outline : colours.inside);
    painter.drawRoundedRect(place, 3, 3);
    if (!isOn)
        return;
    const auto at = [&place](double x, double y) {
        return QPointF(place.left() + x * place.width(), place.top() + y * place.height());
    };
    painter.setPen(QPen(colours.inside, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF{at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)});
}

void drawFocusFrame(QPainter &painter, const QStyleOption &option)
{
    painter.setPen(QPen(focusColour(option.palette), 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.75, 0.75, -0.75, -0.75), 3, 3);
}

using Drawing = void (*)(QPainter &painter, const QStyleOption &option);

// Null for what Fusion draws.
Drawing drawingOf(QStyle::PrimitiveElement element, const QWidget *widget)
{
    switch (element) {
    case QStyle::PE_IndicatorRadioButton:
        return drawOption;
    case QStyle::PE_IndicatorCheckBox:
        return drawCheckBox;
    case QStyle::PE_FrameFocusRect:
        return qobject_cast<const QAbstractButton *>(widget) ? drawFocusFrame : nullptr;
    default:
        return nullptr;
    }
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    const Drawing draw = drawingOf(element, widget);
    if (!draw) {
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    draw(*painter, *option);
    painter->restore();
}

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

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption *option,
                              const QWidget *widget) const
{
    const int usual = QProxyStyle::pixelMetric(metric, option, widget);
    const bool ofIndicator = metric == PM_IndicatorWidth || metric == PM_IndicatorHeight ||
                             metric == PM_ExclusiveIndicatorWidth ||
                             metric == PM_ExclusiveIndicatorHeight;
    return ofIndicator && widget ? std::max(usual, widget->fontMetrics().height() * 3 / 4) : usual;
}
