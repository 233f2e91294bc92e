// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: an open dialog of the game and its controls.
#pragma once

#include "support/Controls.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

struct OpenDialog
{
    explicit OpenDialog(QDialog &dialog) : form(dialog) {}

    [[nodiscard]] QPushButton &button(const char *name) const
    {
        return Controls::find<QPushButton>(form, name);
    }
    [[nodiscard]] QLabel &label(const char *name) const
    {
        return Controls::find<QLabel>(form, name);
    }

    void click(const char *name) const { Controls::click(button(name)); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        QTest::keyClick(modifiers == Qt::NoModifier ? form.focusWidget() : &form, key, modifiers);
    }
    // Replaces the text of the box.
    static void insert(QLineEdit &box, const QString &text)
    {
        box.setFocus();
        box.selectAll();
        box.insert(text);
    }

    QDialog &form;
};
