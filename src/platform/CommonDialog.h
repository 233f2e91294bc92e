// SPDX-License-Identifier: GPL-3.0-or-later
// The common file dialog. Its properties stay from one opening to the next, so that the last
// folder and name are offered again. Where the folder to start in is missing, the dialog starts in
// the nearest one above it; of a name whose folder is missing only the name is offered. The dialog
// opens with the size and in the place that the last one had.
#pragma once

#include <QString>

#include <utility>

class QWidget;

class CommonDialog
{
public:
    // The folder that counts as last used at first.
    explicit CommonDialog(QString startFolder) : m_lastFolder(std::move(startFolder)) {}

    QString DialogTitle;
    // Pairs "text|pattern", joined by "|". The pattern *.* stands for all files.
    QString Filter;
    QString DefaultExt;           // without dot, added to a name that has none; empty = none
    QString InitDir;              // where the dialog starts; empty = the last used folder
    bool OverwritePrompt = false; // asks before an existing file is chosen for saving

    QString FileName;  // full path of the chosen file; set beforehand, it is offered
    QString FileTitle; // its name without folder

    // False where the person cancelled; the properties are as before then.
    [[nodiscard]] bool ShowOpen(QWidget *parent);
    [[nodiscard]] bool ShowSave(QWidget *parent);

private:
    enum class Purpose { Open, Save };
    [[nodiscard]] bool show(QWidget *parent, Purpose purpose);

    QString m_lastFolder;
};
