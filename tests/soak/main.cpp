// SPDX-License-Identifier: GPL-3.0-or-later
// Uses the program at random for some time; README.md beside this file says how to run it.
//
// A child process uses the program and prints each step. The parent process prints the last steps
// if the child fails, crashes or hangs.
#include "runtime/ChildProcess.h"
#include "soak/Soak.h"
#include "support/AllocatedBytes.h"
#include "support/FormTest.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>

#include <csignal>
#include <cstdio>
#include <deque>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr char IsPerson[] = "TANGLEWIT_SOAK_PERSON";
constexpr char Seed[] = "TANGLEWIT_SOAK_SEED";
constexpr char Seconds[] = "TANGLEWIT_SOAK_SECONDS";

constexpr int SecondsByDefault = 60;
constexpr int LongestSilence = 120'000; // ms
constexpr std::size_t StepsTold = 50;

qint64 residentKilobytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toLongLong() * sysconf(_SC_PAGESIZE) / 1024;
}

void tellMemory(const Soak &soak, qint64 seconds)
{
    std::printf("%4lld s %7d steps %8lld KB resident %7zu KB allocated\n",
                static_cast<long long>(seconds), soak.steps(),
                static_cast<long long>(residentKilobytes()), allocatedBytes() / 1024);
    std::fflush(stdout);
}

} // namespace

class soak_person final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theProgramIsAsTheModelSays()
    {
        Soak soak(qEnvironmentVariable(Seed).toUInt());
        const qint64 end = qEnvironmentVariableIntValue(Seconds);
        constexpr qint64 interval = 10;
        QElapsedTimer time;
        time.start();
        qint64 told = 0;
        while (time.elapsed() / 1000 < end && !QTest::currentTestFailed()) {
            soak.step();
            // The figures can be compared only while the list is empty.
            if (const qint64 seconds = time.elapsed() / 1000;
                seconds >= told + interval && soak.model.count() == 0)
                tellMemory(soak, told = seconds - seconds % interval);
        }
        tellMemory(soak, end);
    }
};

namespace {

int runPerson(int argc, char **argv)
{
    // So that missing rights hold for root, too.
    if (!dropPrivileges())
        return 1;
    return runFormTest<soak_person>(argc, argv);
}

// Prints the output of the child, but only the last steps, and these only after a failure.
class Watch final
{
public:
    explicit Watch(const QString &program)
    {
        m_person.setProcessChannelMode(QProcess::MergedChannels);
        m_person.start(program, {});
    }

    [[nodiscard]] bool wasHappy()
    {
        while (m_person.waitForReadyRead(LongestSilence))
            while (m_person.canReadLine())
                take(m_person.readLine());
        m_person.waitForFinished(1000);
        const bool hangs = m_person.state() != QProcess::NotRunning;
        if (hangs) {
            std::printf("Nothing happens any more.\n");
            kill(pid_t(m_person.processId()), SIGABRT);
            m_person.waitForFinished();
        }
        const bool happy =
            !hangs && m_person.exitStatus() == QProcess::NormalExit && m_person.exitCode() == 0;
        std::printf("%s", m_person.readAll().constData());
        if (!happy)
            tellSteps();
        return happy;
    }

private:
    void take(const QByteArray &line)
    {
        if (line.contains("propagateSizeHints"))
            return; // a warning for each window on the offscreen platform
        if (!line.startsWith("step ")) {
            std::printf("%s", line.constData());
            std::fflush(stdout);
            return;
        }
        m_steps.push_back(line);
        if (m_steps.size() > StepsTold)
            m_steps.pop_front();
    }

    void tellSteps() const
    {
        std::printf("The last steps, of the seed %s:\n", qgetenv(Seed).constData());
        for (const QByteArray &step : m_steps)
            std::printf("%s", step.constData());
    }

    QProcess m_person;
    std::deque<QByteArray> m_steps;
};

} // namespace

int main(int argc, char *argv[])
{
    if (qEnvironmentVariableIsSet(IsPerson))
        return runPerson(argc, argv);
    if (!qEnvironmentVariableIsSet(Seed))
        qputenv(Seed, QByteArray::number(std::random_device()()));
    if (!qEnvironmentVariableIsSet(Seconds))
        qputenv(Seconds, QByteArray::number(SecondsByDefault));
    qputenv(IsPerson, "1");
    // Qt Test ends a test that runs for longer, in milliseconds.
    qputenv("QTEST_FUNCTION_TIMEOUT", "2000000000");
    std::printf("%s=%s %s=%s\n", Seed, qgetenv(Seed).constData(), Seconds,
                qgetenv(Seconds).constData());
    QCoreApplication application(argc, argv);
    return Watch(QCoreApplication::applicationFilePath()).wasHappy() ? 0 : 1;
}

#include "main.moc"
