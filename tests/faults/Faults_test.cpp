// SPDX-License-Identifier: GPL-3.0-or-later
// For each command that writes a file: each of its system calls fails once, one after the other.
#include "editor/OpenList.h"
#include "editor/SampleLists.h"
#include "faults/FailingCall.h"
#include "game/Music.h"
#include "game/Top10Rows.h"
#include "game/dlgGameOver.h"
#include "platform/Paths.h"
#include "platform/sndPlaySoundA.h"
#include "support/FormTest.h"
#include "transfer/TextFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QScopeGuard>

#include <cerrno>
#include <cstring>

using namespace Module1;
using namespace Qt::StringLiterals;
using Function = FailingCall::Function;
using Lasting = FailingCall::Lasting;

namespace {

struct FileCommand
{
    const char *name;
    QString path;      // of the file that the command writes
    QByteArray before; // null = there is no such file
    std::function<bool(const QByteArray &)> isDone;
    std::function<void()> give;
    bool isSlow = false; // it opens a dialog that reads files, too
};

std::function<bool(const QByteArray &)> equals(const QByteArray &bytes)
{
    return [bytes](const QByteArray &content) { return content == bytes; };
}

bool isWholePdf(const QByteArray &content)
{
    return content.startsWith("%PDF-") && content.endsWith("%%EOF\n");
}

struct Way
{
    int reason = 0;
    Lasting lasting = Lasting::Once;
};

// All ways to fail, for the fast commands; fewer for the slow ones.
const std::vector<Way> AllWays{{EINTR},
                               {ENOSPC},
                               {ENOSPC, Lasting::FromThenOn},
                               {EIO},
                               {EIO, Lasting::FromThenOn},
                               {EACCES},
                               {EACCES, Lasting::FromThenOn}};
const std::vector<Way> MainWays{{EINTR}, {ENOSPC, Lasting::FromThenOn}, {EIO}};

// Whether the system checks permissions in it. The other functions work on open files.
bool checksRights(Function function)
{
    switch (function) {
    case Function::Open:
    case Function::Rename:
    case Function::Link:
    case Function::Unlink:
    case Function::Mkdir:
        return true;
    default:
        return false;
    }
}

QString reportStart(int reason)
{
    switch (reason) {
    case ENOSPC:
        return u"Run-time error '61':\n\nDisk full\n"_s;
    case EIO:
        return u"Run-time error '57':\n\nDevice I/O error\n"_s;
    default:
        return u"Run-time error '70':\n\nPermission denied\n"_s;
    }
}

// Whether the file may be written in spite of the fault.
bool mayBeSilent(const FailingCall::Fault &fault, bool onFolder, bool isSlow)
{
    const int reason = fault.reason;
    switch (fault.function) {
    case Function::Open: // a second file that cannot be made in one way is made in another one
        return fault.lasting == Lasting::Once || reason == EACCES || onFolder;
    case Function::Rename: // what the rights refuse is written in place
    case Function::Link:
        return reason == EINTR || reason == EACCES;
    case Function::Read: // a file dialog reads files to know their kinds
        return reason == EINTR || isSlow;
    case Function::Close: // all was on the disk before
    case Function::Unlink:
    case Function::Fchmod:
    case Function::Fchown:
        return true;
    default:
        return reason == EINTR || reason == FailingCall::StopsShort || onFolder;
    }
}

double today()
{
    return double(QDate(1899, 12, 30).daysTo(QDate::currentDate()));
}

QByteArray describe(const FailingCall::Fault &fault)
{
    return QByteArray(nameOf(fault.function)) + " " + QByteArray::number(fault.number) + ": " +
           (fault.reason == FailingCall::StopsShort ? "stops short" : std::strerror(fault.reason)) +
           (fault.lasting == Lasting::Once ? "" : ", from then on");
}

} // namespace

