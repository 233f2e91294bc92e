// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/WrappedLabel.h"

#include "platform/Appearance.h"

#include <QGuiApplication>
#include <QPainter>

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

void WrappedLabel::setLeadIn(qsizetype characters)
{
    m_leadIn = characters;
    updateGeometry();
    update();
}

QList<QTextLayout::FormatRange> WrappedLabel::formats() const
{
    if (m_leadIn == 0)
        return {};
    QTextLayout::FormatRange leadIn;
    leadIn.start = 0;
    leadIn.length = int(m_leadIn);
    QFont type = font();
    type.setBold(false);
    type.setPixelSize(QFontInfo(type).pixelSize() * 2 / 3);
    leadIn.format.setFont(type);
    // The label's own palette does not say whether it is dark where its background is transparent.
    leadIn.format.setForeground(quietColour(QGuiApplication::palette()));
    return {leadIn};
}

QSize WrappedLabel::sizeWithin(int width) const
{
    QTextLayout layout(oneParagraph(text()), font());
    layout.setFormats(formats());
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
    layout.setFormats(formats());
    const double height = breakLines(layout, width(), alignment()).height();
    const bool inTheMiddle = alignment().testFlag(Qt::AlignVCenter);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    layout.draw(&painter, {0, inTheMiddle ? std::max(0.0, (this->height() - height) / 2) : 0});
}
