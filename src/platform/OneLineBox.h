// SPDX-License-Identifier: GPL-3.0-or-later
// An edit box for one line. Pasting and dropping insert a text without its line breaks: a cell of a
// spreadsheet, for example, has one at its end. A text that the program sets is not changed.
#pragma once

#include <QClipboard>
#include <QLineEdit>

// The text without line breaks at its start and end, and with a space for each one inside.
[[nodiscard]] QString oneLine(const QString &text);

class OneLineBox final : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

public Q_SLOTS:
    // Replaces the slot of QLineEdit, which the context menu calls by its name.
    void paste() { pasteFrom(QClipboard::Clipboard); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
    void endUndoStep();
};
