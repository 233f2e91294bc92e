// SPDX-License-Identifier: GPL-3.0-or-later
// Scrolls a column of controls up and down where the window is too low for it. It is never narrower
// than the controls.
#pragma once

#include <QScrollArea>

class SettingsArea final : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsArea(QWidget *parent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] int leastWidth() const;
};
