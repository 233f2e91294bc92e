// SPDX-License-Identifier: GPL-3.0-or-later
// A picture drawn from an SVG file, sharp at any scale factor. It fills the widget and keeps its
// proportions.
#pragma once

#include <QWidget>

#include <memory>

class QSvgRenderer;

class SvgPicture final : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString source READ source WRITE setSource)

public:
    explicit SvgPicture(QWidget *parent = nullptr);
    ~SvgPicture() override;

    [[nodiscard]] QString source() const { return m_source; }
    // A file or resource path.
    void setSource(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_source;
    std::unique_ptr<QSvgRenderer> m_renderer;
};
