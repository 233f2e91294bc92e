// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SvgPicture.h"

#include <QPainter>
#include <QSvgRenderer>

SvgPicture::SvgPicture(QWidget *parent) : QWidget(parent) {}

SvgPicture::~SvgPicture() = default;

void SvgPicture::setSource(const QString &path)
{
    m_source = path;
    m_renderer = std::make_unique<QSvgRenderer>(path);
    m_renderer->setAspectRatioMode(Qt::KeepAspectRatioByExpanding);
    update();
}

void SvgPicture::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    if (m_renderer)
        m_renderer->render(&painter, rect());
}
