// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/DialogAnswers.h"

#include <QAbstractButton>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int LookInterval = 5; // ms
constexpr int MostLooks = 600;  // at a dialog that has been answered and is still open

constexpr auto Title = "Tanglewit"_L1; // of every message box

void compare(const char *what, const QString &actual, const QString &expected, Caller caller)
{
    if (actual != expected)
        failTest(u"%1 is \"%2\" instead of \"%3\""_s.arg(QLatin1String(what), actual, expected),
                 caller);
}

QString describe(const QDialog &dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        return u"message box \"%1\""_s.arg(box->text());
    return u"%1 \"%2\""_s.arg(QLatin1String(dialog.metaObject()->className()),
                              dialog.windowTitle());
}

std::function<void()> pressing(QAbstractButton *button, const QString &name, Caller caller)
{
    if (!button || !button->isVisible() || !button->isEnabled()) {
        failTest(u"the dialog has no %1 that can be pressed"_s.arg(name), caller);
        return {};
    }
    return [button = QPointer(button)] {
        if (button)
            QTest::mouseClick(button, Qt::LeftButton);
    };
}

std::function<void()> answering(QMessageBox &box, QMessageBox::StandardButton answer, Caller caller)
{
    return pressing(box.button(answer), u"button %1"_s.arg(answer), caller);
}

QAbstractButton *buttonOf(QFileDialog &dialog, QDialogButtonBox::StandardButton button)
{
    auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
    return buttons ? buttons->button(button) : nullptr;
}

void accept(QFileDialog &dialog, Caller caller)
{
    const auto button = dialog.acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                       : QDialogButtonBox::Save;
    if (const auto press = pressing(buttonOf(dialog, button), u"Open or Save"_s, caller))
        press();
}

} // namespace

DialogAnswers::DialogAnswers(Caller caller) : m_caller(caller)
{
    connect(&m_timer, &QTimer::timeout, this, &DialogAnswers::look);
    m_timer.start(LookInterval);
}

DialogAnswers::~DialogAnswers()
{
    for (const Expected &expected : m_expected)
        failTest(expected.what + u" did not come"_s, expected.caller);
}

void DialogAnswers::expectMsgBox(const QString &text, QMessageBox::StandardButton answer,
                                 std::function<void(QMessageBox &)> inspect, Caller caller)
{
    expect({u"message box \"%1\""_s.arg(text), caller, Kind::MessageBox,
            [text, answer, caller, inspect = std::move(inspect)](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message", box.text(), text, caller);
                compare("the message box's title", box.windowTitle(), Title, caller);
                if (inspect)
                    inspect(box);
                return answering(box, answer, caller);
            }});
}

void DialogAnswers::expectAnyMsgBox(QMessageBox::StandardButton answer,
                                    std::function<void(QMessageBox &)> inspect, Caller caller)
{
    expect({u"a message box"_s, caller, Kind::MessageBox,
            [answer, caller, inspect = std::move(inspect)](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message box's title", box.windowTitle(), Title, caller);
                inspect(box);
                return answering(box, answer, caller);
            }});
}

void DialogAnswers::seeOtherMsgBoxes(std::function<void(const QString &)> see)
{
    m_seeOther = std::move(see);
}

void DialogAnswers::escapeMsgBox(const QString &text, Caller caller)
{
    expect({u"message box \"%1\" to be closed by Esc"_s.arg(text), caller, Kind::MessageBox,
            [text, caller](QDialog &dialog) -> std::function<void()> {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message", box.text(), text, caller);
                return [box = QPointer(&box)] {
                    if (box)
                        QTest::keyClick(box->defaultButton(), Qt::Key_Escape);
                };
            }});
}

void DialogAnswers::chooseFile(const QString &name, std::function<void(QFileDialog &)> inspect,
                               Caller caller)
{
    expectFileDialog(
        u"file dialog for \"%1\""_s.arg(name), std::move(inspect),
        [name, caller](QFileDialog &dialog) {
            auto *box = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
            if (!box)
                return failTest(u"the file dialog has no box for the name"_s, caller);
            // Without completion: it would add to the typed name, and its list would cover the
            // button.
            box->setCompleter(nullptr);
            box->setFocus();
            box->selectAll();
            box->insert(name);
            accept(dialog, caller);
        },
        caller);
}

void DialogAnswers::acceptFileDialog(std::function<void(QFileDialog &)> inspect, Caller caller)
{
    expectFileDialog(
        u"file dialog to accept"_s, std::move(inspect),
        [caller](QFileDialog &dialog) { accept(dialog, caller); }, caller);
}

void DialogAnswers::cancelFileDialog(std::function<void(QFileDialog &)> inspect, Caller caller)
{
    expectFileDialog(
        u"file dialog to cancel"_s, std::move(inspect),
        [caller](QFileDialog &dialog) {
            if (const auto press =
                    pressing(buttonOf(dialog, QDialogButtonBox::Cancel), u"Cancel"_s, caller))
                press();
        },
        caller);
}

void DialogAnswers::answerOverwrite(const QString &fileTitle, QMessageBox::StandardButton answer,
                                    Caller caller)
{
    expect({u"question about replacing \"%1\""_s.arg(fileTitle), caller, Kind::MessageBox,
            [fileTitle, answer, caller](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                if (!qobject_cast<QFileDialog *>(box.parentWidget()) ||
                    !box.text().contains(fileTitle))
                    failTest(u"\"%1\" is not the file dialog's question about \"%2\""_s.arg(
                                 box.text(), fileTitle),
                             caller);
                return answering(box, answer, caller);
            }});
}

