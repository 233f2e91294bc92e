// SPDX-License-Identifier: GPL-3.0-or-later
// The quiet line beside the word box: the place for what the program has to say without a message
// box. It is brought up to date after each handler.
#pragma once

#include "editor/EditorMode.h"
#include "editor/QuietTexts.h"

#include <QObject>

#include <optional>
#include <utility>

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

    // Says what a command did, until there is something newer to show. An empty text takes back
    // what an earlier command said.
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
    // The mode, and what was shown, when that was said; none until it is shown.
    std::optional<std::pair<EditorMode, QString>> m_before;
};
