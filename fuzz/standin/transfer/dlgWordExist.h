// SPDX-License-Identifier: GPL-3.0-or-later
// Replaces the dialog of the same name: the fuzzer answers at once, without a window.
#pragma once

#include <QWidget>

class dlgWordExist final : public QObject
{
    Q_OBJECT

public:
    explicit dlgWordExist(QWidget * /*parent*/) {}

    void showConflict(int number, int total);
    void exec();

Q_SIGNALS:
    void refresh();
    void deleted();
};
