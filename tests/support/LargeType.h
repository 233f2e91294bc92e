// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: the application's font is larger while this exists.
#pragma once

#include <QApplication>
#include <QFont>

class LargeType final
{
public:
    explicit LargeType(double factor)
    {
        QFont font = m_font;
        font.setPointSizeF(font.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    ~LargeType() { QApplication::setFont(m_font); }
    Q_DISABLE_COPY_MOVE(LargeType)

private:
    QFont m_font = QApplication::font();
};
