// SPDX-License-Identifier: GPL-3.0-or-later
// The frame "Print Range" of the print dialog: FromWord and ToWord with their controls.
#pragma once

#include <QObject>

class Integer;
class QLineEdit;

namespace Ui {
class frmPrint;
}

class RangeFrame final : public QObject
{
    Q_OBJECT

public:
    explicit RangeFrame(const Ui::frmPrint &ui);

    // Shows the range. A range that is not set (0 in FromWord or ToWord) becomes the whole list.
    void show();
    // Takes the typed text if the focus is in one of the boxes.
    void takeTypedText(const QWidget *focus);

Q_SIGNALS:
    // A text was taken, or the whole list was chosen.
    void changed();

private:
    void optPrintAllWords_Click();
    void optSubset_Click();
    void txtFromWord_LostFocus();
    void txtToWord_LostFocus();
    void takePosition(QLineEdit &box, Integer &setting);
    void chooseWholeList();
    void showPlaceholders();
    void enableBoxes(bool enabled);

    const Ui::frmPrint &m_ui;
};
