// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet line beside the word box: the place for what the program has to say without a message
// box. It is brought up to date after each handler.
#pragma once

#include "editor/QuietTexts.h"

#include <QObject>

class WordEditor;

namespace Ui {
class frmMain;
}

class QuietLine final : public QObject
{
    Q_OBJECT

public:
    // Both must outlive the line.
    QuietLine(const Ui::frmMain &ui, const WordEditor &editor);
    ~QuietLine() override;

    // Says what a command did, until there is something newer to show.
    void say(const QString &text);

private:
    void txtWord_Change();
    void refresh();
    [[nodiscard]] bool isTyped() const;
    [[nodiscard]] bool isHitInBox() const;
    [[nodiscard]] QuietTexts::Line line();
    [[nodiscard]] QuietTexts::Line lineOfMode() const;
    [[nodiscard]] QString sameWord() const;
    [[nodiscard]] QString lostCharacters() const;

    const Ui::frmMain &m_ui;
    const WordEditor &m_editor;
    QString m_said;
    QString m_shownBefore; // in place of what was said; null until that is shown
};
