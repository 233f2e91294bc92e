// SPDX-License-Identifier: GPL-3.0-or-later
// A sound server of the test's own. It must be there before the first sound, which finds it by the
// environment.
//
// Its one output is a pipe, and it plays as fast as the pipe is read. On a machine that is busy
// the test reads more slowly, so that no sound is lost.
#pragma once

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <vector>

class SoundServer final
{
public:
    static constexpr int SampleRate = 22050;

    SoundServer();
    ~SoundServer();
    Q_DISABLE_COPY_MOVE(SoundServer)

    [[nodiscard]] static bool isInstalled();

    // Starts the server; false if it does not run.
    [[nodiscard]] bool start();
    void stop();

    // Listens to no more than the next hundredth of a second.
    void listen();
    // All that has been listened to, on one channel.
    [[nodiscard]] const std::vector<double> &heard() const { return m_heard; }

private:
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QProcess m_server;
    QProcess m_silence;
    QFile m_output;
    std::vector<double> m_heard;
};
