// SPDX-License-Identifier: GPL-3.0-or-later
// File > New, Open, Save, Save As, Create Text File, Exit, with the questions before them.
#include "soak/Soak.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QLineEdit>

#include <functional>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

enum class Outcome { Done, Declined, Failed };

bool isEditorShown(Soak &soak)
{
    return !soak.game();
}

// A file to save to, of any kind; nothing if the dialog is cancelled.
std::optional<QString> chosenTarget(Soak &soak, const QString &ending)
{
    switch (soak.roll(10)) {
    case 0:
        return {};
    case 1:
        return soak.inLists(u"nowhere/list"_s + ending);
    case 2:
        return soak.inLists(u"locked/new"_s + ending);
    case 3:
        return soak.inLists(u"readonly.lwx"_s);
    case 4:
        return soak.inLists(u"locked/inside.lwx"_s);
    case 5:
    case 6:
        return soak.oneOf(soak.files(u"x"_s));
    default:
        return soak.inLists(u"mine %1"_s.arg(soak.roll(4)) + ending);
    }
}

using Look = std::function<void(QFileDialog &)>;

// The file that is chosen in the file dialog; nothing if the dialog is cancelled.
std::optional<QString> expectSaveDialog(Soak &soak, const QString &ending, const Look &look = {})
{
    const auto target = chosenTarget(soak, ending);
    soak.note(u"to "_s + target.value_or(u"nothing"_s));
    if (!target) {
        soak.answers().cancelFileDialog(look);
        return {};
    }
    // The dialog adds the extension.
    soak.answers().chooseFile(soak.chance(30) && target->endsWith(ending) &&
                                      !target->chopped(ending.size()).contains(u'.')
                                  ? target->chopped(ending.size())
                                  : *target,
                              look);
    if (!QFileInfo::exists(*target))
        return target;
    const bool replace = soak.chance(70);
    soak.answers().answerOverwrite(QFileInfo(*target).fileName(),
                                   replace ? QMessageBox::Yes : QMessageBox::No);
    if (replace)
        return target;
    soak.answers().cancelFileDialog();
    return {};
}

// Of the list's file, or of the one in the caption.
QString nameToOffer(const Model &model)
{
    for (const QString &path : {model.fileName, model.openedFile})
        if (!path.isEmpty())
            return QFileInfo(path).fileName();
    return u"words.lwx"_s;
}

void compareOffered(QFileDialog &dialog, const QString &name)
{
    const QString offered = Controls::find<QLineEdit>(dialog, "fileNameEdit").text();
    if (offered != name)
        failTest(u"the name \"%1\" is offered"_s.arg(offered));
}

Outcome expectSaveAs(Soak &soak)
{
    Model &model = soak.model;
    const QString name = nameToOffer(model);
    const auto target = expectSaveDialog(
        soak, u".lwx"_s, [name](QFileDialog &dialog) { compareOffered(dialog, name); });
    if (!target)
        return Outcome::Declined;
    const int error = model.count() > 0 ? Model::writeError(*target) : 0;
    if (error != 0) {
        soak.expectRunTimeError(error);
        return Outcome::Failed;
    }
    model.fileName = *target;
    model.fileTitle = QFileInfo(*target).fileName();
    if (model.count() > 0)
        model.write(*target, model.listBytes());
    // An empty list writes no file.
    model.openedFile = model.count() > 0 ? *target : QString();
    model.markAsSaved();
    model.showTitle();
    return Outcome::Done;
}

// Saves to the list's own file. isTold: whether a message says so, as it does except at the end of
// the program.
Outcome expectSaveToOwnFile(Soak &soak, bool isTold)
{
    Model &model = soak.model;
    const int error = model.count() > 0 ? Model::writeError(model.fileName) : 0;
    if (error != 0) {
        soak.expectRunTimeError(error);
        return Outcome::Failed;
    }
    if (model.count() > 0) {
        model.write(model.fileName, model.listBytes());
        model.openedFile = model.fileName;
    }
    if (isTold)
        soak.expectMsgBox(model.fileName + u" has been saved."_s);
    model.markAsSaved();
    return Outcome::Done;
}

Outcome expectSave(Soak &soak)
{
    return soak.model.fileName.isEmpty() ? expectSaveAs(soak) : expectSaveToOwnFile(soak, true);
}

// The questions before another list replaces the open one.
Outcome expectEndOfLesson(Soak &soak, bool mayCancel)
{
    if (soak.chance(10)) {
        soak.expectMsgBox(u"End current lesson?"_s, QMessageBox::Cancel);
        return Outcome::Declined;
    }
    soak.expectMsgBox(u"End current lesson?"_s, QMessageBox::Ok);
    if (!soak.model.changed)
        return Outcome::Done;
    const QString question = u"Do you want to save changes?"_s;
    if (mayCancel && soak.chance(20)) {
        soak.expectMsgBox(question, QMessageBox::Cancel);
        return Outcome::Declined;
    }
    const auto answer = soak.chance(70) ? QMessageBox::Yes : QMessageBox::No;
    soak.expectMsgBox(question, answer);
    return answer == QMessageBox::Yes ? expectSave(soak) : Outcome::Done;
}

void save(Soak &soak)
{
    expectSave(soak);
    soak.main().choose("mnuSave");
}

bool canSave(Soak &soak)
{
    return isEditorShown(soak) && soak.model.canSave;
}

void saveAs(Soak &soak)
{
    expectSaveAs(soak);
    soak.main().choose("mnuSaveAs");
}

