// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: a desktop with a browser, or without one. The browser keeps the names of the pages
// that it is to open.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTemporaryDir>

class QUrl;

class FakeBrowser final : public QObject
{
    Q_OBJECT

public:
    enum class Desktop { WithBrowser, WithoutBrowser };

    explicit FakeBrowser(Desktop desktop = Desktop::WithBrowser);
    ~FakeBrowser() override;
    Q_DISABLE_COPY_MOVE(FakeBrowser)

    QStringList pages;

    Q_INVOKABLE void open(const QUrl &url);

private:
    QTemporaryDir m_data;
};