class Faults_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_main = std::make_unique<MainWindow>();
        QVERIFY(QDir().mkdir(m_main->path(u"disk"_s)));
        for (const QStringList &entry : m_entries)
            gVocabList().AddVocab(entry[0], entry[1], entry[2]);
        setSoundPlayer([](const QString &, unsigned) {});
        m_main->answers.seeOtherMsgBoxes([this](const QString &text) { m_told += text; });
    }

    void cleanupTestCase()
    {
        setSoundPlayer({});
        m_main.reset();
    }

    void theOldFileOrTheNewOneIsThere_data()
    {
        QTest::addColumn<std::size_t>("number");
        QTest::addColumn<Function>("function");
        const std::vector<FileCommand> commands = this->commands();
        for (std::size_t i = 0; i < commands.size(); ++i)
            for (const Function function : FailingFunctions)
                QTest::addRow("%s, %s", commands[i].name, nameOf(function)) << i << function;
    }

    void theOldFileOrTheNewOneIsThere()
    {
        QFETCH(std::size_t, number);
        QFETCH(Function, function);
        const FileCommand command = commands()[number];
        m_wrong.clear();
        std::vector<Way> ways = command.isSlow ? MainWays : AllWays;
        if (command.isSlow && checksRights(function))
            ways.push_back({EACCES});
        if (function == Function::Write)
            ways.push_back({FailingCall::StopsShort});
        for (const Way &way : ways) {
            int call = 1;
            while (failsRightly(command, {function, call, way.reason, way.lasting}))
                ++call;
            if (call == 1)
                break; // the command does not call the function
        }
        QVERIFY(m_main->answers.allSeen());
        QVERIFY2(m_wrong.isEmpty(), qUtf8Printable(u'\n' + m_wrong.join(u'\n')));
    }

    // Without this a power cut could leave an empty file under the old name.
    void theFileAndThenItsFolderAreFlushed_data()
    {
        QTest::addColumn<std::size_t>("number");
        const std::vector<FileCommand> commands = this->commands();
        for (std::size_t i = 0; i < commands.size(); ++i)
            QTest::newRow(commands[i].name) << i;
    }

    void theFileAndThenItsFolderAreFlushed()
    {
        QFETCH(std::size_t, number);
        const FileCommand command = commands()[number];
        for (const bool isFolder : {false, true}) {
            prepare(command);
            const FailingCall flush(QFileInfo(command.path).path(),
                                    {Function::Fsync, isFolder ? 2 : 1, EINTR});
            command.give();
            QVERIFY(flush.hasFailed());
            QCOMPARE(flush.wasOnFolder(), isFolder);
        }
        QVERIFY(m_main->answers.allSeen());
    }

    void theSampleListsAreThereWholeOrNotAtAll_data()
    {
        QTest::addColumn<Function>("function");
        for (const Function function : FailingFunctions)
            QTest::newRow(nameOf(function)) << function;
    }

    void theSampleListsAreThereWholeOrNotAtAll()
    {
        QFETCH(Function, function);
        const QStringList samples = QDir(u":/lists"_s).entryList(QDir::Files);
        QVERIFY(!samples.isEmpty());
        const QDir folder(disk(u"samples"_s));
        m_wrong.clear();
        for (const Way &way : MainWays) {
            bool happens = true;
            for (int call = 1; happens; ++call) {
                const FailingCall::Fault fault{function, call, way.reason, way.lasting};
                QVERIFY(QDir().mkdir(folder.path()));
                QString error;
                try {
                    const FailingCall failing(folder.path(), fault);
                    const auto note = qScopeGuard([&] { happens = failing.hasFailed(); });
                    installSampleLists(folder.filePath(u"MyLists"_s));
                } catch (const RunTimeError &reported) {
                    error = reported.report();
                }
                const QStringList expected =
                    error.isEmpty() ? QStringList(u"MyLists"_s) : QStringList();
                const QStringList names =
                    folder.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
                const QStringList lists =
                    QDir(folder.filePath(u"MyLists"_s)).entryList(QDir::Files);
                if (names != expected || (error.isEmpty() && lists != samples) ||
                    (!error.isEmpty() && !error.startsWith(reportStart(way.reason))))
                    m_wrong += QString::fromUtf8(describe(fault)) + u": "_s + error + u" ["_s +
                               names.join(u", "_s) + u"] "_s + lists.join(u", "_s);
                QVERIFY(QDir(folder.path()).removeRecursively());
            }
        }
        QVERIFY2(m_wrong.isEmpty(), qUtf8Printable(u'\n' + m_wrong.join(u'\n')));
    }

