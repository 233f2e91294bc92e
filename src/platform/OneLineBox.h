// SPDX-License-Identifier: GPL-3.0-or-later
// A box for a text of one line, whatever is pasted or dropped: a cell of a spreadsheet, for
// example, comes with a line break at its end.
//
// A text that the program sets is not changed.
#pragma once

#include <QClipboard>
#include <QLineEdit>

// The text without the line breaks at its ends, and with a blank for each one inside.
[[nodiscard]] QString oneLine(const QString &text);

class OneLineBox final : public QLineEdit
{
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

public Q_SLOTS:
    // The box's context menu calls it by its name, in place of the slot of QLineEdit.
    void paste() { pasteFrom(QClipboard::Clipboard); }

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void pasteFrom(QClipboard::Mode mode);
    void endUndoStep();
};
