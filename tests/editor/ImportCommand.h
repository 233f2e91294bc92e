// SPDX-License-Identifier: GPL-3.0-or-later
// File > Import in a freshly started main window, the file to import chosen in the real dialog.
#pragma once

#include "editor/EditorModes.h"
#include "editor/MainWindow.h"
#include "support/FormTest.h"
#include "transfer/ImportTools.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

class ImportCommand final
{
public:
    MainWindow main;

    // Writes the file below the fresh home and chooses it.
    void import(const QString &name, const QByteArray &bytes,
                std::function<void(QFileDialog &)> inspect = {}, Caller caller = Caller::current())
    {
        const QString file = main.path(name);
        QDir().mkpath(QFileInfo(file).path());
        writeFile(file, bytes, caller);
        choose(file, std::move(inspect), caller);
    }

    void importList(const QStringList &entries, Caller caller = Caller::current())
    {
        import(u"words.lwx"_s, ImportTools::listFile(entries), {}, caller);
    }

    void importDif(const QByteArrayList &lines, Caller caller = Caller::current())
    {
        import(u"words.dif"_s, ImportTools::joined(lines), {}, caller);
    }

    // Call the functions below before, to expect the dialogs that follow the file dialog.
    void choose(const QString &file, std::function<void(QFileDialog &)> inspect = {},
                Caller caller = Caller::current())
    {
        main.answers.chooseFile(file, std::move(inspect), caller);
        for (const auto &expect : std::exchange(m_after, {}))
            expect();
        main.choose("mnuImport", caller);
    }

    // The dialogs that follow the file dialog, in this order.
    void expectYesNo(const QString &text, QMessageBox::StandardButton answer,
                     Caller caller = Caller::current())
    {
        m_after.emplace_back([=, this] { main.answers.expectMsgBox(text, answer, {}, caller); });
    }
    void expectMsgBox(const QString &text, std::function<void(QMessageBox &)> inspect = {},
                      Caller caller = Caller::current())
    {
        m_after.emplace_back([this, text, caller, inspect = std::move(inspect)] {
            main.answers.expectMsgBox(text, QMessageBox::Ok, inspect, caller);
        });
    }
    void expectQuestion(const QString &answer, std::function<void(QDialog &)> look = {},
                        Caller caller = Caller::current())
    {
        m_after.emplace_back([this, answer, caller, look = std::move(look)] {
            ImportTools::expectQuestion(main.answers, answer, look, caller);
        });
    }
    void expectReport(const QString &start, const QString &part = {},
                      Caller caller = Caller::current())
    {
        m_after.emplace_back([this, start, part, caller] {
            main.answers.expectAnyMsgBox(
                QMessageBox::Ok,
                [start, part](QMessageBox &box) {
                    QVERIFY2(box.text().startsWith(start) && box.text().contains(part),
                             qPrintable(box.text()));
                },
                caller);
        });
    }

    // The grid's words, from the first row on, until a row shows none.
    [[nodiscard]] QStringList words()
    {
        QStringList words;
        for (int row = 1; row < main.grid().rowCount(); ++row) {
            const QString word = main.row(row)[1];
            if (word.isEmpty())
                break;
            words += word;
        }
        return words;
    }

private:
    std::vector<std::function<void()>> m_after;
};
