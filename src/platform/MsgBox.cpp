// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/MsgBox.h"

#include "platform/Application.h"
#include "platform/ScrolledArea.h"
#include "platform/WrappedLabel.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QMessageBox>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

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

MsgBoxAnswer answer(int button, MsgBoxButtons buttons)
{
    switch (button) {
    case QMessageBox::Ok:
        return MsgBoxAnswer::Ok;
    case QMessageBox::Yes:
        return MsgBoxAnswer::Yes;
    case QMessageBox::No:
        return MsgBoxAnswer::No;
    default:
        break;
    }
    switch (buttons) {
    case MsgBoxButtons::OkOnly:
        return MsgBoxAnswer::Ok;
    case MsgBoxButtons::YesNo:
        return MsgBoxAnswer::No;
    case MsgBoxButtons::OkCancel:
    case MsgBoxButtons::YesNoCancel:
        break;
    }
    return MsgBoxAnswer::Cancel;
}

class AnsweredMessageBox final : public QMessageBox
{
public:
    AnsweredMessageBox(const QString &text, QWidget *parent) : QMessageBox(parent)
    {
        setTextFormat(Qt::PlainText);
        setText(text);
        replaceLayout(text);
    }

    void setEsc(MsgBoxEsc esc) { m_esc = esc; }

    // As wide as the lines of the text need, and not higher than the screen.
    void fitToText()
    {
        m_label->ensurePolished();
        const QScreen *place =
            parentWidget() ? parentWidget()->screen() : QGuiApplication::primaryScreen();
        const int buttons = Margin + m_buttons->sizeHint().height();
        const QSize room = place->availableGeometry().size() -
                           QSize(2 * Margin + FrameOfWindow, 2 * Margin + buttons + FrameOfWindow);
        const int widest = std::min(Widest, room.width());
        const int width =
            std::max(std::min(Narrowest, widest), m_label->sizeWithin(widest).width());
        const int height = m_label->heightForWidth(width);
        const bool scrolls = height > room.height();
        const int bar = scrolls ? m_area->verticalScrollBar()->sizeHint().width() : 0;
        // With ScrollBarAsNeeded a bar could stay although the text fits without it.
        m_area->setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn
                                                   : Qt::ScrollBarAlwaysOff);
        m_area->setMinimumWidth(width + bar);
        m_area->setFixedHeight(scrolls ? room.height() : height);
        m_area->resize(m_area->minimumSize());
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        if (mayBeDismissed() || !event->matches(QKeySequence::Cancel))
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
    static constexpr int Margin = 24;
    static constexpr int Narrowest = 240; // text
    static constexpr int Widest = 440;
    static constexpr int FrameOfWindow = 40;

    // QMessageBox cuts off a path that is wider than the box. Its label stays, for text().
    void replaceLayout(const QString &text)
    {
        findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))->hide();
        m_buttons = findChild<QDialogButtonBox *>();
        m_area = new ScrolledArea(this);
        m_label = new WrappedLabel(m_area);
        m_label->setObjectName(QStringLiteral("lblText"));
        m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        m_label->setText(text);
        m_area->setWidget(m_label);
        std::unique_ptr<QLayout>(layout()).reset(); // a widget has one layout
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(Margin, Margin, Margin, Margin);
        column->setSpacing(Margin);
        column->addWidget(m_area);
        column->addWidget(m_buttons);
    }

    [[nodiscard]] bool mayBeDismissed() const
    {
        return m_esc == MsgBoxEsc::MeansNo || standardButtons() != (Yes | No);
    }

    MsgBoxEsc m_esc = MsgBoxEsc::Ignored;
    ScrolledArea *m_area = nullptr;
    WrappedLabel *m_label = nullptr;
    QDialogButtonBox *m_buttons = nullptr;
};

// A tool tip, a menu or the splash may close while the box is open.
bool mayOwn(const QWidget *window)
{
    return window && window->isVisible() &&
           (window->windowType() == Qt::Window || window->windowType() == Qt::Dialog);
}

// Just after a window was closed, no window is active.
QWidget *owner()
{
    for (QWidget *window : {QApplication::activeModalWidget(), QApplication::activeWindow()})
        if (mayOwn(window))
            return window;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), mayOwn);
    return found == windows.end() ? nullptr : *found;
}

} // namespace

MsgBoxAnswer MsgBox(const QString &text, MsgBoxButtons buttons, MsgBoxEsc esc,
                    MsgBoxDefault defaultButton)
{
    AnsweredMessageBox box(text, owner());
    box.setObjectName(QStringLiteral("MsgBox"));
    box.setWindowTitle(Application::Title());
    box.setStandardButtons(standardButtons(buttons));
    const bool beginsWithOk =
        buttons == MsgBoxButtons::OkOnly || buttons == MsgBoxButtons::OkCancel;
    box.setDefaultButton(defaultButton == MsgBoxDefault::No ? QMessageBox::No
                         : beginsWithOk                     ? QMessageBox::Ok
                                                            : QMessageBox::Yes);
    box.setEsc(esc);
    box.fitToText();
    return answer(box.exec(), buttons);
}
