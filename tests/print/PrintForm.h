// SPDX-License-Identifier: GPL-3.0-or-later
// The print dialog with a list of "w1", "w2", … for its tests.
#pragma once

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "platform/SystemPrinter.h"
#include "print/PagePreview.h"
#include "print/StepBar.h"
#include "print/frmPrint.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>

class PrintForm
{
    FreshState m_state;

public:
    DialogAnswers answers;
    SystemPrinter printer;

    explicit PrintForm(int entries = 20)
    {
        QStringList words;
        for (int i = 1; i <= entries; ++i)
            words += QStringLiteral("w%1").arg(i);
        addWords(Module1::gVocabList(), words);
        Module1::PrintItemNumber = true;
        Module1::PrintOrientation = QStringLiteral("Portrait");
        printer.select(SystemPrinter::printToPdf());
        open();
    }

    // Replaces the dialog by a new one and shows it.
    void open()
    {
        m_dialog = std::make_unique<frmPrint>(printer);
        m_dialog->show();
        if (!QTest::qWaitForWindowActive(m_dialog.get()))
            Controls::fail(QStringLiteral("the dialog does not become active"));
    }

    [[nodiscard]] frmPrint &dialog() { return *m_dialog; }
    [[nodiscard]] QString path(const QString &name) const { return m_state.path(name); }

    template <class Control> [[nodiscard]] Control &control(const char *name)
    {
        return Controls::find<Control>(*m_dialog, name);
    }
    [[nodiscard]] QString text(const char *box) { return control<QLineEdit>(box).text(); }
    [[nodiscard]] int value(const char *bar) { return control<StepBar>(bar).value(); }
    [[nodiscard]] bool isEnabled(const char *name) { return control<QWidget>(name).isEnabled(); }
    [[nodiscard]] bool isChecked(const char *name)
    {
        return control<QAbstractButton>(name).isChecked();
    }

    void click(const char *button) { Controls::click(control<QAbstractButton>(button)); }
    void type(const char *box, const QString &text)
    {
        Controls::type(control<QLineEdit>(box), text);
    }
    // Types and moves the focus to the next control.
    void typeAndLeave(const char *box, const QString &text)
    {
        type(box, text);
        Controls::press(Qt::Key_Tab);
    }

private:
    std::unique_ptr<frmPrint> m_dialog;
};
