// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/SoundServer.h"

#include <QStandardPaths>
#include <QTest>
#include <QtEndian>

#include <array>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

SoundServer::SoundServer()
{
    m_server.setProcessChannelMode(QProcess::MergedChannels);
}

SoundServer::~SoundServer()
{
    stop();
}

bool SoundServer::isInstalled()
{
    return !QStandardPaths::findExecutable(u"pulseaudio"_s).isEmpty() &&
           !QStandardPaths::findExecutable(u"parec"_s).isEmpty();
}

bool SoundServer::start()
{
    const QString socket = path(u"socket"_s);
    const QString output = path(u"output"_s);
    const QByteArray home = QFile::encodeName(m_folder.path());
    for (const char *variable : {"HOME", "XDG_RUNTIME_DIR", "XDG_CONFIG_HOME"})
        qputenv(variable, home);
    qputenv("PULSE_SERVER", "unix:" + QFile::encodeName(socket));
    for (const char *variable : {"DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "PULSE_SINK"})
        qunsetenv(variable);

    m_server.start(
        u"pulseaudio"_s,
        {u"-n"_s, u"--daemonize=no"_s, u"--exit-idle-time=-1"_s, u"--use-pid-file=no"_s,
         u"--disable-shm=yes"_s, u"-L"_s,
         u"module-pipe-sink file=%1 format=s16le channels=1 rate=%2"_s.arg(output).arg(SampleRate),
         u"-L"_s, u"module-native-protocol-unix auth-anonymous=1 socket="_s + socket});
    if (!m_server.waitForStarted() ||
        !QTest::qWaitFor([&socket] { return QFile::exists(socket); }, 20'000)) {
        qWarning() << "pulseaudio:" << m_server.errorString() << m_server.readAll();
        return false;
    }
    // A server without a sound writes nothing. With this client it writes silence.
    m_silence.start(u"pacat"_s, {u"--raw"_s, u"/dev/zero"_s});
    const int pipe = ::open(QFile::encodeName(output).constData(), O_RDONLY | O_NONBLOCK);
    // The smallest buffer of a pipe, so that the recording has little delay.
    return m_silence.waitForStarted() && pipe >= 0 && ::fcntl(pipe, F_SETPIPE_SZ, 4096) >= 0 &&
           m_output.open(pipe, QIODevice::ReadOnly | QIODevice::Unbuffered,
                         QFileDevice::AutoCloseHandle);
}

void SoundServer::stop()
{
    for (QProcess *process : {&m_silence, &m_server}) {
        if (process->state() == QProcess::NotRunning)
            continue;
        process->terminate();
        if (!process->waitForFinished(5000))
            process->kill();
        process->waitForFinished();
    }
}

void SoundServer::listen()
{
    std::array<char, SampleRate / 100 * sizeof(qint16)> bytes{};
    const qint64 size = m_output.read(bytes.data(), qint64(bytes.size()));
    for (qint64 at = 0; at + 1 < size; at += qint64(sizeof(qint16)))
        m_heard.push_back(qFromLittleEndian<qint16>(bytes.data() + at) / 32768.0);
}
