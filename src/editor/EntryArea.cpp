// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/EntryArea.h"

#include "editor/MainLayout.h"
#include "editor/TallArea.h"
#include "editor/ui_frmMain.h"
#include "platform/Guarded.h"
#include "platform/Screen.h"

#include <algorithm>
#include <array>

namespace {

// All in pixels.
constexpr int Spacing = 8;
constexpr int RowSpacing = 12;
// From the left edges of the frames to their boxes. The style sheet puts the titles there, too.
constexpr int DefinitionIndent = 14;
constexpr int SentenceIndent = 33;

} // namespace

EntryArea::EntryArea(Ui::frmMain &ui) : m_ui(ui)
{
    connect(ui.txtDefinition, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtDefinition_Change));
    connect(ui.txtSentence, &QPlainTextEdit::textChanged, this,
            guarded(this, &EntryArea::txtSentence_Change));
}

// Of a box of one line or a button.
int EntryArea::lineHeight() const
{
    constexpr int least = 32;
    return std::max({least, m_ui.txtWord->sizeHint().height(), m_ui.cmdAdd->sizeHint().height()});
}

int EntryArea::titleHeight() const
{
    return m_ui.FrameDef->fontMetrics().height() + Spacing / 2;
}

int EntryArea::leastHeight() const
{
    constexpr int lines = 4;
    const int border = 2 * Spacing;
    const int box = lines * m_ui.txtDefinition->fontMetrics().lineSpacing() + border;
    return 2 * lineHeight() + titleHeight() + box + 4 * RowSpacing;
}

// From top to bottom: the word, the two long texts, the buttons. The boxes are in the middle of the
// window's halves; all else begins and ends with them.
void EntryArea::place(const MainLayout &layout, int height)
{
    for (QWidget *box :
         {static_cast<QWidget *>(m_ui.txtWord), static_cast<QWidget *>(m_ui.txtDefinition),
          static_cast<QWidget *>(m_ui.txtSentence)})
        fitType(*box, height);
    const int line = lineHeight();
    m_ui.Frame1->setGeometry(0, pixels(layout.frameTop), pixels(layout.frameWidth), height);
    const int frameDefLeft = pixels(layout.windowWidth - layout.frameWidth);
    const int frameSenLeft = pixels(layout.frameSenLeft);
    const int boxWidth = pixels(layout.textWidth);
    const int left = frameDefLeft + DefinitionIndent;
    const int middle = frameSenLeft + SentenceIndent;

    const int labelWidth = m_ui.Label1->sizeHint().width();
    const int wordLeft = left + labelWidth + Spacing;
    m_ui.Label1->setGeometry(left, RowSpacing, labelWidth, line);
    m_ui.txtWord->setGeometry(wordLeft, RowSpacing, left + boxWidth - wordLeft, line);
    m_ui.lblQuiet->setGeometry(middle, RowSpacing, boxWidth, line);

    const int textTop = line + 2 * RowSpacing;
    const int buttonTop = height - line - RowSpacing;
    const int textHeight = buttonTop - textTop - RowSpacing;
    const int title = titleHeight();
    const auto placeText = [&](QGroupBox *frame, int frameLeft, QWidget *box, int indent) {
        frame->setGeometry(frameLeft, textTop, pixels(layout.frameDefWidth), textHeight);
        box->setGeometry(indent, title, boxWidth, textHeight - title);
    };
    placeText(m_ui.FrameDef, frameDefLeft, m_ui.txtDefinition, DefinitionIndent);
    placeText(m_ui.FrameSen, frameSenLeft, m_ui.txtSentence, SentenceIndent);
    placeButtons(left, middle + boxWidth, pixels(layout.playLeft), buttonTop);
}

// Play and Quick Flash at the right end, the others of one width in what is left.
void EntryArea::placeButtons(int left, int right, int playLeft, int top)
{
    const int line = lineHeight();
    const int playWidth = right - playLeft;
    const int flashWidth =
        std::max(playWidth + Spacing, m_ui.cmdQuickFlash->sizeHint().width()); // with its margin
    m_ui.cmdPlayScramble->setGeometry(playLeft, top, playWidth, line);
    m_ui.cmdQuickFlash->setGeometry(playLeft - flashWidth, top, flashWidth, line);

    const std::array entryButtons{m_ui.cmdAdd, m_ui.cmdAbort, m_ui.cmdDelete, m_ui.cmdSearch};
    const int room = playLeft - flashWidth - left;
    constexpr int usualWidth = 116;
    int width = std::max(usualWidth, m_ui.cmdNewWord->sizeHint().width() + 2 * Spacing);
    width = std::min(width, room / int(entryButtons.size()) - Spacing);
    for (QPushButton *button : entryButtons) {
        button->setGeometry(left, top, width, line);
        left += width + Spacing;
    }
    // New Word and Add are never shown together.
    m_ui.cmdNewWord->setGeometry(m_ui.cmdAdd->geometry());
}