void newList(Soak &soak)
{
    if (expectEndOfLesson(soak, true) == Outcome::Done) {
        Model &model = soak.model;
        model.replaceBy({});
        model.fileName.clear();
        model.fileTitle.clear();
        model.openedFile.clear();
        model.showTitle();
        model.changed = false;
        model.mode = Model::Mode::NewList;
        model.shown = 0;
        model.newWord = true;
        model.wordSelected = false;
    }
    soak.main().choose("mnuNew");
}

QByteArray longListFile(int count)
{
    std::vector<Entry> entries;
    for (int number = 1; number <= count; ++number)
        entries.push_back({number % 1000 == 0 ? u"apple"_s : u"word %1"_s.arg(number),
                           u"definition %1"_s.arg(number),
                           {}});
    return Model::listBytes(entries, count);
}

QString chosenList(Soak &soak)
{
    switch (soak.roll(10)) {
    case 0:
        return soak.inLists(u"nowhere/list.lwx"_s);
    case 1:
        return soak.inLists(u"locked/missing.lwx"_s);
    case 2:
        return soak.inLists(u"missing %1.lwx"_s.arg(soak.roll(3)));
    default:
        return soak.oneOf(soak.files(u".lwx"_s));
    }
}

void becomeIdle(Model &model)
{
    model.mode = Model::Mode::Idle;
    model.shown = 0;
}

void expectCancelledOpen(Soak &soak)
{
    soak.answers().cancelFileDialog();
    soak.model.fileName.clear();
    soak.model.fileTitle.clear();
    becomeIdle(soak.model);
}

void expectOpen(Soak &soak, const QString &chosen)
{
    Model &model = soak.model;
    soak.note(chosen);
    soak.answers().chooseFile(chosen);
    const bool isLoaded = chosen == model.openedFile;
    std::optional<std::vector<Entry>> list;
    if (!isLoaded) {
        if (const int error = Model::readError(chosen))
            return soak.expectRunTimeError(error);
        list = Model::listOf(model.read(chosen));
        if (!list)
            return soak.expectRunTimeError(9);
    }
    model.fileName = chosen;
    model.fileTitle = QFileInfo(chosen).fileName();
    becomeIdle(model);
    if (isLoaded)
        return;
    model.replaceBy(std::move(*list));
    model.openedFile = chosen;
    model.markAsSaved();
    model.showTitle();
    soak.expectPage(1);
}

void open(Soak &soak)
{
    if (expectEndOfLesson(soak, false) == Outcome::Done) {
        if (soak.chance(10))
            expectCancelledOpen(soak);
        else
            expectOpen(soak, chosenList(soak));
    }
    soak.main().choose("mnuOpen");
}

// More entries than can be typed, up to the most that a file can hold.
void openLongList(Soak &soak)
{
    constexpr int lengths[] = {31'999, 32'000, 32'001, 32'744, 32'745, 32'766, 32'767};
    soak.put(u"long.lwx"_s, longListFile(soak.oneOf(lengths)));
    if (expectEndOfLesson(soak, false) == Outcome::Done)
        expectOpen(soak, soak.inLists(u"long.lwx"_s));
    soak.main().choose("mnuOpen");
}

void createTextFile(Soak &soak)
{
    Model &model = soak.model;
    if (model.count() == 0) {
        soak.expectMsgBox(u"File not created: Your current wordlist is empty."_s);
    } else if (const auto target = expectSaveDialog(soak, u".txt"_s)) {
        const bool isOpenList = *target == model.openedFile || *target == model.fileName;
        if (isOpenList) {
            soak.expectMsgBox(*target + u" file is currently in use."_s);
        } else if (const int error = Model::writeError(*target)) {
            soak.expectRunTimeError(error);
        } else {
            model.write(*target, model.textBytes());
            model.showTitle();
        }
    }
    soak.main().choose("mnuCreateTextFile");
}

// Expects the questions at the end. True if the program ends.
bool expectEnd(Soak &soak)
{
    if (!soak.model.changed)
        return true;
    const auto answer = soak.chance(50) ? QMessageBox::Yes : QMessageBox::No;
    soak.expectMsgBox(u"Your changes have not been saved.  Do you want to save them?"_s, answer);
    if (answer == QMessageBox::No) {
        soak.model.forgetCopy();
        return true;
    }
    const Outcome outcome =
        soak.model.fileName.isEmpty() ? expectSaveAs(soak) : expectSaveToOwnFile(soak, false);
    return outcome != Outcome::Failed;
}

void exitProgram(Soak &soak)
{
    const bool ends = expectEnd(soak);
    if (soak.chance(50))
        soak.main().choose("mnuExit");
    else
        soak.main().window().close();
    if (soak.main().window().isVisible() == ends)
        failTest(ends ? u"the window is still there"_s : u"the window is gone"_s);
    if (ends && soak.answers().allSeen())
        soak.startAnew();
}

void chooseMusic(Soak &soak)
{
    constexpr const char *items[] = {"mnuUpbeat", "mnuSoothing", "mnuMusicOff"};
    soak.main().choose(soak.oneOf(items));
}

} // namespace

std::vector<Action> fileActions()
{
    return {
        {"File > New", 5, isEditorShown, newList},
        {"File > Open", 12, isEditorShown, open},
        {"File > Open, a long list", 1, isEditorShown, openLongList},
        {"File > Save", 15, canSave, save},
        {"File > Save As", 6, isEditorShown, saveAs},
        {"File > Create Text File", 5, isEditorShown, createTextFile},
        {"File > Exit", 3, isEditorShown, exitProgram},
        {"Game > Music", 4, isEditorShown, chooseMusic},
    };
}