private:
    [[nodiscard]] std::vector<FileCommand> commands()
    {
        const QByteArray list = listBytes(m_entries);
        const QByteArray longList = listBytes(someEntries(600, u"plant"_s));
        const QByteArray otherList = listBytes(someEntries(2, u"plant"_s));
        const QByteArray text = textOfList(gVocabList());
        const QByteArray freeScore = fileRow(today(), "", 0);
        const auto save = [this] { m_main->choose("mnuSave"); };
        const auto ask = [this](const char *item, const QString &path) {
            return [this, item, path] {
                answerFileDialog(path);
                m_main->choose(item);
            };
        };
        const auto withPath = [this](void (Faults_test::*give)(const QString &),
                                     const QString &path) {
            return [this, give, path] { (this->*give)(path); };
        };
        const QString own = disk(u"list.lwx"_s);
        const QString other = disk(u"other.lwx"_s);
        const QString textFile = disk(u"list.txt"_s);
        const QString pdf = disk(u"list.pdf"_s);
        return {
            {"Save over a longer list", own, longList, equals(list + longList.mid(list.size())),
             save},
            {"Save of a file that is gone", own, {}, equals(list), save},
            {"Save As", other, {}, equals(list), ask("mnuSaveAs", other), true},
            {"Save As over a file", other, "old", equals(list), ask("mnuSaveAs", other), true},
            {"Text file over a file", textFile, text.toUpper() + "more", equals(text + "more"),
             ask("mnuCreateTextFile", textFile), true},
            {"Export", other, {}, equals(list), withPath(&Faults_test::exportTo, other)},
            {"Export to a list", other, otherList,
             equals(listBytes(someEntries(2, u"plant"_s) + m_entries)),
             withPath(&Faults_test::exportTo, other)},
            {"Print to PDF", pdf, {}, isWholePdf, withPath(&Faults_test::printTo, pdf), true},
            {"Print to PDF over a file", pdf, "old", isWholePdf,
             withPath(&Faults_test::printTo, pdf), true},
            {"A name for the Top 10", pathOf(Place::Top10), freeScore.repeated(10),
             equals(fileRow(today(), "Ann", 25) + freeScore.repeated(9)), [this] { enterScore(); },
             true},
        };
    }

    void answerFileDialog(const QString &path)
    {
        m_main->answers.chooseFile(path);
        if (QFileInfo::exists(path))
            m_main->answers.answerOverwrite(QFileInfo(path).fileName(), QMessageBox::Yes);
    }

    void exportTo(const QString &path)
    {
        m_main->answers.useForm("dlgExport", [path](QDialog &dialog) {
            Controls::find<QLineEdit>(dialog, "txtFilename").setText(path);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdOk"));
            if (dialog.isVisible())
                Controls::click(Controls::find<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuExport");
    }

    void printTo(const QString &path)
    {
        m_main->answers.useForm("frmPrint", [this, path](QDialog &dialog) {
            answerFileDialog(path);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdPrint"));
            if (dialog.isVisible())
                Controls::click(Controls::find<QPushButton>(dialog, "cmdCancel"));
        });
        m_main->choose("mnuPrint");
    }

    void enterScore()
    {
        gTop10 = emptyTop10(QDate::currentDate());
        gScore = 25;
        QAction upbeat;
        QAction soothing;
        QAction off;
        Music music(MusicMenu{upbeat, soothing, off});
        m_main->answers.useForm("dlgGameOver", [](QDialog &dialog) {
            Controls::find<QLineEdit>(dialog, "txtName").setText(u"Ann"_s);
            Controls::click(Controls::find<QPushButton>(dialog, "cmdEnter"));
            dialog.close();
        });
        dlgGameOver(music, nullptr).exec();
    }

    // Prepares a changed list with a name; on the disk there is only the old file.
    void prepare(const FileCommand &command)
    {
        const QDir folder = QFileInfo(command.path).dir();
        const QStringList names = folder.entryList(QDir::Files | QDir::Hidden | QDir::System);
        for (const QString &name : names)
            QFile::remove(folder.filePath(name));
        if (!command.before.isNull())
            writeFile(command.path, command.before);
        gFileName = gOpenedFile = disk(u"list.lwx"_s);
        gFileTitle = u"list.lwx"_s;
        gChanged = true;
        gSaved = false;
        m_main->action("mnuSave").setEnabled(true);
        m_main->window().setWindowTitle(CaptionStart + gFileTitle);
        m_told.clear();
    }

    // Returns whether the call was made.
    [[nodiscard]] bool failsRightly(const FileCommand &command, const FailingCall::Fault &fault)
    {
        prepare(command);
        const OpenList before(*m_main);
        bool happened = false;
        bool onFolder = false;
        {
            const FailingCall failing(QFileInfo(command.path).path(), fault);
            command.give();
            happened = failing.hasFailed();
            onFolder = failing.wasOnFolder();
        }
        const auto wrong = [&](const QString &what) {
            m_wrong += QString::fromUtf8(describe(fault)) + u": "_s + what;
        };
        const QStringList errors = m_told.filter(u"error"_s);
        const bool told = !errors.isEmpty();
        const bool isThere = QFileInfo::exists(command.path);
        const QByteArray content = isThere ? readFile(command.path) : QByteArray();
        if (told && fault.reason == EINTR) {
            wrong(u"an interruption is told: "_s + errors.constFirst());
        } else if (told) {
            if (content != command.before || isThere == command.before.isNull())
                wrong(u"the old file is not whole"_s);
            if (!errors.constFirst().startsWith(reportStart(fault.reason)) ||
                !errors.constFirst().contains(command.path) ||
                !errors.constFirst().contains(qt_error_string(fault.reason)))
                wrong(u"told as "_s + errors.constFirst());
            if (!(OpenList(*m_main) == before) || gSaved)
                wrong(u"the open list is not as before"_s);
            savesElsewhere();
        } else {
            if (happened && !mayBeSilent(fault, onFolder, command.isSlow))
                wrong(u"not told"_s);
            if (!command.isDone(content))
                wrong(u"the new file is not whole"_s);
        }
        if (openEntries() != m_entries)
            wrong(u"the list has changed"_s);
        QStringList names =
            QFileInfo(command.path)
                .dir()
                .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
        names.removeAll(QFileInfo(command.path).fileName());
        if (!names.isEmpty())
            wrong(u"left beside the file: "_s + names.join(u", "_s));
        return happened;
    }

    void savesElsewhere()
    {
        gFileName = m_main->path(u"elsewhere.lwx"_s);
        m_main->choose("mnuSave");
        QCOMPARE(readFile(gFileName), listBytes(m_entries));
        QVERIFY(!gChanged);
        QVERIFY(QFile::remove(gFileName));
    }

    [[nodiscard]] QString disk(const QString &name) const
    {
        return m_main->path(u"disk/"_s + name);
    }

    const Entries m_entries = someEntries(5, u"animal"_s);
    std::unique_ptr<MainWindow> m_main;
    QStringList m_told;
    QStringList m_wrong;
};

int main(int argc, char *argv[])
{
    return runFormTest<Faults_test>(argc, argv);
}

#include "Faults_test.moc"
