// SPDX-License-Identifier: GPL-3.0-or-later
// Requests from outside to end the program, with each of its windows open.
#include "editor/OpenList.h"
#include "editor/frmSplash.h"
#include "game/frmTanglewit.h"
#include "platform/EndRequest.h"
#include "platform/sndPlaySoundA.h"
#include "support/FormTest.h"

#include <QProcess>
#include <QSignalSpy>

#include <csignal>

using namespace Module1;
using namespace Qt::StringLiterals;

namespace {

const QString LastQuestion = u"Your changes have not been saved.  Do you want to save them?"_s;

const QString ChildArgument = u"--be-the-program"_s;

// The program with an unsaved list; its parent asks it to end. The answer is Yes or No.
int beTheProgram(const QString &path, const QString &answer)
{
    EndRequest request([] { return gChanged; });
    MainWindow main;
    gFileName = path;
    addEntry(main, u"cow"_s);
    main.answers.expectMsgBox(LastQuestion,
                              answer == u"Yes"_s ? QMessageBox::Yes : QMessageBox::No);
    std::fputs("ready\n", stdout);
    std::fflush(stdout);
    const int result = Application::exec();
    return main.answers.allSeen() ? result : 100;
}

} // namespace

class frmMain_EndRequest_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        setSoundPlayer([](const QString &, unsigned) {});
        m_request = std::make_unique<EndRequest>([] { return gChanged; });
        connect(m_request.get(), &EndRequest::begun, this, [] { gStopImport = true; });
        m_main = std::make_unique<MainWindow>();
        m_list = m_main->path(u"animals.lwx"_s);
        gFileName = m_list;
        m_main->fill(3);
    }

    void cleanup()
    {
        QVERIFY(m_main->answers.allSeen());
        m_main.reset();
        m_request.reset();
        setSoundPlayer({});
    }

    void withoutChangesNothingIsAsked()
    {
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QVERIFY(!m_main->window().isVisible());
        QCOMPARE(m_main->answers.seen(), 0);
    }

    void yesSaves()
    {
        addEntry(*m_main, u"cow"_s);
        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QCOMPARE(readFile(m_list), listBytes(entries));
        QVERIFY(!m_main->window().isVisible());
    }

    void noSavesNothing()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::No);
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QVERIFY(!QFile::exists(m_list));
    }

    void yesWithoutANameAsksForOne()
    {
        gFileName.clear();
        addEntry(*m_main, u"cow"_s);
        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        m_main->answers.chooseFile(m_list);
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QCOMPARE(readFile(m_list), listBytes(entries));
    }

    void aCancelledSaveAsEndsTheProgram()
    {
        gFileName.clear();
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        m_main->answers.cancelFileDialog();
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
    }

    void aSaveThatFailsKeepsTheProgram()
    {
        gFileName = m_main->path(u"nowhere/animals.lwx"_s);
        addEntry(*m_main, u"cow"_s);
        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        m_main->answers.expectAnyMsgBox(QMessageBox::Ok, [this](QMessageBox &box) {
            QVERIFY(box.text().startsWith(u"Run-time error '76':"_s));
            QVERIFY(m_main->window().isVisible());
            QCOMPARE(openEntries().size(), 4);
            // A second request does not end the program without an answer either.
            gFileName = m_list;
            m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
            QTimer::singleShot(0, &m_main->window(), [] { raise(SIGTERM); });
        });
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QCOMPARE(readFile(m_list), listBytes(entries));
    }

    void formsAreCancelledBeforeTheQuestion_data()
    {
        QTest::addColumn<QByteArray>("command");
        QTest::addColumn<QByteArray>("form");
        QTest::newRow("print") << "mnuPrint"_ba
                               << "frmPrint"_ba;
        QTest::newRow("export") << "mnuExport"_ba
                                << "dlgExport"_ba;
        QTest::newRow("flash cards") << "mnuQuickFlash"_ba
                                     << "dlgQuickFlash"_ba;
    }

    void formsAreCancelledBeforeTheQuestion()
    {
        QFETCH(QByteArray, command);
        QFETCH(QByteArray, form);
        addEntry(*m_main, u"cow"_s);
        const Entries entries = openEntries();
        m_main->answers.useForm(form.constData(), [](QDialog &dialog) {
            raise(SIGTERM);
            QTRY_VERIFY(!dialog.isVisible());
        });
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        QCOMPARE(run([&] { m_main->choose(command.constData()); }), 0);
        QCOMPARE(m_main->answers.seen(), 2);
        QCOMPARE(readFile(m_list), listBytes(entries));
    }

    void anImportEndsAndTheListIsSavedUnderItsOwnName()
    {
        const QString source = m_main->path(u"source.lwx"_s);
        const Entries words{{u"new"_s, u"a definition"_s, u"A sentence."_s},
                            {u"word 1"_s, {}, {}},
                            {u"word 2"_s, {}, {}},
                            {u"word 3"_s, {}, {}}};
        writeFile(source, listBytes(words));
        const Entries before = openEntries();
        m_main->answers.chooseFile(source);
        m_main->answers.useForm("dlgWordExist", [](QDialog &dialog) {
            raise(SIGTERM);
            QTRY_VERIFY(!dialog.isVisible());
        });
        // The other words are not asked about. The box that counts them may be closed before it is
        // seen here. The last question's default button is Yes.
        QStringList boxes;
        m_main->answers.seeOtherMsgBoxes([&boxes](const QString &text) { boxes += text; });
        QCOMPARE(run([this] { m_main->choose("mnuImport"); }), 0);
        boxes.removeOne(u"1 words imported"_s);
        QCOMPARE(boxes, QStringList{LastQuestion});
        QCOMPARE(readFile(m_list), listBytes(before + Entries{words[0]}));
        QCOMPARE(readFile(source), listBytes(words));
    }

    void theGameIsLeft()
    {
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes, [this](QMessageBox &) {
            QVERIFY(m_main->window().isVisible());
        });
        QCOMPARE(run([this] {
                     m_main->click("cmdPlayScramble");
                     QVERIFY(!m_main->window().isVisible());
                     raise(SIGTERM);
                 }),
                 0);
        QVERIFY(QFile::exists(m_list));
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (const QWidget *window : windows)
            QVERIFY2(!window->isVisible(), qPrintable(window->objectName()));
    }

    void aSplashEndsWithoutOpeningTheMainWindow()
    {
        m_main->window().hide();
        frmSplash splash;
        QSignalSpy unloaded(&splash, &frmSplash::unloaded);
        splash.show();
        QCOMPARE(run([] { raise(SIGTERM); }), 0);
        QVERIFY(!splash.isVisible());
        QCOMPARE(unloaded.size(), 0);
    }

    // The person has answered Yes already: a cancelled dialog would end the program without a save.
    void theDialogForANameAtTheEndIsNotCancelled()
    {
        gFileName.clear();
        addEntry(*m_main, u"cow"_s);
        const Entries entries = openEntries();
        m_main->answers.expectMsgBox(LastQuestion, QMessageBox::Yes);
        m_main->answers.chooseFile(m_list, [this](QFileDialog &) {
            QSignalSpy looks(m_request->findChild<QTimer *>(), &QTimer::timeout);
            raise(SIGTERM);
            QTRY_VERIFY(looks.size() >= 3);
        });
        QCOMPARE(run([this] { m_main->window().close(); }), 0);
        QCOMPARE(readFile(m_list), listBytes(entries));
    }

    void atLogoutTheAnswerIsHonoured_data()
    {
        QTest::addColumn<bool>("yes");
        QTest::newRow("Yes") << true;
        QTest::newRow("No") << false;
    }

    void atLogoutTheAnswerIsHonoured()
    {
        QFETCH(bool, yes);
        addEntry(*m_main, u"cow"_s);
        m_main->answers.expectMsgBox(LastQuestion, yes ? QMessageBox::Yes : QMessageBox::No);
        bool goesOn = false;
        QCOMPARE(run([&] { goesOn = m_request->mayLogOut(); }), 0);
        QVERIFY(goesOn);
        QCOMPARE(QFile::exists(m_list), yes);
    }

    void aProcessThatGetsTheSignalEndsWithItsAnswerHonoured_data()
    {
        QTest::addColumn<QString>("answer");
        QTest::newRow("Yes") << u"Yes"_s;
        QTest::newRow("No") << u"No"_s;
    }

    void aProcessThatGetsTheSignalEndsWithItsAnswerHonoured()
    {
        QFETCH(QString, answer);
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {ChildArgument, m_list, answer});
        while (!process.canReadLine())
            QVERIFY(process.waitForReadyRead());
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
        if (answer == u"Yes"_s)
            QCOMPARE(readFile(m_list), listBytes({addedEntry(u"cow"_s)}));
        else
            QVERIFY(!QFile::exists(m_list));
    }

    void theProgramItselfEndsDuringItsSplash()
    {
        QProcess process;
        process.start(QStringLiteral(PROGRAM), QStringList());
        QVERIFY(process.waitForStarted());
        // Before it shows anything, it looks for a program that runs already.
        QTRY_VERIFY(QFile::exists(m_main->path(u".local/share/Lexibrook/tanglewit.lock"_s)));
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 0);
    }

private:
    // Runs the program with this command until it ends.
    int run(const std::function<void()> &command)
    {
        QTimer::singleShot(0, &m_main->window(), command);
        return Application::exec();
    }

    std::unique_ptr<EndRequest> m_request;
    std::unique_ptr<MainWindow> m_main;
    QString m_list;
};

int main(int argc, char *argv[])
{
    if (argc == 4 && QLatin1String(argv[1]) == ChildArgument) {
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        Application application(argc, argv);
        return beTheProgram(QFile::decodeName(argv[2]), QLatin1String(argv[3]));
    }
    return runFormTest<frmMain_EndRequest_test>(argc, argv);
}

#include "frmMain_EndRequest_test.moc"
