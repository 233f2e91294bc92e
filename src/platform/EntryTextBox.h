// SPDX-License-Identifier: GPL-3.0-or-later
// A box for a text of an entry that may have several lines. A line break is the two characters
// CR LF.
//
// A text that the person has not changed comes back exactly as it was set, other line breaks
// included. Enter is left to the window (its default button); Ctrl+Enter and Shift+Enter break the
// line. Tab leaves the box. What is pasted or dropped comes in as plain text; where there is none,
// nothing changes.
#pragma once

#include <QPlainTextEdit>

class EntryTextBox final : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit EntryTextBox(QWidget *parent = nullptr);

    [[nodiscard]] QString text() const;
    void setText(const QString &text);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    [[nodiscard]] bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    QString m_setText;
};
