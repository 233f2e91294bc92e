// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WrappedLabel.h"

#include <QPainter>
#include <QTextLayout>

#include <cmath>

namespace {

QString oneParagraph(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

// Lines from the top down; returns their height.
double breakLines(QTextLayout &layout, Qt::Alignment alignment, double width)
{
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

} // namespace

WrappedLabel::WrappedLabel(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    QSizePolicy policy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

int WrappedLabel::heightForWidth(int width) const
{
    QTextLayout layout(oneParagraph(text()), font());
    return static_cast<int>(std::ceil(breakLines(layout, alignment(), width)));
}

void WrappedLabel::resizeEvent(QResizeEvent *event)
{
    QLabel::resizeEvent(event);
    if (event->oldSize().width() != event->size().width())
        updateGeometry();
}

void WrappedLabel::paintEvent(QPaintEvent * /*event*/)
{
    QTextLayout layout(oneParagraph(text()), font());
    const double height = breakLines(layout, alignment(), width());
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {0, std::max(0.0, (this->height() - height) / 2)});
}
