// SPDX-License-Identifier: GPL-3.0-or-later
// Shows pages of the handbook in the program's own type and colours. Pictures are made as wide as
// the text where they are wider.
#pragma once

#include <QTextBrowser>

class HandbookText final : public QTextBrowser
{
    Q_OBJECT

public:
    explicit HandbookText(QWidget *parent = nullptr);

protected:
    QVariant loadResource(int type, const QUrl &name) override;
};
