// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Appearance.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetrics>
#include <QPalette>

#include <algorithm>

namespace {

QColor onAccentColour(const QPalette &palette)
{
    return isDark(palette) ? Qt::black : Qt::white;
}

QColor disabledColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0x8A, 0x90, 0x94) : QColor(0x72, 0x7C, 0x83);
}

// The program's colours in the palette's place.
QPalette withOwnColours(QPalette palette)
{
    palette.setColor(QPalette::Highlight, accentColour(palette));
    palette.setColor(QPalette::HighlightedText, onAccentColour(palette));
    palette.setColor(QPalette::PlaceholderText, quietColour(palette));
    for (const auto role : {QPalette::Link, QPalette::LinkVisited})
        palette.setColor(role, accentColour(palette));
    for (const auto role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::PlaceholderText})
        palette.setColor(QPalette::Disabled, role, disabledColour(palette));
    return palette;
}

QString styleSheet(const QPalette &palette)
{
    const bool dark = isDark(palette);
    QString sheet = QStringLiteral(R"(
QGroupBox {
    border: 1px solid @line; border-radius: 8px; margin-top: @halfTitlepx;
    padding: @halfTitlepx 8px 8px 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; padding: 0 4px; color: @quiet; }
#centralWidget > QGroupBox#Frame1 { border: none; margin: 0; padding: 0; border-radius: 0; }
#FrameDef, #FrameSen, #FramePrinter, #dlgQuickFlash QGroupBox {
    border: none; margin-top: @titlepx; padding: 0; }
#FrameDef::title, #FrameSen::title, #FramePrinter::title, #dlgQuickFlash QGroupBox::title {
    left: -2px; padding: 0; }
#FrameDef::title { left: 12px; }
#FrameSen::title { left: 31px; }
#lstPrinter, #lstExportWords {
    background: palette(base); border: 1px solid @line; border-radius: 6px; padding: 2px; }
#lstPrinter:focus, #lstExportWords:focus { border: 2px solid @accent; padding: 1px; }
#cmdQuickFlash { margin-right: 8px; }
QLineEdit, QPlainTextEdit {
    background: palette(base); border: 1px solid @outline; border-radius: 6px; padding: 3px 6px;
    selection-background-color: @accent; selection-color: @onAccent; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid @accent; padding: 2px 5px; }
QLineEdit:disabled, QPlainTextEdit:disabled { background: palette(window); border-color: @line; }
QLineEdit[readOnly="true"], EntryTextBox[readOnly="true"] {
    background: palette(window); color: @quiet; }
QLineEdit#txtWord, QLineEdit#txtCurWord, QLineEdit#txtImportWord, EntryTextBox {
    font-size: @entryTypepx; }
QLineEdit#txtWord[large="true"], EntryTextBox[large="true"] { font-size: @largeEntryTypepx; }
QLineEdit#txtImportWord, EntryTextBox#txtImportDef, EntryTextBox#txtImportSen {
    color: palette(text); }
QPushButton {
    background: palette(button); border: 1px solid @outline; border-radius: 6px;
    padding: 5px 14px; min-height: @buttonTypepx; }
QPushButton:hover { border-color: @accent; }
QPushButton:pressed { background: @line; }
QPushButton:default { background: @accent; color: @onAccent; border-color: @accent; }
QPushButton:focus { border: 2px solid @focus; padding: 4px 13px; outline: none; }
QPushButton:disabled { background: palette(window); color: @disabled; border-color: @line; }
SpeakerButton {
    background: palette(button); border: 1px solid @outline; border-radius: 6px; padding-right: 16px; }
SpeakerButton:hover { border-color: @accent; }
SpeakerButton:pressed { background: @line; }
SpeakerButton:focus { border: 2px solid @focus; }
SpeakerButton::menu-button { border: none; width: 16px; }
FlashCard { border-radius: 14px; border: 1px solid @outline; }
FlashCard[back="true"] { background: @accent; color: @onAccent; border-color: @accent; }
#prgDeck { background: @line; border: none; border-radius: 2px; }
#prgDeck::chunk { background: @accent; border-radius: 2px; }
#lblDeck, #lblEnding, #lblConflict { color: @quiet; }
#lblWordExist { font-size: @questionTypepx; font-weight: bold; }
FlashCard:focus { border: 2px solid @focus; }
#wordPanel, #cluePanel, #rowPanel { background: palette(base); border: 1px solid @line; border-radius: 10px; }
#frmHits, #frmMisses {
    background: palette(base); border: 1px solid @line; border-radius: 10px; margin: 0;
    padding: @titleInsidepx 8px 8px 12px; }
#frmHits::title, #frmMisses::title { subcontrol-origin: border; left: 14px; top: 8px; padding: 0; }
LetterTile { background: transparent; min-height: 0; padding: 0; border: none; }
ScrolledArea, ScrolledArea > QWidget > QWidget { background: transparent; }
ScrolledArea:focus { border: 2px solid @focus; }
#scoreCaption, #levelCaption, #livesCaption, #clueCaption, #sentenceCaption, #answerCaption,
#lblBest, #lblLevelHits, #lblWordsLeft, #lblFeedback, #lblRules { color: @quiet; }
#lblWorth { font-weight: bold; }
#lblScore, #lblLevel, #lblNumLifes { font-size: 28px; font-weight: bold; }
#txtUserAnswer { font-size: @textTypepx; }
#frmTanglewit #txtUserAnswer { font-size: 30px; }
#lblTitle { font-size: @headingTypepx; font-weight: bold; }
#lblEmptyList {
    background: palette(base); color: @quiet; border: 1px solid @line; border-radius: 10px;
    font-size: @entryTypepx; padding: 12px 28px; }
