// SPDX-License-Identifier: GPL-3.0-or-later
// The base class of the program's windows.
//
// Form_Load runs when the form is shown for the first time, and for the first time after it was
// closed. Closing the form runs Form_QueryUnload, Form_Unload and Form_Terminate; if the first
// returns false or one of them throws, the form stays open. All handlers are run by runGuarded.
#pragma once

#include "platform/Guarded.h"

#include <QCloseEvent>
#include <QFocusEvent>
#include <QShowEvent>

// Window: QMainWindow, QDialog or QWidget.
template <class Window> class Form : public Window
{
public:
    using Window::Window;

protected:
    // The same for a handler of this form: onClick(m_ui->cmdAdd, &frmMain::cmdAdd_Click);
    template <class Control, class Class>
    void onClick(const Control *control, void (Class::*handler)())
    {
        ::onClick(control, static_cast<Class *>(this), handler);
    }

    virtual void Form_Load() {}
    virtual void Form_Activate() {}
    virtual void Form_GotFocus() {}
    // False keeps the form open.
    virtual bool Form_QueryUnload() { return true; }
    virtual void Form_Unload() {}
    virtual void Form_Terminate() {}

    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::WindowActivate)
            runGuarded([this] { Form_Activate(); });
        return Window::event(event);
    }

    void showEvent(QShowEvent *event) override
    {
        if (!m_loaded) {
            m_loaded = true;
            runGuarded([this] { Form_Load(); });
        }
        Window::showEvent(event);
    }

    void closeEvent(QCloseEvent *event) override
    {
        bool unloaded = false;
        runGuarded([this, &unloaded] {
            if (!Form_QueryUnload())
                return;
            Form_Unload();
            Form_Terminate();
            unloaded = true;
        });
        m_loaded = !unloaded;
        if (unloaded)
            Window::closeEvent(event);
        else
            event->ignore();
    }

    void focusInEvent(QFocusEvent *event) override
    {
        Window::focusInEvent(event);
        runGuarded([this] { Form_GotFocus(); });
    }

private:
    bool m_loaded = false;
};
