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

constexpr auto Title = "Tanglewit"_L1; // of every message box

constexpr int LookInterval = 5; // ms
constexpr int MostLooks = 600;  // at a dialog that should close

void fail(const QString &what)
{
    QTest::qFail(qUtf8Printable(what), __FILE__, __LINE__);
}

void compare(const char *what, const QString &actual, const QString &expected)
{
    if (actual != expected)
        fail(u"%1 is \"%2\" instead of \"%3\""_s.arg(QLatin1String(what), actual, expected));
}

QString describe(const QDialog &dialog)
{
    if (const auto *box = qobject_cast<const QMessageBox *>(&dialog))
        return u"message box \"%1\""_s.arg(box->text());
    return u"%1 \"%2\""_s.arg(QLatin1String(dialog.metaObject()->className()),
                              dialog.windowTitle());
}

std::function<void()> pressing(QAbstractButton *button, const QString &name)
{
    if (!button || !button->isVisible() || !button->isEnabled()) {
        fail(u"the dialog has no %1 that can be pressed"_s.arg(name));
        return {};
    }
    return [button = QPointer(button)] {
        if (button)
            QTest::mouseClick(button, Qt::LeftButton);
    };
}

std::function<void()> answering(QMessageBox &box, QMessageBox::StandardButton answer)
{
    return pressing(box.button(answer), u"button %1"_s.arg(answer));
}

QAbstractButton *buttonOf(QFileDialog &dialog, QDialogButtonBox::StandardButton button)
{
    auto *buttons = dialog.findChild<QDialogButtonBox *>(u"buttonBox"_s);
    return buttons ? buttons->button(button) : nullptr;
}

void accept(QFileDialog &dialog)
{
    const auto button = dialog.acceptMode() == QFileDialog::AcceptOpen ? QDialogButtonBox::Open
                                                                       : QDialogButtonBox::Save;
    if (const auto press = pressing(buttonOf(dialog, button), u"Open or Save"_s))
        press();
}

} // namespace

DialogAnswers::DialogAnswers()
{
    connect(&m_timer, &QTimer::timeout, this, &DialogAnswers::look);
    m_timer.start(LookInterval);
}

DialogAnswers::~DialogAnswers()
{
    for (const Expected &expected : m_expected)
        fail(expected.what + u" did not come"_s);
}

void DialogAnswers::expectMsgBox(const QString &text, QMessageBox::StandardButton answer,
                                 std::function<void(QMessageBox &)> inspect)
{
    expect({u"message box \"%1\""_s.arg(text), Kind::MessageBox,
            [text, answer, inspect = std::move(inspect)](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message", box.text(), text);
                compare("the message box's title", box.windowTitle(), Title);
                if (inspect)
                    inspect(box);
                return answering(box, answer);
            }});
}

void DialogAnswers::expectAnyMsgBox(QMessageBox::StandardButton answer,
                                    std::function<void(QMessageBox &)> inspect)
{
    expect({u"a message box"_s, Kind::MessageBox,
            [answer, inspect = std::move(inspect)](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message box's title", box.windowTitle(), Title);
                inspect(box);
                return answering(box, answer);
            }});
}

void DialogAnswers::seeOtherMsgBoxes(std::function<void(const QString &)> see)
{
    m_seeOther = std::move(see);
}

void DialogAnswers::escapeMsgBox(const QString &text)
{
    expect({u"message box \"%1\" to be closed by Esc"_s.arg(text), Kind::MessageBox,
            [text](QDialog &dialog) -> std::function<void()> {
                auto &box = static_cast<QMessageBox &>(dialog);
                compare("the message", box.text(), text);
                return [box = QPointer(&box)] {
                    if (box)
                        QTest::keyClick(box->defaultButton(), Qt::Key_Escape);
                };
            }});
}

void DialogAnswers::chooseFile(const QString &name, std::function<void(QFileDialog &)> inspect)
{
    expectFileDialog(u"file dialog for \"%1\""_s.arg(name), std::move(inspect),
                     [name](QFileDialog &dialog) {
                         auto *box = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
                         if (!box)
                             return fail(u"the file dialog has no box for the name"_s);
                         // The completion would guess on while the name is typed, and its list
                         // would pop up between a click and its button.
                         box->setCompleter(nullptr);
                         box->setFocus();
                         box->selectAll();
                         box->insert(name);
                         accept(dialog);
                     });
}

