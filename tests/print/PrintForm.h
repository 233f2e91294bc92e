// SPDX-License-Identifier: GPL-3.0-or-later
// For tests: the print dialog with a list of "w1", "w2", …
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

    explicit PrintForm(int entries = 20, Caller caller = Caller::current()) : answers(caller)
    {
        QStringList words;
        for (int i = 1; i <= entries; ++i)
            words += QStringLiteral("w%1").arg(i);
        addWords(Module1::gVocabList(), words);
        Module1::PrintItemNumber = true;
        Module1::PrintOrientation = QStringLiteral("Portrait");
        printer.select(SystemPrinter::printToPdf());
        open(caller);
    }

    // Replaces the dialog by a new one and shows it.
    void open(Caller caller = Caller::current())
    {
        m_dialog = std::make_unique<frmPrint>(printer);
        m_dialog->show();
        Controls::waitUntilActive(*m_dialog, caller);
    }

    [[nodiscard]] frmPrint &dialog() { return *m_dialog; }
    [[nodiscard]] QString path(const QString &name) const { return m_state.path(name); }

    template <class Control>
    [[nodiscard]] Control &control(const char *name, Caller caller = Caller::current())
    {
        return Controls::find<Control>(*m_dialog, name, caller);
    }
    [[nodiscard]] QString text(const char *box, Caller caller = Caller::current())
    {
        return control<QLineEdit>(box, caller).text();
    }
    [[nodiscard]] int value(const char *bar, Caller caller = Caller::current())
    {
        return control<StepBar>(bar, caller).value();
    }
    [[nodiscard]] bool isEnabled(const char *name, Caller caller = Caller::current())
    {
        return control<QWidget>(name, caller).isEnabled();
    }
    [[nodiscard]] bool isChecked(const char *name, Caller caller = Caller::current())
    {
        return control<QAbstractButton>(name, caller).isChecked();
    }

    void click(const char *button, Caller caller = Caller::current())
    {
        Controls::click(control<QAbstractButton>(button, caller), caller);
    }
    void type(const char *box, const QString &text, Caller caller = Caller::current())
    {
        Controls::type(control<QLineEdit>(box, caller), text, caller);
    }
    // Types and moves the focus to the next control.
    void typeAndLeave(const char *box, const QString &text, Caller caller = Caller::current())
    {
        type(box, text, caller);
        Controls::press(Qt::Key_Tab, {}, caller);
    }

private:
    std::unique_ptr<frmPrint> m_dialog;
};
