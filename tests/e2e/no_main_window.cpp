// SPDX-License-Identifier: GPL-3.0-or-later
// Loaded before Qt: no table can be made any more, and with it no main window.
#include <QTableWidget>

#include <new>

QTableWidget::QTableWidget(QWidget * /*parent*/)
{
    throw std::bad_alloc();
}