#lblEmptyList[large="true"] { font-size: @largeEntryTypepx; }
#lblHint { font-size: @entryTypepx; color: @quiet; }
#lblTypingHint { color: @quiet; }
#lblAnswerIs { font-size: @headingTypepx; font-weight: bold; }
#lblAnswerIs[long="true"] { font-size: @textTypepx; }
#answerPanel { background: palette(base); border: 1px solid @line; border-radius: 10px; }
#rowPanel QLabel, #txtName { font-size: @rowTypepx; }
#txtName { padding: 1px 6px; }
#txtName:focus { padding: 0 5px; }
#lstPrinter, #lstExportWords, HandbookText {
    border: 1px solid @outline; border-radius: 6px; padding: 1px; }
#lstPrinter:focus, #lstExportWords:focus, HandbookText:focus {
    border: 2px solid @accent; padding: 0; }
#lstHits, #lstMisses { background: transparent; border: none; font-size: @listTypepx; }
#lstHits:focus, #lstMisses:focus { border: 2px solid @focus; border-radius: 4px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
MSFlexGrid { border: none; border-bottom: 1px solid @line; gridline-color: @thin; }
MSFlexGrid:focus { border-bottom: 2px solid @accent; }
)");
    // The type of texts and lists follows the application's. The least sizes are those that look
    // well beside type of 13 pixels.
    const int type = QFontInfo(QApplication::font()).pixelSize();
    const auto setType = [&sheet, type](const char *name, int least, double factor) {
        const int size = std::max(least, int(type * factor));
        sheet.replace(QLatin1String(name), QString::number(size));
        return size;
    };
    const int entryType = setType("@entryType", 15, 1.15);
    sheet.replace(QLatin1String("@largeEntryType"), QString::number(entryType * 3 / 2));
    setType("@questionType", 17, 1.3);
    setType("@headingType", 26, 2);
    setType("@textType", 20, 1.5);
    setType("@rowType", 16, 1.25);
    setType("@listType", 14, 1.1);
    // A layout may make a button as low as this, so that it is what the button's text needs, which
    // may be a pixel more than the type's height.
    const QSize buttonText =
        QFontMetrics(QApplication::font()).size(Qt::TextShowMnemonic, QStringLiteral("X"));
    const int buttonType = std::max(18, buttonText.height());
    sheet.replace(QLatin1String("@buttonType"), QString::number(buttonType));
    // Of the captions of frames: on the border, above a frame without one, inside a panel.
    const int titleType = QFontMetrics(QApplication::font()).height();
    sheet.replace(QLatin1String("@halfTitle"), QString::number(std::max(9, titleType / 2 + 1)));
    sheet.replace(QLatin1String("@titleInside"), QString::number(std::max(26, titleType + 10)));
    sheet.replace(QLatin1String("@title"), QString::number(titleType));
    const QColor accent = accentColour(palette);
    const auto set = [&sheet](const char *name, const QColor &colour) {
        sheet.replace(QLatin1String(name), colour.name());
    };
    set("@accent", accent);
    set("@onAccent", onAccentColour(palette));
    set("@focus", focusColour(palette));
    set("@outline", outlineColour(palette));
    set("@line", dark ? QColor(0x5A, 0x5F, 0x63) : QColor(0xC3, 0xCB, 0xD1));
    set("@thin", dark ? QColor(0x44, 0x48, 0x4C) : QColor(0xDD, 0xE2, 0xE6));
    set("@quiet", quietColour(palette));
    set("@disabled", disabledColour(palette));
    return sheet;
}

} // namespace

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < 128;
}

QColor accentColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0x3F, 0xB6, 0xC2) : QColor(0x0E, 0x73, 0x80);
}

QColor quietColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(0xB4, 0xBC, 0xC2) : QColor(0x4A, 0x56, 0x5E);
}

QColor outlineColour(const QPalette &palette)
{
    if (!isDark(palette))
        return {0x76, 0x82, 0x8A};
    return {0x86, 0x8D, 0x92};
}

QColor panelColour(const QPalette &palette)
{
    const QColor window = palette.color(QPalette::Window);
    const int steps = isDark(palette) ? 8 : 2; // from the window's colour to white
    return {window.red() + (255 - window.red()) / steps,
            window.green() + (255 - window.green()) / steps,
            window.blue() + (255 - window.blue()) / steps};
}

QColor focusColour(const QPalette &palette)
{
    return isDark(palette) ? QColor(Qt::white) : accentColour(palette).darker(170);
}

void applyAppearance(QApplication &application)
{
    const QPalette palette = withOwnColours(QApplication::palette());
    if (palette != QApplication::palette())
        QApplication::setPalette(palette);
    const QString sheet = styleSheet(palette);
    if (application.styleSheet() != sheet)
        application.setStyleSheet(sheet);
}
