// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/dlgIncorrectAnswer.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "game/TypeSizes.h"
#include "game/TypedWord.h"
#include "game/ui_dlgIncorrectAnswer.h"
#include "platform/LostFocus.h"
#include "platform/MsgBox.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QStyle>

#include <algorithm>

using Module1::gVocabList;

namespace {

// Pixels.
constexpr int UsualWidth = 560;
constexpr int LargeWidth = 720;
constexpr int LeastHeight = 300;
constexpr int PanelEdges = 2;
constexpr QSize FrameOfWindow(20, 40);
constexpr int TitleBar = 24;

constexpr qsizetype LongestInLargeType = 25;

const QString LeadIn = QStringLiteral("The correct answer is: ");

// In pixels; words beyond the first thousand characters do not count.
int widestWord(const QLabel &label)
{
    int widest = 0;
    for (const QString &word : label.text().left(1000).split(QLatin1Char(' ')))
        widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
    return widest;
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isTyping(const QKeyEvent &event)
{
    return !event.text().isEmpty() && event.text().front().isPrint() &&
           !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

} // namespace

dlgIncorrectAnswer::dlgIncorrectAnswer(QWidget &above)
    : DialogForm(above.window()), m_ui(std::make_unique<Ui::dlgIncorrectAnswer>()), m_above(above)
{
    m_ui->setupUi(this);
    onClick(m_ui->cmdOK, &dlgIncorrectAnswer::cmdOK_Click);
    onClick(m_ui->cmdUp, &dlgIncorrectAnswer::cmdUp_Click);
    onClick(m_ui->cmdDown, &dlgIncorrectAnswer::cmdDown_Click);
    // The close box would do nothing. X11 window managers are told so only if there is another box.
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    new LostFocus(m_ui->cmdOK, [this] { showHint({}); });
}

dlgIncorrectAnswer::~dlgIncorrectAnswer() = default;

void dlgIncorrectAnswer::Form_Load()
{
    showWord(true);
    const QString word = gVocabList().Word();
    m_ui->lblAnswerIs->setText(LeadIn + word);
    m_ui->lblAnswerIs->setLeadIn(LeadIn.size());
    m_ui->lblAnswerIs->setProperty("long", word.size() > LongestInLargeType);
    style()->polish(m_ui->lblAnswerIs); // the style sheet asks for the property
    // The box must take the whole word, or the dialog could never be closed.
    m_ui->txtUserAnswer->setMaxLength(
        std::max(m_ui->txtUserAnswer->maxLength(), static_cast<int>(word.size())));
    const QString definition = gVocabList().Definition();
    showText(*m_ui->lblDefinition, definition, missedDefinitionTypeSize(definition.size()));
    m_ui->definitionArea->setHidden(definition.isEmpty());
    fitToTexts();
    placeBelow(m_above);
    m_ui->txtUserAnswer->setFocus();
}

// The dialog is as high as the texts need, wider for long ones, and not higher than the screen.
// Where the texts do not fit, they scroll.
void dlgIncorrectAnswer::fitToTexts()
{
    const int others = heightWithoutTexts();
    const QSize room = screen()->availableSize() - FrameOfWindow - QSize(0, others);
    const QMargins margins = layout()->contentsMargins() + m_ui->panelLayout->contentsMargins();
    int answer = 0;
    int definition = 0;
    for (const int wanted : {UsualWidth, LargeWidth}) {
        const int width = std::min(wanted, room.width());
        const int textWidth = width - margins.left() - margins.right() - PanelEdges;
        answer = m_ui->lblAnswerIs->heightForWidth(textWidth);
        definition = m_ui->lblDefinition->heightForWidth(textWidth);
        resize(width, height());
        if (answer + definition <= room.height() && widestWord(*m_ui->lblAnswerIs) <= textWidth)
            break;
    }
    answer = std::min(answer, std::max(room.height() - definition, room.height() / 2));
    definition = std::min(definition, room.height() - answer);
    m_ui->answerArea->setMinimumHeight(answer);
    m_ui->definitionArea->setMinimumHeight(definition);
    resize(width(), std::max(LeastHeight, others + answer + definition));
    setMinimumWidth(width());
    // With ScrollBarAsNeeded a bar could stay although the text fits without it.
    if (answer + definition < room.height())
        for (QScrollArea *area : {m_ui->answerArea, m_ui->definitionArea})
            area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void dlgIncorrectAnswer::placeBelow(const QWidget &control)
{
    const QRect room = screen()->availableGeometry();
    const QPoint lowest = room.bottomRight() - QPoint(width(), height()) -
                          QPoint(FrameOfWindow.width(), FrameOfWindow.height());
    const int left = control.window()->geometry().center().x() - width() / 2;
    // Some window managers take the place for that of the dialog without its title bar.
    const int top = control.mapToGlobal(control.rect().bottomLeft()).y() + TitleBar;
    move(std::max(room.left(), std::min(left, lowest.x())),
         std::max(room.top(), std::min(top, lowest.y())));
}

int dlgIncorrectAnswer::heightWithoutTexts()
{
    for (QWidget *control : findChildren<QWidget *>())
        control->ensurePolished(); // the style sheet makes some of them larger
    for (QWidget *area : {m_ui->answerArea, m_ui->definitionArea})
        area->setFixedHeight(1);
    layout()->invalidate();
    layout()->activate();
    const int height = layout()->totalSizeHint().height();
    for (QWidget *area : {m_ui->answerArea, m_ui->definitionArea})
        area->setMaximumHeight(QWIDGETSIZE_MAX);
    return height;
}

// Enter presses the button that has the focus, else the default button. While the word is in sight
// there is no default button: Enter then moves the focus to OK.
void dlgIncorrectAnswer::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event) && m_wordIsShown && !qobject_cast<QPushButton *>(focusWidget())) {
        showHint(QStringLiteral("Press Enter again for OK."));
        m_ui->cmdOK->setFocus();
    } else if (isTyping(*event) && m_ui->cmdOK->hasFocus()) {
        m_ui->txtUserAnswer->setFocus();
        QCoreApplication::sendEvent(m_ui->txtUserAnswer, event);
    } else if (!m_defaultButton.press(*event, focusWidget())) {
        DialogForm::keyPressEvent(event);
    }
}

