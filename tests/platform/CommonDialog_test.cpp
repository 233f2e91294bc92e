// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/CommonDialog.h"

#include "support/AllocatedBytes.h"
#include "support/Controls.h"
#include "support/DialogAnswers.h"
#include "support/FormTest.h"
#include "support/FreshHome.h"
#include "support/TestFiles.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString ListFilter = u"Vocab Data (*.lwx)|*.lwx|All files (*.*)|*.*"_s;

QString offeredName(const QFileDialog &dialog)
{
    return Controls::find<QLineEdit>(dialog, "fileNameEdit").text();
}

QStringList filesShown(const QFileDialog &dialog)
{
    const auto &view = Controls::find<QListView>(dialog, "listView");
    QStringList names;
    for (int row = 0; row < view.model()->rowCount(view.rootIndex()); ++row)
        names += view.model()->index(row, 0, view.rootIndex()).data().toString();
    names.sort();
    return names;
}

} // namespace

class CommonDialog_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_state = std::make_unique<FreshHome>();
        m_answers = std::make_unique<DialogAnswers>();
        for (const char *folder : {"first", "second", "folder.with.dots"})
            QVERIFY(QDir(m_state->home()).mkdir(QLatin1String(folder)));
        m_dialog = std::make_unique<CommonDialog>(path("first"));
        m_dialog->DialogTitle = u"Save File As"_s;
        m_dialog->Filter = ListFilter;
    }

    void cleanup()
    {
        QVERIFY(m_answers->allSeen());
        m_answers.reset();
        m_state.reset();
    }

    void titleAndFiltersAreShownExactly()
    {
        const auto inspect = [](QFileDialog &dialog) {
            QCOMPARE(dialog.windowTitle(), u"Save File As"_s);
            const auto &types = Controls::find<QComboBox>(dialog, "fileTypeCombo");
            QCOMPARE(types.count(), 2);
            QCOMPARE(types.itemText(0), u"Vocab Data (*.lwx)"_s);
            QCOMPARE(types.itemText(1), u"All files (*.*)"_s);
            QCOMPARE(types.currentIndex(), 0);
        };
        m_answers->cancelFileDialog(inspect);
        QVERIFY(!m_dialog->ShowSave(nullptr));
        m_answers->cancelFileDialog(inspect);
        QVERIFY(!m_dialog->ShowOpen(nullptr));
    }

    void theFirstFilterListsWordListsInEitherCase()
    {
        for (const char *name : {"cat.lwx", "DOG.LWX", "notes.txt", "bare", "cat.lwx.bak"})
            make(u"first/"_s + QLatin1String(name));
        m_answers->cancelFileDialog([](QFileDialog &dialog) {
            QTRY_COMPARE(filesShown(dialog), (QStringList{u"DOG.LWX"_s, u"cat.lwx"_s}));
        });
        QVERIFY(!m_dialog->ShowOpen(nullptr));
    }

    void allFilesAreAllFilesWithoutADotToo()
    {
        for (const char *name : {"cat.lwx", "notes.txt", "bare"})
            make(u"first/"_s + QLatin1String(name));
        m_answers->cancelFileDialog([](QFileDialog &dialog) {
            QTest::keyClick(&Controls::find<QComboBox>(dialog, "fileTypeCombo"), Qt::Key_Down);
            QTRY_COMPARE(filesShown(dialog),
                         (QStringList{u"bare"_s, u"cat.lwx"_s, u"notes.txt"_s}));
        });
        QVERIFY(!m_dialog->ShowOpen(nullptr));
    }

    void theDefaultExtensionIsAddedWhereThereIsNone_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("extension");
        QTest::addColumn<QString>("chosen");
        const auto row = [](const char *typed, const char *extension, const char *chosen) {
            QTest::addRow("%s with %s", typed, extension)
                << QString::fromUtf8(typed) << QString::fromUtf8(extension)
                << QString::fromUtf8(chosen);
        };
        row("cat", "lwx", "cat.lwx");
        row("cat.lwx", "lwx", "cat.lwx");
        row("cat.txt", "lwx", "cat.txt");
        row("two words", "lwx", "two words.lwx");
        row("\u00E9t\u00E9", "lwx", "\u00E9t\u00E9.lwx");
        row("../folder.with.dots/cat", "lwx", "../folder.with.dots/cat.lwx");
        row("cat", "", "cat");
    }

    void theDefaultExtensionIsAddedWhereThereIsNone()
    {
        QFETCH(QString, typed);
        QFETCH(QString, extension);
        QFETCH(QString, chosen);
        m_dialog->DefaultExt = extension;
        m_answers->chooseFile(typed);
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileName, QDir::cleanPath(path("first/") + chosen));
        QCOMPARE(m_dialog->FileTitle, QFileInfo(chosen).fileName());
    }

    void anExistingFileIsReplacedOnlyAfterYes()
    {
        make(u"first/cat.lwx"_s);
        m_dialog->DefaultExt = u"lwx"_s;
        m_dialog->OverwritePrompt = true;
        m_answers->chooseFile(u"cat"_s);
        m_answers->answerOverwrite(u"cat.lwx"_s, QMessageBox::Yes);
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileTitle, u"cat.lwx"_s);
    }

    void afterNoAnotherNameCanBeChosen()
    {
        make(u"first/cat.lwx"_s);
        m_dialog->OverwritePrompt = true;
        m_answers->chooseFile(u"cat.lwx"_s);
        m_answers->answerOverwrite(u"cat.lwx"_s, QMessageBox::No);
        m_answers->chooseFile(u"dog.lwx"_s, [](QFileDialog &dialog) {
            // The question has just closed; wait until the dialog has the focus again.
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
        });
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileTitle, u"dog.lwx"_s);

        m_answers->chooseFile(u"cat.lwx"_s);
        m_answers->answerOverwrite(u"cat.lwx"_s, QMessageBox::No);
        m_answers->cancelFileDialog();
        QVERIFY(!m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileTitle, u"dog.lwx"_s);
    }

    void withoutTheOptionAnExistingFileIsTakenWithoutAQuestion()
    {
        make(u"first/cat.lwx"_s);
        m_dialog->OverwritePrompt = false;
        m_answers->chooseFile(u"cat.lwx"_s);
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileName, path("first/cat.lwx"));
    }

    void openingAnExistingFileNeverAsks()
    {
        make(u"first/cat.lwx"_s);
        m_dialog->OverwritePrompt = true;
        m_answers->chooseFile(u"cat.lwx"_s);
        QVERIFY(m_dialog->ShowOpen(nullptr));
        QCOMPARE(m_dialog->FileName, path("first/cat.lwx"));
        QCOMPARE(m_dialog->FileTitle, u"cat.lwx"_s);
    }

    void aNameThatDoesNotExistCanBeOpened()
    {
        m_answers->chooseFile(u"new.lwx"_s);
        QVERIFY(m_dialog->ShowOpen(nullptr));
        QCOMPARE(m_dialog->FileName, path("first/new.lwx"));
        QVERIFY(!QFile::exists(m_dialog->FileName));
    }

    void theDialogStartsInTheFolderGivenOrElseInTheLastUsed()
    {
        const auto startsIn = [this](const QString &folder) {
            return [this, folder](QFileDialog &dialog) {
                QCOMPARE(dialog.directory().absolutePath(), m_state->path(folder));
            };
        };
        const QString first = u"first"_s;
        const QString second = u"second"_s;

        m_answers->cancelFileDialog(startsIn(first));
        QVERIFY(!m_dialog->ShowSave(nullptr));

        m_dialog->InitDir = path("second");
        m_answers->cancelFileDialog(startsIn(second));
        QVERIFY(!m_dialog->ShowOpen(nullptr));
        m_dialog->InitDir.clear();
        m_answers->cancelFileDialog(startsIn(first)); // a cancelled dialog changes no folder
        QVERIFY(!m_dialog->ShowSave(nullptr));

        m_dialog->InitDir = path("second");
        m_answers->chooseFile(u"cat.lwx"_s, startsIn(second));
        QVERIFY(m_dialog->ShowOpen(nullptr));
        m_dialog->InitDir.clear();
        m_dialog->FileName.clear();
        m_answers->cancelFileDialog(startsIn(second));
        QVERIFY(!m_dialog->ShowSave(nullptr));
    }

    void theNameSetBeforehandIsOffered()
    {
        m_dialog->FileName = path("second/cat.lwx");
        m_answers->acceptFileDialog(
            [](QFileDialog &dialog) { QCOMPARE(offeredName(dialog), u"cat.lwx"_s); });
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileName, path("second/cat.lwx"));
    }

    void theNameSetBeforehandIsOfferedWithoutAFolderThatIsMissing()
    {
        m_dialog->FileName = path("gone/cat.lwx");
        m_answers->acceptFileDialog([this](QFileDialog &dialog) {
            QCOMPARE(offeredName(dialog), u"cat.lwx"_s);
            QCOMPARE(dialog.directory().absolutePath(), path("first"));
        });
        QVERIFY(m_dialog->ShowSave(nullptr));
        QCOMPARE(m_dialog->FileName, path("first/cat.lwx"));
    }

    void whereTheFolderIsMissingTheDialogStartsInTheNearestOneAbove()
    {
        QVERIFY(QDir(path("first")).mkpath(u"class/week"_s));
        m_dialog->OverwritePrompt = false;
        m_answers->chooseFile(path("first/class/week/cat.lwx"));
        QVERIFY(m_dialog->ShowSave(nullptr));
        QVERIFY(QDir(path("first/class")).removeRecursively());
        const auto inspect = [this](QFileDialog &dialog) {
            QCOMPARE(offeredName(dialog), u"cat.lwx"_s);
            QCOMPARE(dialog.directory().absolutePath(), path("first"));
        };
        m_answers->cancelFileDialog(inspect);
        QVERIFY(!m_dialog->ShowSave(nullptr));
        m_dialog->InitDir = path("first/class");
        m_answers->cancelFileDialog(inspect);
        QVERIFY(!m_dialog->ShowOpen(nullptr));
    }

    void theLastNameIsOfferedAgain()
    {
        m_answers->chooseFile(u"cat.lwx"_s);
        QVERIFY(m_dialog->ShowSave(nullptr));
        m_answers->cancelFileDialog(
            [](QFileDialog &dialog) { QCOMPARE(offeredName(dialog), u"cat.lwx"_s); });
        QVERIFY(!m_dialog->ShowSave(nullptr));
    }

    void nothingIsLeftInThePersonsSettings()
    {
        m_answers->chooseFile(u"cat.lwx"_s);
        QVERIFY(m_dialog->ShowSave(nullptr));
        m_answers->cancelFileDialog();
        QVERIFY(!m_dialog->ShowOpen(nullptr));
        const QStringList left = QDir(path(".config")).entryList(QDir::Files | QDir::Hidden);
        QVERIFY2(left.isEmpty(), qPrintable(left.join(u' ')));
    }

    void withoutANameTheFieldIsEmpty()
    {
        m_answers->cancelFileDialog(
            [](QFileDialog &dialog) { QCOMPARE(offeredName(dialog), QString()); });
        QVERIFY(!m_dialog->ShowOpen(nullptr));
    }

    void cancelKeepsTheProperties()
    {
        m_dialog->FileName = path("second/cat.lwx");
        m_dialog->FileTitle = u"cat.lwx"_s;
        m_dialog->DefaultExt = u"lwx"_s;
        m_dialog->OverwritePrompt = true;
        for (const bool save : {false, true}) {
            m_answers->cancelFileDialog();
            QVERIFY(!(save ? m_dialog->ShowSave(nullptr) : m_dialog->ShowOpen(nullptr)));
            QCOMPARE(m_dialog->FileName, path("second/cat.lwx"));
            QCOMPARE(m_dialog->FileTitle, u"cat.lwx"_s);
            QCOMPARE(m_dialog->DialogTitle, u"Save File As"_s);
            QCOMPARE(m_dialog->Filter, ListFilter);
            QCOMPARE(m_dialog->DefaultExt, u"lwx"_s);
            QVERIFY(m_dialog->OverwritePrompt);
        }
    }

    void openingItAgainAndAgainTakesNoMoreMemory()
    {
        const auto open = [this](int times) {
            for (int i = 0; i < times; ++i) {
                m_answers->cancelFileDialog();
                QVERIFY(!m_dialog->ShowOpen(nullptr));
            }
        };
        constexpr int times = 20;
        constexpr std::size_t most = 2048; // bytes for each
        open(times);
        const std::size_t before = allocatedBytes();
        open(times);
        QVERIFY(allocatedBytes() < before + times * most);
    }

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_state->path(QLatin1String(name));
    }

    void make(const QString &name) const { writeFile(m_state->path(name), {}); }

    std::unique_ptr<FreshHome> m_state;
    std::unique_ptr<DialogAnswers> m_answers;
    std::unique_ptr<CommonDialog> m_dialog;
};

int main(int argc, char *argv[])
{
    return runFormTest<CommonDialog_test>(argc, argv);
}

#include "CommonDialog_test.moc"
