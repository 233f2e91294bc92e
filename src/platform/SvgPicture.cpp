// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SvgPicture.h"

#include "platform/AccessibleRole.h"

#include <QPainter>
#include <QSvgRenderer>

SvgPicture::SvgPicture(QWidget *parent) : QWidget(parent)
{
    giveAccessibleRole<QAccessible::Graphic, SvgPicture>();
}

SvgPicture::~SvgPicture() = default;

void SvgPicture::setSource(const QString &path)
{
    m_source = path;
    m_renderer = std::make_unique<QSvgRenderer>(path);
    update();
}

void SvgPicture::paintEvent(QPaintEvent * /*event*/)
{
    if (!m_renderer)
        return;
    const QSizeF size =
        m_renderer->viewBoxF().size().scaled(rect().size(), Qt::KeepAspectRatioByExpanding);
    QRectF whole(QPointF(), size);
    whole.moveCenter(QRectF(rect()).center());
    QPainter painter(this);
    m_renderer->render(&painter, whole);
}
