// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SoundServer.h"

#include <QTest>
#include <QtEndian>

SoundServer::SoundServer() : m_recording(path(QStringLiteral("recording")))
{
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    // A file, so that nothing is lost or late while the test is busy.
    m_recorder.setStandardOutputFile(m_recording.fileName());
}

SoundServer::~SoundServer()
{
    stop();
}

bool SoundServer::start()
{
    const QString socket = path(QStringLiteral("socket"));
    const QByteArray home = QFile::encodeName(m_folder.path());
    for (const char *variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
        qputenv(variable, home);
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket));
    for (const char *variable : {"DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "PULSE_SINK"})
        qunsetenv(variable);

    m_server.start(
        QStringLiteral("pulseaudio"),
        {QStringLiteral("-n"), QStringLiteral("--daemonize=no"),
         QStringLiteral("--exit-idle-time=-1"), QStringLiteral("--use-pid-file=no"),
         QStringLiteral("--disable-shm=yes"), QStringLiteral("-L"),
         QStringLiteral("module-null-sink sink_name=nowhere rate=44100"), QStringLiteral("-L"),
         QStringLiteral("module-native-protocol-unix auth-anonymous=1 socket=") + socket});
    if (!m_server.waitForStarted() ||
        !QTest::qWaitFor([&socket] { return QFile::exists(socket); }, 20'000)) {
        qWarning() << "pulseaudio:" << m_server.errorString() << m_server.readAll();
        return false;
    }
    m_recorder.start(QStringLiteral("parec"),
                     {QStringLiteral("--device=nowhere.monitor"), QStringLiteral("--raw"),
                      QStringLiteral("--format=s16le"), QStringLiteral("--channels=1"),
                      QStringLiteral("--rate=%1").arg(SampleRate),
                      QStringLiteral("--latency-msec=20")});
    return m_recorder.waitForStarted() && m_recording.open(QIODevice::ReadOnly) &&
           QTest::qWaitFor([this] { return !heard().empty(); }, 20'000);
}

void SoundServer::stop()
{
    for (QProcess *process : {&m_recorder, &m_server}) {
        if (process->state() == QProcess::NotRunning)
            continue;
        process->terminate();
        if (!process->waitForFinished(5000))
            process->kill();
        process->waitForFinished();
    }
}

const std::vector<double> &SoundServer::heard()
{
    const qint64 size = m_recording.size() - m_recording.pos();
    const QByteArray bytes = m_recording.read(size - size % 2);
    for (qsizetype at = 0; at < bytes.size(); at += 2)
        m_heard.push_back(qFromLittleEndian<qint16>(bytes.constData() + at) / 32768.0);
    return m_heard;
}
