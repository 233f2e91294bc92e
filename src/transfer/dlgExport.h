// SPDX-License-Identifier: GPL-3.0-or-later
// Copies a range of the open list's entries to the end of another list file.
#pragma once

#include "platform/CommonDialog.h"
#include "platform/DialogForm.h"
#include "runtime/Integer.h"

#include <memory>
#include <optional>

class QLineEdit;

namespace Ui {
class dlgExport;
}

class dlgExport final : public DialogForm
{
    Q_OBJECT

public:
    // The file dialog opens in this folder.
    explicit dlgExport(const QString &startFolder, QWidget *parent = nullptr);
    ~dlgExport() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void Form_Load() override;

private:
    // What the preview shows if the first and the last number are equal.
    enum class EqualNumbers { ShowNothing, ShowTheWord };

    void txtStart_LostFocus();
    void txtEnd_LostFocus();
    void cmdBrowse_Click();
    void cmdOK_Click();
    void cmdCancel_Click();

    void txtFilename_Change();
    void lstExportWords_DblClick(Integer number);

    void fillPreview(EqualNumbers equalNumbers);
    void exportRange();
    // Of the entry in a row of the preview.
    [[nodiscard]] int numberOf(int row) const;

    std::unique_ptr<Ui::dlgExport> m_ui;
    CommonDialog Cdlg;
    Integer m_shownStart; // of the preview
    Integer m_shownEnd;
    Integer StartNo; // first item number of the range
    Integer EndNo;   // last item number; below the first, the range runs downwards
    Integer ExportCount;
    std::optional<int> m_pressedNumber; // of the entry in the preview that was pressed last
    bool m_setsEnd = false;             // a double click sets the end of the range, not its start
};