void DialogAnswers::acceptFileDialog(std::function<void(QFileDialog &)> inspect)
{
    expectFileDialog(u"file dialog to accept"_s, std::move(inspect), accept);
}

void DialogAnswers::cancelFileDialog(std::function<void(QFileDialog &)> inspect)
{
    expectFileDialog(u"file dialog to cancel"_s, std::move(inspect), [](QFileDialog &dialog) {
        if (const auto press = pressing(buttonOf(dialog, QDialogButtonBox::Cancel), u"Cancel"_s))
            press();
    });
}

void DialogAnswers::answerOverwrite(const QString &fileTitle, QMessageBox::StandardButton answer)
{
    expect({u"question about replacing \"%1\""_s.arg(fileTitle), Kind::MessageBox,
            [fileTitle, answer](QDialog &dialog) {
                auto &box = static_cast<QMessageBox &>(dialog);
                if (!qobject_cast<QFileDialog *>(box.parentWidget()) ||
                    !box.text().contains(fileTitle))
                    fail(u"\"%1\" is not the file dialog's question about \"%2\""_s.arg(box.text(),
                                                                                        fileTitle));
                return answering(box, answer);
            }});
}

void DialogAnswers::useForm(const char *name, std::function<void(QDialog &)> use)
{
    const QString form = QLatin1String(name);
    expect({form, Kind::Form, [this, form, use = std::move(use)](QDialog &dialog) {
                compare("the form's name", dialog.objectName(), form);
                m_inUse.emplace_back(&dialog);
                return [this, use, open = QPointer(&dialog)] {
                    if (open)
                        use(*open);
                    if (open && open->isVisible())
                        dismiss(*open, u"%1 stays open after its use"_s);
                };
            }});
}

void DialogAnswers::useMsgBox(const QString &text, std::function<void(QMessageBox &)> use)
{
    expect({u"message box \"%1\""_s.arg(text), Kind::MessageBox,
            [text, use = std::move(use)](QDialog &dialog) {
                compare("the message", static_cast<QMessageBox &>(dialog).text(), text);
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
        fail(expected.what + u" did not come"_s);
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
                                     std::function<void(QFileDialog &)> answer)
{
    expect({what, Kind::FileDialog,
            [inspect = std::move(inspect), answer = std::move(answer)](QDialog &dialog) {
                auto &fileDialog = static_cast<QFileDialog &>(dialog);
                compare("the file dialog's name", dialog.objectName(), u"CommonDialog"_s);
                if (inspect)
                    inspect(fileDialog);
                return [answer, open = QPointer(&fileDialog)] {
                    if (open)
                        answer(*open);
                };
            }});
}

// What a window manager does and the display without one does not: when a dialog is gone, the
// window below it is active again.
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
        return; // a bar of progress asks nothing
    // A message box that is closed but not gone is about to say what becomes of the dialog below.
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
        dismiss(*dialog, u"%1 stays open after its answer"_s);
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
        dismiss(dialog,
                u"unexpected %1"_s +
                    (m_expected.empty() ? QString() : u" instead of "_s + m_expected.front().what));
        return;
    }
    const Expected expected = std::move(m_expected.front());
    m_expected.pop_front();
    ++m_seen;
    const std::function<void()> answer = expected.answer(dialog);
    if (!answer) {
        dismiss(dialog, u"%1 could not be answered"_s);
        return;
    }
    // An answer may open a further dialog, for which the timer must be able to fire.
    QMetaObject::invokeMethod(this, answer, Qt::QueuedConnection);
}

void DialogAnswers::dismiss(QDialog &dialog, const QString &reason)
{
    m_failed = true;
    fail(reason.arg(describe(dialog)));
    QMetaObject::invokeMethod(
        &dialog, [&dialog] { dialog.done(QDialog::Rejected); }, Qt::QueuedConnection);
}
