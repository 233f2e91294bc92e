// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/sndPlaySoundA.h"

#include "platform/WaveBytes.h"
#include "support/TestFiles.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr unsigned Play = SoundFlags::Asynchronous | SoundFlags::Loop;

bool libraryIsLoaded(const QByteArray &name)
{
    return readFile(u"/proc/self/maps"_s).contains(name);
}

} // namespace

class sndPlaySoundA_test final : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_wave = path("sound.wav");
        writeFile(m_wave, waveBytes(22050, 1, 16, QByteArray(44100, '\x10')));
        // So that no sound server of the machine is found or started.
        qputenv("HOME", QFile::encodeName(m_folder.path()));
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(m_folder.path()));
        qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(path("no-server")));
    }

    void aPlayerThatIsSetGetsEveryRequestAsItIs()
    {
        QStringList requests;
        setSoundPlayer([&requests](const QString &fileName, unsigned flags) {
            requests += u"%1 %2"_s.arg(fileName).arg(flags);
        });
        sndPlaySoundA(u"C:\\Track01.wav"_s, 9);
        sndPlaySoundA(u"NULL"_s, 0);
        setSoundPlayer({});
        QCOMPARE(requests, QStringList({u"C:\\Track01.wav 9"_s, u"NULL 0"_s}));
    }

    void playingIsTheSumOfItsTwoFlags() { QCOMPARE(Play, 9U); }

    void beforeTheFirstSoundNothingOfItIsLoaded()
    {
        sndPlaySoundA(u"NULL"_s, 0);
        QVERIFY(!libraryIsLoaded("tanglewit_sound"));
        QVERIFY(!libraryIsLoaded("Qt6Multimedia"));
        QVERIFY(!libraryIsLoaded("libpulse"));
        QVERIFY(!libraryIsLoaded("gstreamer"));
    }

    void withoutAServerNothingIsHeardAndNothingBreaks()
    {
        sndPlaySoundA(m_wave, Play);
        QTRY_VERIFY(libraryIsLoaded("Qt6Multimedia"));
        sndPlaySoundA(m_wave, Play);
        sndPlaySoundA(path("missing.wav"), Play);
        sndPlaySoundA(QString(), Play);
        sndPlaySoundA(u"NULL"_s, 0);
    }

    void messagesOfOtherThreadsAreShown()
    {
        sndPlaySoundA(m_wave, Play);
        QTest::ignoreMessage(QtWarningMsg, "another thread");
        const std::unique_ptr<QThread> thread(QThread::create([] { qWarning("another thread"); }));
        thread->start();
        QVERIFY(thread->wait());
        sndPlaySoundA(u"NULL"_s, 0);
    }

    void aServerThatClosesTheConnectionIsNotReported()
    {
        QLocalServer server;
        QVERIFY(server.listen(path("rude-server")));
        int calls = 0;
        connect(&server, &QLocalServer::newConnection, this, [&server, &calls] {
            ++calls;
            server.nextPendingConnection()->abort();
        });
        QProcess *program = startedProgram(server);
        // The player connects again after the first connection has failed.
        QTRY_VERIFY_WITH_TIMEOUT(calls >= 2, 20'000);
        endsWithoutAMessage(program);
    }

    void aProgramEndsThoughItsServerNeverAnswers()
    {
        QLocalServer server;
        QVERIFY(server.listen(path("deaf-server")));
        QProcess *program = startedProgram(server);
        QTRY_VERIFY(server.hasPendingConnections());
        // The call for the connection would wait for half a minute.
        endsWithoutAMessage(program);
    }

private:
    [[nodiscard]] QString path(const char *name) const
    {
        return m_folder.filePath(QLatin1String(name));
    }

    QProcess *startedProgram(const QLocalServer &server)
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(u"PULSE_SERVER"_s, u"unix:"_s + server.fullServerName());
        auto *program = new QProcess(this);
        program->setProcessEnvironment(environment);
        program->start(QStringLiteral(PLAYING_CHILD), {m_wave});
        return program;
    }

    static void endsWithoutAMessage(QProcess *program)
    {
        program->write("\n");
        QVERIFY(program->waitForFinished(20'000));
        QCOMPARE(program->exitStatus(), QProcess::NormalExit);
        QCOMPARE(program->exitCode(), 0);
        QCOMPARE(program->readAllStandardError(), QByteArray());
    }

    QTemporaryDir m_folder;
    QString m_wave;
};

QTEST_GUILESS_MAIN(sndPlaySoundA_test)
#include "sndPlaySoundA_test.moc"
