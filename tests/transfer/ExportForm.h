// SPDX-License-Identifier: GPL-3.0-or-later
// The export dialog over a list of "w1", "w2", … as its tests use it.
#pragma once

#include "core/FreshState.h"
#include "core/ListTools.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/TestFiles.h"
#include "transfer/dlgExport.h"

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <memory>

using namespace Qt::StringLiterals;

class ExportForm final
{
    FreshState m_state;

public:
    DialogAnswers answers;

    explicit ExportForm(int entries = 10, Caller caller = Caller::current()) : answers(caller)
    {
        QStringList words;
        for (int i = 1; i <= entries; ++i)
            words += word(i);
        addWords(Module1::gVocabList(), words);
        open(caller);
    }

    ~ExportForm() { closeDialog(); }
    Q_DISABLE_COPY_MOVE(ExportForm)

    // Closes the dialog and shows a new one.
    void open(Caller caller = Caller::current())
    {
        closeDialog();
        m_dialog = std::make_unique<dlgExport>(m_state.home());
        m_dialog->show();
        activate(caller);
    }

    // Activates the dialog, as a window manager does when a dialog above it is closed.
    void activate(Caller caller = Caller::current())
    {
        m_dialog->activateWindow();
        Controls::waitUntilActive(*m_dialog, caller);
    }

    [[nodiscard]] dlgExport &dialog() { return *m_dialog; }
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
    void type(const char *box, const QString &text, Caller caller = Caller::current())
    {
        activate(caller);
        Controls::type(control<QLineEdit>(box, caller), text, caller);
    }
    void click(const char *button, Caller caller = Caller::current())
    {
        Controls::click(control<QPushButton>(button, caller), caller);
    }

    // Types a number and presses Tab.
    void typeAndLeave(const char *box, const QString &text, Caller caller = Caller::current())
    {
        type(box, text, caller);
        Controls::press(Qt::Key_Tab, {}, caller);
    }
    void chooseRange(int start, int end, Caller caller = Caller::current())
    {
        typeAndLeave("txtStart", QString::number(start), caller);
        typeAndLeave("txtEnd", QString::number(end), caller);
    }
    void typeTarget(const QString &path) { control<QLineEdit>("txtFilename").setText(path); }

    [[nodiscard]] QStringList preview()
    {
        const auto &list = control<QListWidget>("lstExportWords");
        QStringList words;
        for (int row = 0; row < list.count(); ++row)
            words += list.item(row)->text();
        return words;
    }

    [[nodiscard]] static QString word(int position) { return u"w%1"_s.arg(position); }

    // The words from one position to another, upwards or downwards.
    [[nodiscard]] static QStringList words(int start, int end)
    {
        const int step = end >= start ? 1 : -1;
        QStringList words;
        for (int i = start; i != end + step; i += step)
            words += word(i);
        return words;
    }

    // The bytes of these words in a list file.
    [[nodiscard]] static QByteArray records(const QStringList &words)
    {
        QByteArray bytes;
        for (const QString &word : words)
            bytes += addedRecord(word.toLatin1());
        return bytes;
    }

private:
    // Valid numbers first, so that the boxes report no error when they lose the focus.
    void closeDialog()
    {
        if (!m_dialog)
            return;
        for (const char *box : {"txtStart", "txtEnd"})
            control<QLineEdit>(box).setText(u"1"_s);
        m_dialog->close();
    }

    std::unique_ptr<dlgExport> m_dialog;
};
