// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Application.h"

#include "runtime/BinaryFile.h"
#include "runtime/ChildProcess.h"
#include "support/TestFiles.h"

#include <QDateTime>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

const QString HoldArgument = u"--be-a-copy"_s;

// Another copy of the program. It prints whether it found a running copy, and ends when its input
// ends.
int beACopy(Application &application)
{
    QTextStream output(stdout);
    output << (application.PrevInstance() ? "second" : "first") << Qt::endl;
    QTextStream(stdin).readAll();
    return 0;
}

class Copy
{
public:
    Copy() { m_process.start(QCoreApplication::applicationFilePath(), {HoldArgument}); }

    // What the copy printed.
    QByteArray answer()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead())
            ;
        return m_process.readLine().trimmed();
    }

    bool end()
    {
        m_process.closeWriteChannel();
        return m_process.waitForFinished() && m_process.exitCode() == 0;
    }

    bool kill()
    {
        m_process.kill();
        return m_process.waitForFinished() && m_process.exitStatus() == QProcess::CrashExit;
    }

private:
    QProcess m_process;
};

} // namespace

class Application_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_data = std::make_unique<QTemporaryDir>();
        QVERIFY(m_data->isValid());
        qputenv("XDG_DATA_HOME", QFile::encodeName(m_data->path()));
    }

    void theTitleIsTanglewit()
    {
        QCOMPARE(Application::Title(), u"Tanglewit"_s);
        QCOMPARE(QCoreApplication::applicationName(), u"Tanglewit"_s);
    }

    void theVersionIsOneZeroZero()
    {
        QCOMPARE(Application::Major(), 1);
        QCOMPARE(Application::Minor(), 0);
        QCOMPARE(Application::Revision(), 0);
        QCOMPARE(QCoreApplication::applicationVersion(), u"1.0.0"_s);
    }

    void theLegalNoticeNamesTheMaker()
    {
        QVERIFY(Application::LegalCopyright().contains(u"LexiBrook"_s));
    }

    void theFirstCopyFindsNoOther()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        QVERIFY(first.end());
    }

    void aSecondCopyFindsTheFirstWhileItRuns()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        Copy second;
        QCOMPARE(second.answer(), "second"_ba);
        QVERIFY(second.end());
        Copy third;
        QCOMPARE(third.answer(), "second"_ba);
        QVERIFY(third.end());
        QVERIFY(first.end());
    }

    void aCopyThatEndedDoesNotCount()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        QVERIFY(first.end());
        Copy next;
        QCOMPARE(next.answer(), "first"_ba);
        QVERIFY(next.end());
    }

    void aCopyThatWasKilledDoesNotCount()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        QVERIFY(first.kill());
        QVERIFY(QFile::exists(lockPath()));
        Copy next;
        QCOMPARE(next.answer(), "first"_ba);
        QVERIFY(next.end());
    }

    void aCopyCountsForAsLongAsItRuns()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        QFile lock(lockPath());
        QVERIFY(lock.open(QIODevice::ReadWrite));
        QVERIFY(lock.setFileTime(QDateTime::currentDateTime().addYears(-1),
                                 QFileDevice::FileModificationTime));
        lock.close();
        Copy second;
        QCOMPARE(second.answer(), "second"_ba);
        QVERIFY(second.end());
        QVERIFY(first.end());
    }

    // The lock file that is left after a power cut.
    void anEmptyLockThatNobodyHoldsDoesNotKeepTheProgramFromStarting()
    {
        Copy first;
        QCOMPARE(first.answer(), "first"_ba);
        QVERIFY(first.kill());
        QVERIFY(QFile::resize(lockPath(), 0));
        Copy next;
        QCOMPARE(next.answer(), "first"_ba);
        QVERIFY(next.end());
    }

    void theProgramStartsWhereNoLockFileCanBeMade()
    {
        const QString notAFolder = m_data->filePath(u"file"_s);
        writeFile(notAFolder, {});
        qputenv("XDG_DATA_HOME", QFile::encodeName(notAFolder));
        Copy copy;
        QCOMPARE(copy.answer(), "first"_ba);
        QVERIFY(copy.end());
    }

    void aWriteBeyondTheFileSizeLimitIsAnErrorAndNoCrash()
    {
        const QString path = m_data->filePath(u"list.lwx"_s);
        QCOMPARE(errorNumberInChildProcess([&path] {
                     const rlimit limit{1000, 1000};
                     setrlimit(RLIMIT_FSIZE, &limit);
                     BinaryFile::overwrite(path, QByteArray(2000, 'x'));
                 }),
                 int(RunTimeError::DiskFull));
    }

private:
    [[nodiscard]] QString lockPath() const
    {
        return m_data->filePath(u"Lexibrook/tanglewit.lock"_s);
    }

    std::unique_ptr<QTemporaryDir> m_data;
};

int main(int argc, char *argv[])
{
    Application application(argc, argv);
    if (application.arguments().contains(HoldArgument))
        return beACopy(application);
    Application_test test;
    return QTest::qExec(&test, argc, argv);
}

#include "Application_test.moc"