void EntryArea::show(EditorMode mode, EntryFocus focus)
{
    m_mode = mode;
    const EntryLook &look = lookOf(mode);
    const bool showsAdd = look.shown != EntryLook::Shown::NewWord;
    m_ui.cmdAdd->setVisible(showsAdd);
    m_ui.cmdAdd->setEnabled(look.isEnabled(EntryLook::Add));
    const bool updates = look.shown == EntryLook::Shown::Update;
    m_ui.cmdAdd->setText(updates ? QStringLiteral("&Update") : QStringLiteral("&Add"));
    m_ui.cmdNewWord->setVisible(!showsAdd);
    m_ui.cmdNewWord->setEnabled(look.isEnabled(EntryLook::NewWord));
    m_ui.cmdAbort->setEnabled(look.isEnabled(EntryLook::Abort));
    m_ui.cmdSearch->setEnabled(look.isEnabled(EntryLook::Search));
    m_ui.cmdDelete->setEnabled(look.isEnabled(EntryLook::Delete));
    m_ui.txtWord->setEnabled(look.enabledBoxes != EntryLook::Boxes::None);
    m_ui.txtDefinition->setEnabled(look.enabledBoxes == EntryLook::Boxes::All);
    m_ui.txtSentence->setEnabled(look.enabledBoxes == EntryLook::Boxes::All);
    m_defaultButton.set(look.defaultButton == EntryLook::Add      ? m_ui.cmdAdd
                        : look.defaultButton == EntryLook::Search ? m_ui.cmdSearch
                                                                  : m_ui.cmdNewWord);
    showTips(updates);
    giveFocus(focus);
}

// Enter presses the default button only.
void EntryArea::showTips(bool updates)
{
    const auto show = [](QPushButton &button, const QString &what, const QString &keys) {
        const QString enter = button.isDefault() ? QStringLiteral(", Enter") : QString();
        button.setToolTip(QStringLiteral("%1 (%2%3)").arg(what, keys, enter));
    };
    show(*m_ui.cmdNewWord, QStringLiteral("Type a new word for the list"), QStringLiteral("Alt+N"));
    if (updates)
        show(*m_ui.cmdAdd, QStringLiteral("Store the changed entry"), QStringLiteral("Alt+U"));
    else
        show(*m_ui.cmdAdd, QStringLiteral("Add the word to the list"), QStringLiteral("Alt+A"));
    show(*m_ui.cmdSearch, QStringLiteral("Find the word of the word box; again for the next one"),
         QStringLiteral("Alt+S, Ctrl+F"));
}

void EntryArea::giveFocus(EntryFocus control)
{
    const std::array<QWidget *, 5> controls{m_ui.MSFlexGrid1, m_ui.cmdNewWord, m_ui.txtWord,
                                            m_ui.txtDefinition, m_ui.txtSentence};
    controls.at(static_cast<std::size_t>(control))->setFocus();
}

bool EntryArea::press(const QKeyEvent &event, QWidget *focus) const
{
    return m_defaultButton.press(event, focus);
}

void EntryArea::showEntry(const VocabRecord &entry)
{
    m_ui.txtWord->setText(entry.Word); // cannot be undone, as clear() can
    m_ui.txtDefinition->setText(entry.Definition);
    m_ui.txtSentence->setText(entry.Sentence);
}

VocabRecord EntryArea::entry() const
{
    return {word(), m_ui.txtDefinition->text(), m_ui.txtSentence->text()};
}

QString EntryArea::word() const
{
    return m_ui.txtWord->text();
}

void EntryArea::selectWord()
{
    m_ui.txtWord->selectAll();
}

void EntryArea::ClearEntryBoxes()
{
    showEntry({});
}

void EntryArea::txtDefinition_Change()
{
    m_ui.FrameDef->setTitle(
        QStringLiteral("Definition: %1").arg(m_ui.txtDefinition->text().size()));
}

void EntryArea::txtSentence_Change()
{
    m_ui.FrameSen->setTitle(QStringLiteral("Sentence: %1").arg(m_ui.txtSentence->text().size()));
}