void DialogAnswers::useForm(const char *name, std::function<void(QDialog &)> use, Caller caller)
{
    const QString form = QLatin1String(name);
    expect({form, caller, Kind::Form, [this, form, caller, use = std::move(use)](QDialog &dialog) {
                compare("the form's name", dialog.objectName(), form, caller);
                m_inUse.emplace_back(&dialog);
                return [this, caller, use, open = QPointer(&dialog)] {
                    if (open)
                        use(*open);
                    if (open && open->isVisible())
                        dismiss(*open, u"%1 stays open after its use"_s, caller);
                };
            }});
}

void DialogAnswers::useMsgBox(const QString &text, std::function<void(QMessageBox &)> use,
                              Caller caller)
{
    expect({u"message box \"%1\""_s.arg(text), caller, Kind::MessageBox,
            [text, caller, use = std::move(use)](QDialog &dialog) {
                compare("the message", static_cast<QMessageBox &>(dialog).text(), text, caller);
                return [use, open = QPointer(&dialog)] {
                    if (open)
                        use(static_cast<QMessageBox &>(*open));
                };
            }});
}

bool DialogAnswers::allSeen()
{
    for (const Expected &expected : std::exchange(m_expected, {})) {
        m_failed = true;
        failTest(expected.what + u" did not come"_s, expected.caller);
    }
    return !m_failed;
}

DialogAnswers::Kind DialogAnswers::kindOf(const QDialog &dialog)
{
    if (qobject_cast<const QFileDialog *>(&dialog))
        return Kind::FileDialog;
    return qobject_cast<const QMessageBox *>(&dialog) ? Kind::MessageBox : Kind::Form;
}

void DialogAnswers::expect(Expected expected)
{
    m_expected.push_back(std::move(expected));
}

void DialogAnswers::expectFileDialog(const QString &what,
                                     std::function<void(QFileDialog &)> inspect,
                                     std::function<void(QFileDialog &)> answer, Caller caller)
{
    expect({what, caller, Kind::FileDialog,
            [caller, inspect = std::move(inspect), answer = std::move(answer)](QDialog &dialog) {
                auto &fileDialog = static_cast<QFileDialog &>(dialog);
                compare("the file dialog's name", dialog.objectName(), u"CommonDialog"_s, caller);
                if (inspect)
                    inspect(fileDialog);
                return [answer, open = QPointer(&fileDialog)] {
                    if (open)
                        answer(*open);
                };
            }});
}

// Activates the window below a closed dialog. A window manager would do it, but the offscreen
// platform has none.
void DialogAnswers::activateWindow()
{
    if (QApplication::activeWindow() || m_seen == 0)
        return;
    if (QWidget *dialog = QApplication::activeModalWidget()) {
        dialog->activateWindow();
        return;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible() &&
            (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog))
            window->activateWindow();
}

void DialogAnswers::look()
{
    activateWindow();
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible() || qobject_cast<QProgressDialog *>(dialog))
        return; // a progress dialog needs no answer
    // A closed message box whose caller has not gone on yet: its answer may close the dialog below.
    if (qobject_cast<QMessageBox *>(m_answered) && !m_answered->isVisible())
        return;
    std::erase(m_inUse, nullptr);
    if (std::find(m_inUse.begin(), m_inUse.end(), dialog) != m_inUse.end())
        return;
    if (dialog != m_answered) {
        m_answered = dialog;
        m_waited = 0;
        meet(*dialog);
    } else if (++m_waited > MostLooks) {
        m_waited = 0;
        dismiss(*dialog, u"%1 stays open after its answer"_s, m_caller);
    }
}

void DialogAnswers::meet(QDialog &dialog)
{
    if (m_expected.empty() || m_expected.front().kind != kindOf(dialog)) {
        if (auto *box = qobject_cast<QMessageBox *>(&dialog); box && m_seeOther) {
            m_seeOther(box->text());
            QMetaObject::invokeMethod(box->defaultButton(), &QPushButton::click,
                                      Qt::QueuedConnection);
            return;
        }
        if (m_expected.empty())
            dismiss(dialog, u"unexpected %1"_s, m_caller);
        else
            dismiss(dialog, u"unexpected %1 instead of "_s + m_expected.front().what,
                    m_expected.front().caller);
        return;
    }
    const Expected expected = std::move(m_expected.front());
    m_expected.pop_front();
    ++m_seen;
    m_caller = expected.caller;
    const std::function<void()> answer = expected.answer(dialog);
    if (!answer) {
        dismiss(dialog, u"%1 could not be answered"_s, m_caller);
        return;
    }
    // Queued, because the answer may open another dialog, and the timer must run meanwhile.
    QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
}

void DialogAnswers::dismiss(QDialog &dialog, const QString &reason, Caller caller)
{
    m_failed = true;
    failTest(reason.arg(describe(dialog)), caller);
    QMetaObject::invokeMethod(
        &dialog, [&dialog] { dialog.done(QDialog::Rejected); }, Qt::QueuedConnection);
}
