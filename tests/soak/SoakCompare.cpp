// SPDX-License-Identifier: GPL-3.0-or-later
// Compares the windows and the files with the model.
#include "soak/Soak.h"

#include "core/Module1.h"
#include "core/cVocabList.h"
#include "editor/EditorModes.h"
#include "platform/Paths.h"
#include "support/TestFiles.h"

#include <QApplication>
#include <QDirIterator>
#include <QFileInfo>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace Module1;

void Soak::check(bool condition, const QString &what, Caller caller) const
{
    if (!condition)
        failTest(what, caller);
}

void Soak::compare()
{
    check(answers().allSeen() && !QTest::currentTestFailed(), u"other dialogs came"_s);
    check(!QApplication::activeModalWidget(), u"a dialog is open still"_s);
    const QWidget *expected = game() ? game() : &m_main->window();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget *window : windows)
        check(!window->isVisible() || window == expected || window->windowType() == Qt::ToolTip,
              u"%1 %2 is open still"_s.arg(QLatin1String(window->metaObject()->className()),
                                           window->objectName()));
    compareList();
    compareTitle();
    compareDisk();
    if (game())
        return;
    compareEditor();
    compareGrid();
}

void Soak::compareList()
{
    const cVocabList &list = gVocabList();
    check(list.NumWords() == model.count(),
          u"%1 entries instead of %2"_s.arg(list.NumWords().toInt()).arg(model.count()));
    if (QTest::currentTestFailed())
        return;
    for (int position = 1; position <= model.count(); ++position) {
        const VocabRecord &entry = list.entry(position);
        const Entry &expected = model.entry(position);
        if (entry.Word != expected.word || entry.Definition != expected.definition ||
            entry.Sentence != expected.sentence)
            return failTest(u"entry %1 is \"%2\" instead of \"%3\", or its texts differ"_s.arg(
                QString::number(position), entry.Word, expected.word));
    }
}

void Soak::compareTitle()
{
    const auto same = [this](const char *what, const QString &actual, const QString &expected) {
        check(actual == expected,
              u"%1 is \"%2\" instead of \"%3\""_s.arg(QLatin1String(what), actual, expected));
    };
    same("the caption", m_main->window().windowTitle(), model.caption);
    same("gFileName", gFileName, model.fileName);
    same("gFileTitle", gFileTitle, model.fileTitle);
    same("gOpenedFile", gOpenedFile, model.openedFile);
    check(gChanged == model.changed, u"gChanged is %1"_s.arg(gChanged));
    check(m_main->action("mnuSave").isEnabled() == model.canSave,
          u"mnuSave is %1"_s.arg(model.canSave ? u"disabled"_s : u"enabled"_s));
}

void Soak::compareEditor()
{
    check(gNewWord == model.newWord && gWordSelected == model.wordSelected,
          u"gNewWord %1, gWordSelected %2"_s.arg(gNewWord).arg(gWordSelected));
    const QStringList look = m_main->look();
    switch (model.mode) {
    case Model::Mode::Idle:
        check(look == EditorModes::idle(), u"not idle: "_s + look.join(u", "));
        break;
    case Model::Mode::NewWord:
        check(look == EditorModes::newWord(), u"no new word: "_s + look.join(u", "));
        break;
    case Model::Mode::Editing:
        check(look == EditorModes::editing(), u"not editing: "_s + look.join(u", "));
        break;
    case Model::Mode::NewList:
    case Model::Mode::Search:
        check(m_main->control<QWidget>("txtWord").isEnabled(), u"txtWord is disabled"_s);
        break;
    }
}

// The rows show entries that follow one another; after the last entry they are empty.
void Soak::compareGrid()
{
    const MSFlexGrid &grid = m_main->grid();
    int first = 0;
    for (int row = 1; row < grid.rowCount(); ++row) {
        const int position = grid.text(row, 0).toInt();
        if (row == 1)
            first = position;
        check(position == 0 || position == first + row - 1,
              u"row %1 has the number %2"_s.arg(row).arg(position));
        const Entry shown{grid.text(row, 1), grid.text(row, 2), grid.text(row, 3)};
        const bool isEntry = position >= 1 && position <= model.count();
        check(shown == (isEntry ? model.entry(position) : Entry{}),
              u"row %1 shows as entry %2 \"%3\""_s.arg(row).arg(position).arg(shown.word));
    }
}

void Soak::compareDisk()
{
    QDirIterator files(pathOf(Place::WordLists), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        const QString path = files.next();
        check(model.disk.count(path) == 1, path + u" is new"_s);
        if (QFileInfo(path).isReadable())
            check(readFile(path) == model.disk[path], path + u" has another content"_s);
    }
    for (const auto &[path, bytes] : model.disk)
        check(QFileInfo::exists(path), path + u" is missing"_s);
}
