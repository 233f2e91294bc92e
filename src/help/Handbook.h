// SPDX-License-Identifier: GPL-3.0-or-later
// The handbook: which page belongs to which window, and how a page is opened. A page is the name of
// its file without ".html".
#pragma once

#include <QString>

class QWidget;

// The page of the window that the control is in, or of the window below it that has one. Empty
// where there is none.
[[nodiscard]] QString handbookPageOf(const QWidget &control);

// Opens the page in the browser, or in a window of the program where there is no browser. That
// window, and the message that the handbook is not installed, are shown over `window`.
void openHandbook(const QString &page, QWidget *window);
