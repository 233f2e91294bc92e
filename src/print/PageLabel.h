// SPDX-License-Identifier: GPL-3.0-or-later
// The label with the page number. Screen readers hear it as a status bar, wherever the keyboard
// focus is.
#pragma once

#include <QLabel>

class PageLabel final : public QLabel
{
    Q_OBJECT

public:
    enum class Count { Estimated, Known };

    explicit PageLabel(QWidget *parent = nullptr);

    // While the number of pages is estimated, screen readers hear nothing of it.
    void setPages(const QString &text, Count count);
};
