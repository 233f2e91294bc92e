// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MsgBox.h"

#include "platform/Application.h"

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMessageBox>

namespace {

QMessageBox::StandardButtons standardButtons(MsgBoxButtons buttons)
{
    switch (buttons) {
    case MsgBoxButtons::OkOnly:
        return QMessageBox::Ok;
    case MsgBoxButtons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case MsgBoxButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MsgBoxButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    }
    return QMessageBox::Ok;
}

MsgBoxAnswer answer(int button)
{
    switch (button) {
    case QMessageBox::Yes:
        return MsgBoxAnswer::Yes;
    case QMessageBox::No:
        return MsgBoxAnswer::No;
    case QMessageBox::Cancel:
        return MsgBoxAnswer::Cancel;
    default:
        return MsgBoxAnswer::Ok;
    }
}

// A stray Esc must not answer No to "Do you want to save?".
class AnsweredMessageBox final : public QMessageBox
{
public:
    using QMessageBox::QMessageBox;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (!mayBeDismissed() && event->matches(QKeySequence::Cancel))
            return;
        QMessageBox::keyPressEvent(event);
    }

    void closeEvent(QCloseEvent *event) override
    {
        if (mayBeDismissed())
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }

private:
    [[nodiscard]] bool mayBeDismissed() const
    {
        return standardButtons() != (QMessageBox::Yes | QMessageBox::No);
    }
};

// No window is active right after one has closed.
QWidget *owner()
{
    if (QWidget *active = QApplication::activeWindow())
        return active;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (window->isVisible())
            return window;
    return nullptr;
}

} // namespace

MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons buttons)
{
    AnsweredMessageBox box(owner());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setWindowTitle(Application::Title());
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
    box.setStandardButtons(standardButtons(buttons));
    box.setDefaultButton(buttons == MsgBoxButtons::OkOnly || buttons == MsgBoxButtons::OkCancel
                             ? QMessageBox::Ok
                             : QMessageBox::Yes);
    return answer(box.exec());
}