void dlgIncorrectAnswer::cmdDown_Click()
{
    showWord(false);
    m_ui->txtUserAnswer->setFocus();
}

void dlgIncorrectAnswer::cmdUp_Click()
{
    showWord(true);
    m_ui->txtUserAnswer->setFocus();
}

void dlgIncorrectAnswer::cmdOK_Click()
{
    const QString word = gVocabList().Word();
    m_isTyped = isWordTypedAgain(m_ui->txtUserAnswer->text(), word);
    if (m_isTyped) {
        close();
        return;
    }
    MsgBox(QStringLiteral("The correct word is: '") + word + QLatin1Char('\''));
    m_ui->txtUserAnswer->setFocus();
    const bool mayLackKeys = std::any_of(word.begin(), word.end(), mayLackAKey);
    showHint(mayLackKeys ? QStringLiteral("For letters without a key, type blanks.") : QString());
}

void dlgIncorrectAnswer::showWord(bool shown)
{
    m_wordIsShown = shown;
    m_ui->lblAnswerIs->setVisible(shown);
    m_ui->cmdUp->setVisible(!shown);
    m_ui->cmdDown->setVisible(shown);
    m_defaultButton.set(shown ? nullptr : m_ui->cmdOK);
}

void dlgIncorrectAnswer::showHint(const QString &hint)
{
    m_ui->lblTypingHint->setText(hint);
    m_ui->cmdOK->setAccessibleDescription(hint);
}
