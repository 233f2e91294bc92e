// SPDX-License-Identifier: GPL-3.0-or-later
// A widget that shows an SVG file. The picture fills the widget and keeps its proportions, so that
// two of its edges may be outside.
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
    void setSource(const QString &path);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_source;
    std::unique_ptr<QSvgRenderer> m_renderer;
};
