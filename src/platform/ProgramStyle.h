// SPDX-License-Identifier: GPL-3.0-or-later
// Qt's Fusion style, with scroll bars whose thumb stands out from its track, and option buttons and
// check boxes that stand out from the window and grow with the type.
#pragma once

#include <QProxyStyle>

class ProgramStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    ProgramStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
};
