// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WrappedLabel.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace {

QString oneParagraph(QString text)
{
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    return text.replace(QLatin1Char('\n'), QChar::LineSeparator);
}

// Places the lines from the top down and returns their size.
QSizeF breakLines(QTextLayout &layout, double width, Qt::Alignment alignment)
{
    QTextOption option(alignment & Qt::AlignHorizontal_Mask);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    QSizeF taken(0, 0);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, taken.height()});
        taken = {std::max(taken.width(), line.naturalTextWidth()), taken.height() + line.height()};
    }
    layout.endLayout();
    return taken;
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

QSize WrappedLabel::sizeWithin(int width) const
{
    QTextLayout layout(oneParagraph(text()), font());
    const QSizeF taken = breakLines(layout, width, alignment());
    return {static_cast<int>(std::ceil(taken.width())),
            static_cast<int>(std::ceil(taken.height()))};
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
    const double height = breakLines(layout, width(), alignment()).height();
    const bool inTheMiddle = alignment().testFlag(Qt::AlignVCenter);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {0, inTheMiddle ? std::max(0.0, (this->height() - height) / 2) : 0});
}
