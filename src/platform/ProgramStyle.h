// SPDX-License-Identifier: GPL-3.0-or-later
// Qt's Fusion style, with scroll bars whose thumb stands out from its track.
#pragma once

#include <QProxyStyle>

class ProgramStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    ProgramStyle();

    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
};
